// Opening an item's editor from Edit, Properties, a double click or Shift+Enter, and Enter on
// the tree. An accepted editor's item replaces the entry's through the edit layer: one step of
// the history, the label and status fields following.
#include <memory>

#include "app/MainDlg.h"
#include "dialogs/GunboatDlg.h"
#include "dialogs/LeaderDlg.h"
#include "dialogs/StructureDlg.h"
#include "dialogs/SupplyDlg.h"
#include "dialogs/UnitDlg.h"
#include "model/ContainerItems.h"
#include "model/LeaderItem.h"
#include "platform/MessageBox.h"

namespace {
template <typename Editor, typename Item>
std::unique_ptr<COobItem> RunEditor(const CSession& session, const Item& item) {
    Editor editor(*session.Database(), item);
    editor.m_pWorkspace = session.Workspace();
    return editor.DoModal() == 1 ? editor.TakeEdited() : nullptr;
}

// The structure editor on the entry's subtree, for a structure or the structure item made from
// an army.
std::unique_ptr<COobItem> RunStructureEditor(const CSession& session, const CTreeStore& tree,
                                             HTREEITEM entry, const CStructureItem& structure) {
    CStructureDlg editor(*session.Database(), tree, entry, session.Document(), structure);
    editor.m_pWorkspace = session.Workspace();
    return editor.DoModal() == 1 ? editor.TakeEdited() : nullptr;
}

// The edited item of the entry, or none when the item has no editor or the editor was not
// accepted.
std::unique_ptr<COobItem> EditItem(const CSession& session, const CTreeStore& tree,
                                   HTREEITEM entry) {
    const COobItem& item = *ItemOf(tree, entry);
    switch (item.m_nType) {
        case TYPE_UNIT:
            return RunEditor<CUnitDlg>(session, static_cast<const CUnitItem&>(item));
        case TYPE_LEADER:
            // The position shown is the leader's place among the leaders in tree order.
            NumberLeaders(tree);
            return RunEditor<CLeaderDlg>(session, static_cast<const CLeaderItem&>(item));
        case TYPE_SUPPLY:
            return RunEditor<CSupplyDlg>(session, static_cast<const CSupplyItem&>(item));
        case TYPE_DEPOT: {
            const auto& depot = static_cast<const CDepotItem&>(item);
            const CSupplyItem supply = SupplyOfDepot(depot);
            std::unique_ptr<COobItem> edited = RunEditor<CSupplyDlg>(session, supply);
            return edited ? DepotOfSupply(depot, *edited) : nullptr;
        }
        case TYPE_GUNBOAT:
            return RunEditor<CGunboatDlg>(session, static_cast<const CGunboatItem&>(item));
        case TYPE_STRUCTURE:
            return RunStructureEditor(session, tree, entry,
                                      static_cast<const CStructureItem&>(item));
        case TYPE_ARMY: {
            const auto& army = static_cast<const CArmyItem&>(item);
            const CStructureItem structure = StructureOfArmy(army);
            std::unique_ptr<COobItem> edited = RunStructureEditor(session, tree, entry, structure);
            return edited ? ArmyOfStructure(army, *edited) : nullptr;
        }
        default:
            return nullptr;
    }
}

bool HoldsChildren(const COobItem* item) {
    return item && IsContainer(*item);
}
}  // namespace

void CMainDlg::OnItemProperties() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    const COobItem* item = entry ? ItemOf(m_tree, entry) : nullptr;
    if (!m_session.IsOpen() || !item) {
        return;
    }
    std::unique_ptr<COobItem> edited = EditItem(m_session, m_tree, entry);
    if (edited) {
        m_session.Edit().ReplaceFields(entry, std::move(edited));
        UpdateData(false);
    }
}

// Structures and armies open and close on a double click, which the tree does itself.
void CMainDlg::OnTreeDblClick() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    if (m_session.IsOpen() && entry && !HoldsChildren(ItemOf(m_tree, entry))) {
        OnItemProperties();
    }
}

void CMainDlg::OnEnterKey() {
    if (!m_session.IsOpen()) {
        return;
    }
    if (GetKeyState(VK_SHIFT) < 0) {
        OnItemProperties();
        return;
    }
    const HTREEITEM entry = m_tree.GetSelectedItem();
    if (entry && HoldsChildren(ItemOf(m_tree, entry))) {
        m_session.ViewStore().Expand(entry, TVE_TOGGLE);
    }
}
