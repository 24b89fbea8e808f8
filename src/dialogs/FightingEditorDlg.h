// What the unit and gunboat editors share beyond the other editors: the Strength field in
// strength points or men, the Quality field as its magnitude with the fanatic mark, and the
// figures shown again after every change of them. Item is the edited kind (unit or gunboat).
#pragma once

#include <cstdint>
#include <cstdlib>

#include "dialogs/FightingFields.h"
#include "dialogs/ItemEditorDlg.h"
#include "resources/ResourceIds.h"

template <class Item>
class CFightingEditorDlg : public CItemEditorDlg {
public:
    unsigned m_nQuality = 0;
    unsigned m_nStrength = 0;
    int m_nFanatic = 0;
    int m_nShowPoints = 0;

protected:
    CFightingEditorDlg(int dialogId, CGameDatabase& database) : CItemEditorDlg(dialogId, database) {
        OnKillFocus(IDC_ITEM_STRENGTH, [this] {
            UpdateData(true);
            m_copy.m_nStrength = TakenStrength(m_nStrength, m_copy.m_pBaseType, m_nShowPoints);
            ShowStrength();
            Recompute();
            UpdateData(false);
        });
        OnKillFocus(IDC_ITEM_QUALITY, [this] {
            UpdateData(true);
            m_copy.m_nQuality = TakenQuality(m_nQuality, m_database, m_nFanatic);
            Recompute();
            UpdateData(false);
        });
        OnClicked(IDC_ITEM_SHOW_POINTS, [this] {
            UpdateData(true);
            ShowStrength();
            UpdateData(false);
        });
        OnClicked(IDC_ITEM_FANATIC, [this] {
            UpdateData(true);
            m_copy.m_nQuality = static_cast<std::int16_t>(-m_copy.m_nQuality);
            Recompute();
            UpdateData(false);
        });
    }

    // The Strength, Quality and Fanatic fields from the working copy.
    void ShowFightingFields() {
        ShowStrength();
        m_nQuality = static_cast<unsigned>(std::abs(m_copy.m_nQuality));
        m_nFanatic = m_copy.m_nQuality < 0 ? 1 : 0;
    }
    void ShowStrength() {
        m_nStrength = ShownStrength(m_copy.m_nStrength, m_copy.m_pBaseType, m_nShowPoints);
    }
    void Recompute() {
        ShowFigures(FieldModifier(m_copy, m_nQuality, m_nFanatic, m_database), m_copy.Cost());
    }

    Item m_copy;
};
