// "Edit gunboat" (dialog 123): a unit editor without the base type and type lists: name, weapon,
// strength (in strength points or men), quality with the fanatic mark, and picture.
#pragma once

#include <string>

#include "dialogs/ItemEditorDlg.h"
#include "model/GunboatItem.h"

class CGunboatDlg : public CItemEditorDlg {
public:
    CGunboatDlg(CGameDatabase& database, const CGunboatItem& gunboat);

    int m_nFanatic = 0;
    std::string m_strName;
    unsigned m_nPicture = 0;
    unsigned m_nQuality = 0;
    int m_nShowPoints = 0;
    unsigned m_nStrength = 0;
    CComboBox m_weapons;  // the weapons of the type; each line carries its record

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void Recompute();
    void ShowStrength();
    void OnWeaponSelected();
    void OnStrengthChanged();
    void OnQualityChanged();
    void OnShowPointsClicked();
    void OnFanaticClicked();
    void OnAccept();

    const CGunboatItem& m_gunboat;
    CGunboatItem m_copy;
};
