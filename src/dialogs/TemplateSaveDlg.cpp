#include "dialogs/TemplateSaveDlg.h"

#include <algorithm>

#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr double kMaxCost = 10000000.0;
constexpr int kMaxType = 35;
constexpr int kMaxName = 50;
constexpr std::uint8_t kNoCountry = 255;
}  // namespace

void AddCountries(const CGameDatabase& database, CComboBox& list) {
    const std::size_t count =
        std::min<std::size_t>(database.m_nCountryCount, CGameDatabase::kMaxCountries);
    for (std::size_t c = 0; c < count; ++c) {
        list.AddString(database.m_strCountries[c]);
    }
}

CTemplateSaveDlg::CTemplateSaveDlg(const CTreeStore& tree, HTREEITEM entry, CGameDatabase& database,
                                   const COobItem& item)
    : CDialog(DialogResource(IDD_TEMPLATE_SAVE)),
      m_tree(tree),
      m_hEntry(entry),
      m_database(database),
      m_item(item) {
    // The stored values go back to the controls, so a name typed since they were last taken is
    // replaced; the country just chosen is kept, else no other country could ever be chosen.
    OnSelChange(IDC_TPL_COUNTRY, [this] {
        m_nCountry = m_countries.GetCurSel();
        UpdateData(false);
    });
    OnClicked(IDC_CHOICE_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_CHOICE_CANCEL, [this] { EndDialog(0); });
}

CTemplateSaveDlg::~CTemplateSaveDlg() = default;

std::unique_ptr<CTemplateRecord> CTemplateSaveDlg::TakeRecord() {
    return std::move(m_pRecord);
}

void CTemplateSaveDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TPL_COUNTRY, m_countries);
    DDX_CBIndex(pDX, IDC_TPL_COUNTRY, m_nCountry);
    DDX_Text(pDX, IDC_TPL_TYPE, m_strType);
    DDV_MaxChars(pDX, m_strType, kMaxType);
    DDX_Text(pDX, IDC_TPL_COST, m_dCost);
    DDV_MinMaxDouble(pDX, m_dCost, 0.0, kMaxCost);
    DDX_Text(pDX, IDC_TPL_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
}

bool CTemplateSaveDlg::OnInitDialog() {
    m_pRecord.reset();
    m_countries.ResetContent();
    AddCountries(m_database, m_countries);
    m_nCountry = m_countries.GetCount() > 0 ? 0 : -1;
    m_strType = m_item.m_pKind ? std::string(m_item.m_pKind->m_strName) : std::string();
    m_dCost = IsContainer(m_item) ? m_item.Aggregate(m_tree, m_hEntry, 0, 0) : m_item.Cost();
    m_strName = "Template : " + std::string(m_item.m_strName);
    CDialog::OnInitDialog();
    return true;
}

// A field out of range is reported and Accept goes on with what was taken before it.
void CTemplateSaveDlg::OnAccept() {
    UpdateData(true);
    auto record = std::make_unique<CTemplateRecord>();
    if (m_item.m_pKind) {
        record->m_nCode = m_item.m_pKind->TypeCode();
        record->m_nLevel = m_item.m_pKind->m_nLevel;
    }
    record->m_nCountry = m_nCountry < 0 ? kNoCountry : static_cast<std::uint8_t>(m_nCountry);
    record->m_dCost = m_dCost;
    record->m_strName = m_strName;
    m_pRecord = std::move(record);
    EndDialog(1);
}
