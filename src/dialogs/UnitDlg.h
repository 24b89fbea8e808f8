// "Edit unit" (dialog 109): an infantry, cavalry or artillery unit. The base type, type and
// weapon lists keep each other consistent with the game data; strength is shown in strength
// points or men, quality as its magnitude with the fanatic mark; the reserved field follows the
// game data's format variant.
#pragma once

#include <string>

#include "dialogs/FightingEditorDlg.h"
#include "model/UnitItem.h"

class CUnitDlg : public CFightingEditorDlg<CUnitItem> {
public:
    CUnitDlg(CGameDatabase& database, const CUnitItem& unit);

    unsigned m_nIcon = 0;
    unsigned m_nPicture = 0;
    std::string m_strName;
    unsigned m_nReserved = 0;
    // Each line carries its record.
    CComboBox m_baseTypes;
    CComboBox m_types;
    CComboBox m_weapons;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void FillTypes();
    void FillWeapons();
    void OnBaseTypeSelected();
    void OnTypeSelected();
    void OnWeaponSelected();
    void OnPicturePick();
    void OnIconPick();
    void OnAccept();

    const CUnitItem& m_unit;
};
