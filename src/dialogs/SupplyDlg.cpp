#include "dialogs/SupplyDlg.h"

#include <algorithm>

#include "gamedata/GameRecords.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"

namespace {
constexpr int kMaxName = 50;
}

CSupplyDlg::CSupplyDlg(CGameDatabase& database, const CSupplyItem& supply)
    : CItemEditorDlg(IDD_SUPPLY, database), m_supply(supply) {
    OnKillFocus(IDC_ITEM_NAME, [this] {
        UpdateData(true);
        m_copy.m_strName = m_strName;
    });
    OnKillFocus(IDC_ITEM_PICTURE, [this] {
        UpdateData(true);
        m_copy.m_nNumber = StoredShort(m_nPicture);
    });
    OnKillFocus(IDC_ITEM_SUPPLY, [this] { OnSupplyChanged(); });
    OnClicked(IDC_ITEM_PICTURE_PICK, [this] {
        if (const auto number =
                PickPicture(CWorkspace::UNIT_PICTURES, ShownNumber(m_copy.m_nNumber))) {
            m_copy.m_nNumber = StoredShort(*number);
            m_nPicture = *number;
            UpdateData(false);
        }
    });
    OnClicked(IDC_ITEM_ACCEPT, [this] { OnAccept(); });
}

void CSupplyDlg::DoDataExchange(CDataExchange* pDX) {
    CItemEditorDlg::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_ITEM_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
    DDX_Text(pDX, IDC_ITEM_PICTURE, m_nPicture);
    DDV_MinMaxUInt(pDX, m_nPicture, 0, 100000);
    DDX_Text(pDX, IDC_ITEM_SUPPLY, m_nSupply);
    DDV_MinMaxUInt(pDX, m_nSupply, 1, 80);
}

bool CSupplyDlg::OnInitDialog() {
    CItemEditorDlg::OnInitDialog();
    Reset();
    return true;
}

void CSupplyDlg::Reset() {
    CopyRecords(m_supply, m_copy);
    m_copy.m_nNumber = m_supply.m_nNumber;
    m_copy.m_nSupply = m_supply.m_nSupply;
    m_strName = m_copy.m_strName;
    m_nPicture = ShownNumber(m_copy.m_nNumber);
    m_nSupply = ShownNumber(m_copy.m_nSupply);
    Recompute();
    UpdateData(false);
}

void CSupplyDlg::Recompute() {
    ShowFigures(m_copy.m_pType ? m_copy.m_pType->m_dCostModifier + 1.0 : 0.0, m_copy.Cost());
}

// More points than the base type allows are silently brought down to its maximum.
void CSupplyDlg::OnSupplyChanged() {
    UpdateData(true);
    if (m_copy.m_pBaseType) {
        m_nSupply = std::min(m_nSupply, ShownNumber(m_copy.m_pBaseType->m_nMaxStrength));
    }
    m_copy.m_nSupply = StoredShort(m_nSupply);
    Recompute();
    UpdateData(false);
}

// Only the three fields the dialog edits go back; the records stay the item's own.
void CSupplyDlg::OnAccept() {
    auto edited = std::make_unique<CSupplyItem>(m_supply);
    edited->m_strName = m_copy.m_strName;
    edited->m_nNumber = m_copy.m_nNumber;
    edited->m_nSupply = m_copy.m_nSupply;
    Finish(std::move(edited));
}

CSupplyItem SupplyOfDepot(const CDepotItem& depot) {
    CSupplyItem supply;
    CopyRecords(depot, supply);
    supply.m_nSupply = depot.m_nSupply;
    supply.m_nNumber = static_cast<std::int16_t>(depot.m_nNumber);
    return supply;
}

std::unique_ptr<CDepotItem> DepotOfSupply(const CDepotItem& depot, const COobItem& edited) {
    const auto& supply = static_cast<const CSupplyItem&>(edited);
    auto result = std::make_unique<CDepotItem>(depot);
    result->m_strName = supply.m_strName;
    result->m_nNumber = supply.m_nNumber;
    result->m_nSupply = supply.m_nSupply;
    return result;
}
