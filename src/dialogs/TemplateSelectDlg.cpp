#include "dialogs/TemplateSelectDlg.h"

#include "dialogs/TemplateSaveDlg.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr double kMaxCost = 10000000.0;
}  // namespace

CTemplateSelectDlg::CTemplateSelectDlg(CGameDatabase& database)
    : CDialog(DialogResource(IDD_TEMPLATE_SELECT)), m_database(database) {
    OnSelChange(IDC_TPL_COUNTRY, [this] { Refill(); });
    OnSelChange(IDC_TPL_KIND, [this] { Refill(); });
    OnSelChange(IDC_CHOICE_LIST, [this] { OnTemplateSelected(); });
    OnClicked(IDC_CHOICE_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_CHOICE_CANCEL, [this] { EndDialog(0); });
}

void CTemplateSelectDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TPL_COUNTRY, m_countries);
    DDX_Control(pDX, IDC_TPL_KIND, m_kinds);
    DDX_Control(pDX, IDC_CHOICE_LIST, m_list);
    DDX_CBIndex(pDX, IDC_TPL_COUNTRY, m_nCountry);
    DDX_CBIndex(pDX, IDC_TPL_KIND, m_nKind);
    DDX_Text(pDX, IDC_TPL_COST, m_dCost);
    DDV_MinMaxDouble(pDX, m_dCost, 0.0, kMaxCost);
}

bool CTemplateSelectDlg::OnInitDialog() {
    m_pChosen = nullptr;
    m_countries.ResetContent();
    m_countries.AddString("All");
    AddCountries(m_database, m_countries);
    m_kinds.ResetContent();
    m_kinds.AddString("All");
    for (CDataListNode* node = m_database.m_Kinds.Head(); node; node = node->m_pNext) {
        const auto& kind = static_cast<const CKindRecord&>(*node->m_pPayload);
        if (kind.TypeCode() < 7) {
            m_kinds.AddString(std::string(kind.m_strName));
        }
    }
    m_nCountry = 0;
    m_nKind = 0;
    CDialog::OnInitDialog();
    Refill();
    return true;
}

// The kind filter compares a template's level with the chosen kind's position among the kinds
// offered, as the game data's template records are meant to be read.
void CTemplateSelectDlg::Refill() {
    m_nCountry = m_countries.GetCurSel();
    m_nKind = m_kinds.GetCurSel();
    m_list.ResetContent();
    for (CDataListNode* node = m_database.m_Templates.Head(); node; node = node->m_pNext) {
        auto& record = static_cast<CTemplateRecord&>(*node->m_pPayload);
        if ((m_nCountry <= 0 || m_nCountry - 1 == record.m_nCountry) &&
            (m_nKind <= 0 || m_nKind - 1 == record.m_nLevel)) {
            const int line = m_list.AddString(std::string(record.m_strName));
            m_list.SetItemData(line, reinterpret_cast<std::uintptr_t>(&record));
        }
    }
    m_list.SetCurSel(0);
    const CTemplateRecord* selected = Selected();
    m_dCost = selected ? selected->m_dCost : 0.0;
    UpdateData(false);
}

// The fields are taken first, so that a cost beyond the field's range that is shown now is
// reported before the next one replaces it.
void CTemplateSelectDlg::OnTemplateSelected() {
    UpdateData(true);
    const CTemplateRecord* selected = Selected();
    m_dCost = selected ? selected->m_dCost : 0.0;
    UpdateData(false);
}

void CTemplateSelectDlg::OnAccept() {
    if (CTemplateRecord* selected = Selected()) {
        m_pChosen = selected;
        EndDialog(1);
    }
}

CTemplateRecord* CTemplateSelectDlg::Selected() const {
    const int line = m_list.GetCurSel();
    return line >= 0 && line < m_list.GetCount()
               ? reinterpret_cast<CTemplateRecord*>(m_list.GetItemData(line))
               : nullptr;
}
