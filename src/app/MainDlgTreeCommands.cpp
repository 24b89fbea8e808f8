// The Edit commands that change the tree: Copy, Cut, the two Pastes, Add of a unit, leader,
// supply train or structure, the two Deletes and renaming in place. The window asks the
// questions and shows the type list; the work is the model's (model/TreeCommands.h), one step
// of the edit layer each.
#include <memory>
#include <optional>
#include <string>

#include "app/MainDlg.h"
#include "dialogs/AddListDlg.h"
#include "model/NewItems.h"
#include "model/TreeCommands.h"
#include "platform/MessageBox.h"
#include "resources/ResourceIds.h"

namespace {
NewKind KindOfCommand(int command) {
    switch (command) {
        case ID_ADD_NEXT_UNIT:
        case ID_ADD_CHILD_UNIT:
            return NewKind::Unit;
        case ID_ADD_NEXT_LEADER:
        case ID_ADD_CHILD_LEADER:
            return NewKind::Leader;
        case ID_ADD_NEXT_SUPPLY:
        case ID_ADD_CHILD_SUPPLY:
            return NewKind::Supply;
        default:
            return NewKind::Structure;
    }
}
}  // namespace

void CMainDlg::OnCopy() {
    if (MarkEntry(m_session, m_tree.GetSelectedItem(), ClipMode::Copy)) {
        UpdateData(false);
    }
}

void CMainDlg::OnCut() {
    if (MarkEntry(m_session, m_tree.GetSelectedItem(), ClipMode::Cut)) {
        UpdateData(false);
    }
}

void CMainDlg::OnPasteNext() {
    if (PasteNext(m_session, m_tree.GetSelectedItem())) {
        UpdateData(false);
    }
}

void CMainDlg::OnPasteChild() {
    if (PasteChild(m_session, m_tree.GetSelectedItem())) {
        UpdateData(false);
    }
}

void CMainDlg::OnAddChild(int command) {
    if (m_session.IsOpen() &&
        AddNewItem(command, AddChildPlace(m_tree, m_tree.GetSelectedItem()))) {
        RedrawWindow();
    }
}

void CMainDlg::OnAddNext(int command) {
    if (m_session.IsOpen()) {
        AddNewItem(command, AddNextPlace(m_tree, m_tree.GetSelectedItem()));
    }
}

// The new item and an editor accepted on it are one step, so one Undo takes the item out; a
// cancelled editor leaves the item as it was made.
bool CMainDlg::AddNewItem(int command, const std::optional<CAddPlace>& place) {
    if (!place) {
        return false;
    }
    const NewKind kind = KindOfCommand(command);
    const CClassRange range = ClassRangeOf(kind);
    const std::optional<std::string> stop =
        kind == NewKind::Structure ? StructureStopName(m_tree, *place) : std::nullopt;
    CAddListDlg list(*m_session.Database(), range.lowest, range.highest, stop.has_value(),
                     stop.value_or(std::string()));
    if (list.DoModal() != 1 || !list.ChosenType()) {
        return false;
    }
    std::unique_ptr<COobItem> item = NewItem(*m_session.Database(), kind, *list.ChosenType());
    if (!item) {
        return false;
    }
    {
        CEditLayer::CGroup group(m_session.Edit());
        AddEntry(m_session, *place, std::move(item));
        UpdateData(false);
        if (kind != NewKind::Structure) {
            OnItemProperties();
        }
    }
    UpdateData(false);
    return true;
}

void CMainDlg::OnDeleteItem() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    if (!m_session.IsOpen() || !entry || !Ask("Do you want to delete this item?", "Delete")) {
        return;
    }
    DeleteEntry(m_session, entry);
    UpdateData(false);
}

void CMainDlg::OnDeleteChildren() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    if (!m_session.IsOpen() || !entry || !m_tree.ItemHasChildren(entry) ||
        !Ask("Do you want to delete child items?", "Delete")) {
        return;
    }
    DeleteChildren(m_session, entry);
    UpdateData(false);
}

// The tree keeps the typed label only when the item took it as its name.
bool CMainDlg::OnRenameEntry(HTREEITEM entry, const std::string* text) {
    if (!text || !RenameEntry(m_session, entry, *text)) {
        return false;
    }
    UpdateData(false);
    return true;
}
