#include "dialogs/GunboatDlg.h"

#include "gamedata/GameDatabase.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"

namespace {
constexpr int kMaxName = 50;
}

CGunboatDlg::CGunboatDlg(CGameDatabase& database, const CGunboatItem& gunboat)
    : CFightingEditorDlg(IDD_GUNBOAT, database), m_gunboat(gunboat) {
    OnKillFocus(IDC_ITEM_NAME, [this] {
        UpdateData(true);
        m_copy.m_strName = m_strName;
    });
    OnKillFocus(IDC_ITEM_PICTURE, [this] {
        UpdateData(true);
        m_copy.m_nPicture = StoredShort(m_nPicture);
    });
    OnSelChange(IDC_ITEM_WEAPON, [this] { OnWeaponSelected(); });
    OnClicked(IDC_ITEM_PICTURE_PICK, [this] {
        if (const auto number =
                PickPicture(CWorkspace::UNIT_PICTURES, ShownNumber(m_copy.m_nPicture))) {
            m_copy.m_nPicture = StoredShort(*number);
            m_nPicture = *number;
            UpdateData(false);
        }
    });
    OnClicked(IDC_ITEM_ACCEPT, [this] { OnAccept(); });
}

void CGunboatDlg::DoDataExchange(CDataExchange* pDX) {
    CItemEditorDlg::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ITEM_WEAPON, m_weapons);
    DDX_Check(pDX, IDC_ITEM_FANATIC, m_nFanatic);
    DDX_Text(pDX, IDC_ITEM_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
    DDX_Text(pDX, IDC_ITEM_PICTURE, m_nPicture);
    DDV_MinMaxUInt(pDX, m_nPicture, 0, 10000);
    DDX_Text(pDX, IDC_ITEM_QUALITY, m_nQuality);
    DDV_MinMaxUInt(pDX, m_nQuality, 0, 10);
    DDX_Check(pDX, IDC_ITEM_SHOW_POINTS, m_nShowPoints);
    DDX_Text(pDX, IDC_ITEM_STRENGTH, m_nStrength);
    DDV_MinMaxUInt(pDX, m_nStrength, 0, 10000);
}

bool CGunboatDlg::OnInitDialog() {
    m_nShowPoints = 0;
    CItemEditorDlg::OnInitDialog();
    Reset();
    return true;
}

void CGunboatDlg::Reset() {
    CopyRecords(m_gunboat, m_copy);
    m_copy.m_nStrength = m_gunboat.m_nStrength;
    m_copy.m_nQuality = m_gunboat.m_nQuality;
    m_copy.m_nPicture = m_gunboat.m_nPicture;
    m_strName = m_copy.m_strName;
    ShowFightingFields();
    m_nPicture = ShownNumber(m_copy.m_nPicture);
    m_weapons.ResetContent();
    if (m_copy.m_pType) {
        for (CDataListNode* node = m_copy.m_pType->m_Weapons.Head(); node; node = node->m_pNext) {
            auto& weapon = static_cast<CWeaponRecord&>(*node->m_pPayload);
            const int line = m_weapons.AddString(std::string(weapon.m_strName));
            m_weapons.SetItemData(line, reinterpret_cast<std::uintptr_t>(&weapon));
            if (&weapon == m_copy.m_pWeapon) {
                m_weapons.SetCurSel(line);
            }
        }
    }
    Recompute();
    UpdateData(false);
}

void CGunboatDlg::OnWeaponSelected() {
    const int line = m_weapons.GetCurSel();
    if (line != LB_ERR) {
        m_copy.m_pWeapon = reinterpret_cast<CWeaponRecord*>(m_weapons.GetItemData(line));
    }
    Recompute();
    UpdateData(false);
}

void CGunboatDlg::OnAccept() {
    auto edited = std::make_unique<CGunboatItem>(m_gunboat);
    CopyRecords(m_copy, *edited);
    edited->m_pDatabase = m_gunboat.m_pDatabase;
    edited->m_nStrength = m_copy.m_nStrength;
    edited->m_nQuality = m_copy.m_nQuality;
    edited->m_nPicture = m_copy.m_nPicture;
    Finish(std::move(edited));
}
