#include "dialogs/UnitDlg.h"

#include "gamedata/GameDatabase.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"

namespace {
constexpr int kMaxName = 50;
// Base types of these classes are units; higher codes belong to other kinds of item.
constexpr std::uint8_t kFirstOtherClass = 4;
// Format variants: below 2 the lines have no reserved field, 2 keeps it as read.
constexpr std::uint8_t kReservedShown = 2;
constexpr std::uint8_t kReservedEdited = 3;

template <typename Record>
Record* Chosen(const CComboBox& list) {
    const int line = list.GetCurSel();
    return line == LB_ERR ? nullptr : reinterpret_cast<Record*>(list.GetItemData(line));
}

// Adds record to list under its text, selected when it is current.
void AddLine(CComboBox& list, CGameRecord& record, const CGameRecord* current) {
    const int line = list.AddString(std::string(record.m_strName));
    list.SetItemData(line, reinterpret_cast<std::uintptr_t>(&record));
    if (&record == current) {
        list.SetCurSel(line);
    }
}

CTypeRecord* FirstTypeOfClass(CGameDatabase& database, std::uint8_t classCode) {
    for (CDataListNode* node = database.m_Types.Head(); node; node = node->m_pNext) {
        auto& type = static_cast<CTypeRecord&>(*node->m_pPayload);
        if (type.ClassCode() == classCode) {
            return &type;
        }
    }
    return nullptr;
}

CWeaponRecord* FirstWeapon(const CTypeRecord* type) {
    CDataListNode* node = type ? type->m_Weapons.Head() : nullptr;
    return node ? static_cast<CWeaponRecord*>(node->m_pPayload.get()) : nullptr;
}
}  // namespace

CUnitDlg::CUnitDlg(CGameDatabase& database, const CUnitItem& unit)
    : CFightingEditorDlg(IDD_UNIT, database), m_unit(unit) {
    OnKillFocus(IDC_ITEM_NAME, [this] {
        UpdateData(true);
        m_copy.m_strName = m_strName;
    });
    OnKillFocus(IDC_ITEM_PICTURE, [this] {
        UpdateData(true);
        m_copy.m_nPicture = static_cast<std::int32_t>(m_nPicture);
    });
    OnKillFocus(IDC_ITEM_ICON, [this] {
        UpdateData(true);
        m_copy.m_nIcon = static_cast<std::int32_t>(m_nIcon);
    });
    OnKillFocus(IDC_ITEM_RESERVED, [this] {
        UpdateData(true);
        m_copy.m_nReserved = StoredShort(m_nReserved);
    });
    OnSelChange(IDC_ITEM_BASE_TYPE, [this] { OnBaseTypeSelected(); });
    OnSelChange(IDC_ITEM_TYPE, [this] { OnTypeSelected(); });
    OnSelChange(IDC_ITEM_WEAPON, [this] { OnWeaponSelected(); });
    OnClicked(IDC_ITEM_PICTURE_PICK, [this] { OnPicturePick(); });
    OnClicked(IDC_ITEM_ICON_PICK, [this] { OnIconPick(); });
    OnClicked(IDC_ITEM_ACCEPT, [this] { OnAccept(); });
}

void CUnitDlg::DoDataExchange(CDataExchange* pDX) {
    CItemEditorDlg::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ITEM_BASE_TYPE, m_baseTypes);
    DDX_Control(pDX, IDC_ITEM_TYPE, m_types);
    DDX_Control(pDX, IDC_ITEM_WEAPON, m_weapons);
    DDX_Text(pDX, IDC_ITEM_ICON, m_nIcon);
    DDV_MinMaxUInt(pDX, m_nIcon, 0, 10000);
    DDX_Text(pDX, IDC_ITEM_PICTURE, m_nPicture);
    DDV_MinMaxUInt(pDX, m_nPicture, 0, 10000);
    DDX_Text(pDX, IDC_ITEM_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
    DDX_Text(pDX, IDC_ITEM_QUALITY, m_nQuality);
    DDV_MinMaxUInt(pDX, m_nQuality, 0, 10);
    DDX_Text(pDX, IDC_ITEM_STRENGTH, m_nStrength);
    DDV_MinMaxUInt(pDX, m_nStrength, 0, 10000);
    DDX_Check(pDX, IDC_ITEM_FANATIC, m_nFanatic);
    DDX_Check(pDX, IDC_ITEM_SHOW_POINTS, m_nShowPoints);
    DDX_Text(pDX, IDC_ITEM_RESERVED, m_nReserved);
    DDV_MinMaxUInt(pDX, m_nReserved, 0, 10000);
}

bool CUnitDlg::OnInitDialog() {
    m_nShowPoints = 0;
    CItemEditorDlg::OnInitDialog();
    const std::uint8_t variant = m_database.m_nFormatVariant;
    for (int id : {IDC_ITEM_RESERVED_LABEL, IDC_ITEM_RESERVED}) {
        GetDlgItem(id)->ShowWindow(variant >= kReservedShown);
        GetDlgItem(id)->EnableWindow(variant >= kReservedEdited);
    }
    Reset();
    return true;
}

