#include "dialogs/StructureDlg.h"

#include <cmath>
#include <cstdio>

#include "dialogs/SummaryDlg.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"

namespace {
constexpr int kMaxName = 40;

struct CArmRow {
    int category;
    int measure;  // leaders are counted, the arms by their men
    int strengthId, costId;
};

constexpr std::array<CArmRow, 5> kArms = {{
    {CATEGORY_LEADERS, MEASURE_COUNT, IDC_STRUCT_LEADERS, IDC_STRUCT_LEADERS_COST},
    {CATEGORY_INFANTRY, MEASURE_MEN, IDC_STRUCT_INFANTRY, IDC_STRUCT_INFANTRY_COST},
    {CATEGORY_CAVALRY, MEASURE_MEN, IDC_STRUCT_CAVALRY, IDC_STRUCT_CAVALRY_COST},
    {CATEGORY_ARTILLERY, MEASURE_MEN, IDC_STRUCT_ARTILLERY, IDC_STRUCT_ARTILLERY_COST},
    {CATEGORY_SUPPLY, MEASURE_MEN, IDC_STRUCT_SUPPLY, IDC_STRUCT_SUPPLY_COST},
}};

std::string Figure(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

// A count shown as a whole number, truncated toward zero. Sums of men beyond what an int holds
// (damaged strengths over many entries) are printed as the whole number they are instead of
// being converted, which would be undefined.
std::string WholeNumber(double value) {
    char text[512];
    std::snprintf(text, sizeof text, "%.0f", std::trunc(value) + 0.0);
    return text;
}
}  // namespace

CStructureDlg::CStructureDlg(CGameDatabase& database, const CTreeStore& tree, HTREEITEM entry,
                             const COobDocument* document, const CStructureItem& structure)
    : CItemEditorDlg(IDD_STRUCTURE, database),
      m_tree(tree),
      m_hEntry(entry),
      m_pDocument(document),
      m_structure(structure) {
    OnKillFocus(IDC_ITEM_NAME, [this] { UpdateData(true); });
    OnClicked(IDC_STRUCT_SUMMARY, [this] {
        CSummaryDlg summary(CSummaryDlg::MODE_STRUCTURE, m_hEntry, m_pDocument, m_tree);
        summary.DoModal();
    });
    OnClicked(IDC_ITEM_ACCEPT, [this] { OnAccept(); });
}

void CStructureDlg::DoDataExchange(CDataExchange* pDX) {
    CItemEditorDlg::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_ITEM_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
    DDX_Text(pDX, IDC_STRUCT_KIND, m_strKind);
    DDX_Text(pDX, IDC_STRUCT_TOTAL, m_strTotal);
    for (std::size_t i = 0; i < kArms.size(); ++i) {
        DDX_Text(pDX, kArms[i].strengthId, m_strStrengths[i]);
        DDX_Text(pDX, kArms[i].costId, m_strPartialCosts[i]);
    }
}

bool CStructureDlg::OnInitDialog() {
    CItemEditorDlg::OnInitDialog();
    ComputeFigures();
    Reset();
    return true;
}

void CStructureDlg::ComputeFigures() {
    const CStructureItem& s = m_structure;
    m_strKind = s.m_pKind ? std::string(s.m_pKind->m_strName) : std::string();
    m_strModifier = Figure(s.m_pType ? s.m_pType->m_dCostModifier + 1.0 : 0.0);
    m_strCost = Figure(s.Cost());
    m_strTotal = Figure(s.Aggregate(m_tree, m_hEntry, CATEGORY_ALL, MEASURE_COST));
    for (std::size_t i = 0; i < kArms.size(); ++i) {
        const CArmRow& arm = kArms[i];
        m_strStrengths[i] = WholeNumber(s.Aggregate(m_tree, m_hEntry, arm.category, arm.measure));
        m_strPartialCosts[i] = Figure(s.Aggregate(m_tree, m_hEntry, arm.category, MEASURE_COST));
    }
}

void CStructureDlg::Reset() {
    m_strName = m_structure.m_strName;
    UpdateData(false);
}

void CStructureDlg::OnAccept() {
    if (!UpdateData(true)) {
        return;
    }
    std::unique_ptr<COobItem> edited = m_structure.Clone();
    edited->m_strName = m_strName;
    Finish(std::move(edited));
}

CStructureItem StructureOfArmy(const CArmyItem& army) {
    CStructureItem structure;
    CopyRecords(army, structure);
    return structure;
}

std::unique_ptr<CArmyItem> ArmyOfStructure(const CArmyItem& army, const COobItem& edited) {
    auto result = std::make_unique<CArmyItem>(army);
    result->m_strName = edited.m_strName;
    return result;
}
