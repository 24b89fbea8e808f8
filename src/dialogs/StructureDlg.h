// "Edit structure" (dialog 118): a command echelon's name, and what it and the subtree under it
// are made of and cost, computed once when the editor opens. "Statistical data" opens the
// summary on the same entry. An army is edited through a structure item made from it.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "dialogs/ItemEditorDlg.h"
#include "model/ContainerItems.h"

class COobDocument;

class CStructureDlg : public CItemEditorDlg {
public:
    // entry is the structure's entry in tree, whose subtree the figures are taken from.
    CStructureDlg(CGameDatabase& database, const CTreeStore& tree, HTREEITEM entry,
                  const COobDocument* document, const CStructureItem& structure);

    std::string m_strName;
    std::string m_strKind;
    std::string m_strTotal;
    // Per arm (leaders, infantry, cavalry, artillery, supply): how many and what they cost.
    std::array<std::string, 5> m_strStrengths;
    std::array<std::string, 5> m_strPartialCosts;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void ComputeFigures();
    void OnAccept();

    const CTreeStore& m_tree;
    HTREEITEM m_hEntry;
    const COobDocument* m_pDocument;
    const CStructureItem& m_structure;
};

// An army's records in a structure item for the editor, and the army with the name the
// accepted structure item gives it: the only field the editor changes.
CStructureItem StructureOfArmy(const CArmyItem& army);
std::unique_ptr<CArmyItem> ArmyOfStructure(const CArmyItem& army, const COobItem& edited);