void CUnitDlg::Reset() {
    CopyRecords(m_unit, m_copy);
    m_copy.m_nStrength = m_unit.m_nStrength;
    m_copy.m_nQuality = m_unit.m_nQuality;
    m_copy.m_nPicture = m_unit.m_nPicture;
    m_copy.m_nReserved = m_unit.m_nReserved;
    m_copy.m_nIcon = m_unit.m_nIcon;
    m_strName = m_copy.m_strName;
    ShowFightingFields();
    m_nPicture = ShownNumber(m_copy.m_nPicture);
    m_nReserved = ShownNumber(m_copy.m_nReserved);
    m_nIcon = ShownNumber(m_copy.m_nIcon);
    m_baseTypes.ResetContent();
    for (CDataListNode* node = m_database.m_BaseTypes.Head(); node; node = node->m_pNext) {
        auto& base = static_cast<CBaseTypeRecord&>(*node->m_pPayload);
        if (base.ClassCode() < kFirstOtherClass) {
            AddLine(m_baseTypes, base, m_copy.m_pBaseType);
        }
    }
    FillTypes();
    FillWeapons();
    Recompute();
    UpdateData(false);
}

void CUnitDlg::FillTypes() {
    m_types.ResetContent();
    if (!m_copy.m_pBaseType) {
        return;
    }
    for (CDataListNode* node = m_database.m_Types.Head(); node; node = node->m_pNext) {
        auto& type = static_cast<CTypeRecord&>(*node->m_pPayload);
        if (type.ClassCode() == m_copy.m_pBaseType->ClassCode()) {
            AddLine(m_types, type, m_copy.m_pType);
        }
    }
}

void CUnitDlg::FillWeapons() {
    m_weapons.ResetContent();
    if (!m_copy.m_pType) {
        return;
    }
    for (CDataListNode* node = m_copy.m_pType->m_Weapons.Head(); node; node = node->m_pNext) {
        AddLine(m_weapons, static_cast<CWeaponRecord&>(*node->m_pPayload), m_copy.m_pWeapon);
    }
}

// A base type of another class brings that class's first type and its first weapon; a class no
// type has leaves the unit without type and weapon, and so without a cost, until one is chosen.
void CUnitDlg::OnBaseTypeSelected() {
    CBaseTypeRecord* base = Chosen<CBaseTypeRecord>(m_baseTypes);
    if (!base) {
        return;
    }
    m_copy.m_pBaseType = base;
    m_copy.m_pType = FirstTypeOfClass(m_database, base->ClassCode());
    m_copy.m_pWeapon = FirstWeapon(m_copy.m_pType);
    if (m_copy.m_nStrength > base->m_nMaxStrength) {
        m_copy.m_nStrength = base->m_nMaxStrength;
    }
    ShowStrength();
    FillTypes();
    FillWeapons();
    Recompute();
    UpdateData(false);
}

void CUnitDlg::OnTypeSelected() {
    if (CTypeRecord* type = Chosen<CTypeRecord>(m_types)) {
        m_copy.m_pType = type;
        m_copy.m_pWeapon = FirstWeapon(type);
        FillWeapons();
    }
    Recompute();
    UpdateData(false);
}

void CUnitDlg::OnWeaponSelected() {
    if (CWeaponRecord* weapon = Chosen<CWeaponRecord>(m_weapons)) {
        m_copy.m_pWeapon = weapon;
    }
    Recompute();
    UpdateData(false);
}

void CUnitDlg::OnPicturePick() {
    if (const auto number =
            PickPicture(CWorkspace::UNIT_PICTURES, ShownNumber(m_copy.m_nPicture))) {
        m_nPicture = *number;
        m_copy.m_nPicture = static_cast<std::int32_t>(*number);
        UpdateData(false);
    }
}

// Only infantry, cavalry and artillery have icon strips: a unit without a base type, or of
// class 0, has none to choose from.
void CUnitDlg::OnIconPick() {
    const std::uint8_t iconClass = m_copy.m_pBaseType ? m_copy.m_pBaseType->ClassCode() : 0;
    if (iconClass < 1 || iconClass >= kFirstOtherClass) {
        return;
    }
    const int strip = CWorkspace::INFANTRY_ICONS + iconClass - 1;
    if (const auto number = PickPicture(strip, ShownNumber(m_copy.m_nIcon))) {
        m_nIcon = *number;
        m_copy.m_nIcon = static_cast<std::int32_t>(*number);
        UpdateData(false);
    }
}

// The database the unit points to stays its own.
void CUnitDlg::OnAccept() {
    auto edited = std::make_unique<CUnitItem>(m_unit);
    CopyRecords(m_copy, *edited);
    edited->m_pDatabase = m_unit.m_pDatabase;
    edited->m_nStrength = m_copy.m_nStrength;
    edited->m_nQuality = m_copy.m_nQuality;
    edited->m_nPicture = m_copy.m_nPicture;
    edited->m_nReserved = m_copy.m_nReserved;
    edited->m_nIcon = m_copy.m_nIcon;
    Finish(std::move(edited));
}
