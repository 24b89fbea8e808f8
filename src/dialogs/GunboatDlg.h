// "Edit gunboat" (dialog 123): a unit editor without the base type and type lists: name, weapon,
// strength (in strength points or men), quality with the fanatic mark, and picture.
#pragma once

#include <string>

#include "dialogs/FightingEditorDlg.h"
#include "model/GunboatItem.h"

class CGunboatDlg : public CFightingEditorDlg<CGunboatItem> {
public:
    CGunboatDlg(CGameDatabase& database, const CGunboatItem& gunboat);

    std::string m_strName;
    unsigned m_nPicture = 0;
    CComboBox m_weapons;  // the weapons of the type; each line carries its record

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void OnWeaponSelected();
    void OnAccept();

    const CGunboatItem& m_gunboat;
};
