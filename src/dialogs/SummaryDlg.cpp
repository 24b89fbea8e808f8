#include "dialogs/SummaryDlg.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/ContainerItems.h"
#include "model/OobDocument.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
struct CSummaryRow {
    int category;
    int measure;  // what the effective cost is per: leaders counted, men or cannons
    int share, bar, effective, ofBase;
    int baseType;  // the reference base type's position in the game data's list
};

constexpr std::array<CSummaryRow, 5> kRows = {{
    {CATEGORY_LEADERS, MEASURE_COUNT, IDC_SUM_LEADERS_SHARE, IDC_SUM_LEADERS_BAR,
     IDC_SUM_LEADERS_EFFECTIVE, IDC_SUM_LEADERS_OF_BASE, 3},
    {CATEGORY_INFANTRY, MEASURE_MEN, IDC_SUM_INFANTRY_SHARE, IDC_SUM_INFANTRY_BAR,
     IDC_SUM_INFANTRY_EFFECTIVE, IDC_SUM_INFANTRY_OF_BASE, 0},
    {CATEGORY_CAVALRY, MEASURE_MEN, IDC_SUM_CAVALRY_SHARE, IDC_SUM_CAVALRY_BAR,
     IDC_SUM_CAVALRY_EFFECTIVE, IDC_SUM_CAVALRY_OF_BASE, 1},
    {CATEGORY_ARTILLERY, MEASURE_MEN, IDC_SUM_ARTILLERY_SHARE, IDC_SUM_ARTILLERY_BAR,
     IDC_SUM_ARTILLERY_EFFECTIVE, IDC_SUM_ARTILLERY_OF_BASE, 2},
    {CATEGORY_SUPPLY, MEASURE_MEN, IDC_SUM_SUPPLY_SHARE, IDC_SUM_SUPPLY_BAR, -1, -1, -1},
}};
constexpr std::size_t kWithEffective = 4;

std::string Format(const char* format, double value) {
    char text[512];  // "%.3f" of the largest double needs some 320 characters
    std::snprintf(text, sizeof text, format, value);
    return text;
}

// The base types are taken by their place in the game data's list, whatever their classes.
const CBaseTypeRecord* NthBaseType(const COobDocument* document, int position) {
    const CGameDatabase* database = document ? document->Database() : nullptr;
    CDataListNode* node = database ? database->m_BaseTypes.Head() : nullptr;
    for (int i = 0; node && i < position; ++i) {
        node = node->m_pNext;
    }
    return node ? static_cast<const CBaseTypeRecord*>(node->m_pPayload.get()) : nullptr;
}
}  // namespace

CSummaryDlg::CSummaryDlg(std::uint16_t mode, HTREEITEM entry, const COobDocument* document,
                         const CTreeStore& tree)
    : CDialog(DialogResource(IDD_SUMMARY)),
      m_nMode(mode),
      m_hCurrent(entry),
      m_pDocument(document),
      m_tree(tree) {
    OnClicked(IDC_SUM_NEXT, [this] { OnNext(); });
    OnClicked(IDC_SUM_PREV, [this] { OnPrevious(); });
    OnClicked(IDC_SUM_ACCEPT, [this] { EndDialog(0); });
}

void CSummaryDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_SUM_NAME, m_strName);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        DDX_Text(pDX, kRows[i].share, m_strShares[i]);
    }
    for (std::size_t i = 0; i < kWithEffective; ++i) {
        DDX_Text(pDX, kRows[i].effective, m_strEffective[i]);
        DDX_Text(pDX, kRows[i].ofBase, m_strOfBase[i]);
    }
}

// The armies' summary starts on the first top-level entry whatever it is, as stepping back with
// "<-" may reach any entry; only "->" keeps to armies.
bool CSummaryDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    if (m_nMode == MODE_ARMIES) {
        m_hCurrent = m_tree.GetRootItem();
    } else {
        GetDlgItem(IDC_SUM_PREV)->EnableWindow(false);
        GetDlgItem(IDC_SUM_NEXT)->EnableWindow(false);
    }
    Compute();
    return true;
}

// Without an entry (an empty tree) every text stays empty and no bar is shown.
void CSummaryDlg::Compute() {
    const COobItem* item = m_hCurrent ? ItemOf(m_tree, m_hCurrent) : nullptr;
    if (!item) {
        UpdateData(false);
        return;
    }
    m_strName = item->m_strName;
    const double total = item->Aggregate(m_tree, m_hCurrent, CATEGORY_ALL, MEASURE_COST);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const CSummaryRow& row = kRows[i];
        const double cost = item->Aggregate(m_tree, m_hCurrent, row.category, MEASURE_COST);
        // A subtree that costs nothing has no shares: each row reads 0.0 % with an empty bar
        // rather than the result of dividing by zero.
        const double share = total != 0.0 ? cost / total : 0.0;
        m_strShares[i] = Format("%.1f %%", share * 100.0);
        ShowBar(row.bar, share);
        if (i >= kWithEffective) {
            continue;
        }
        const double n = item->Aggregate(m_tree, m_hCurrent, row.category, row.measure);
        m_strEffective[i].clear();
        m_strOfBase[i].clear();
        if (n == 0.0) {
            continue;
        }
        const double effective = cost / n;
        m_strEffective[i] = Format("%.3f ", effective);
        // Game data with fewer base types than the rows refer to, or a reference base type that
        // costs nothing, gives no percentage instead of a made-up one.
        const CBaseTypeRecord* base = NthBaseType(m_pDocument, row.baseType);
        if (base && base->m_dBaseCost != 0.0) {
            m_strOfBase[i] = Format("%.1f %% ", effective / base->m_dBaseCost * 100.0);
        }
    }
    UpdateData(false);
}

// The bar keeps within its frame: a share below 0 or not a number (costs made negative by the
// game data) gives an empty bar, one above 1 a full one.
void CSummaryDlg::ShowBar(int barId, double share) {
    const CRect frame = GetDlgItem(IDC_SUM_FRAME)->GetClientRect();
    const double fraction = std::isnan(share) ? 0.0 : std::clamp(share, 0.0, 1.0);
    CWnd* bar = GetDlgItem(barId);
    const CRect at = bar->GetWindowRect();
    const int width = static_cast<int>(frame.Width() * fraction);
    bar->MoveWindow(CRect{at.left, at.top, at.left + width, at.top + frame.Height()});
    bar->ShowWindow(true);
    bar->SendToBack();
}

void CSummaryDlg::OnNext() {
    const HTREEITEM next = m_hCurrent ? m_tree.GetNextSiblingItem(m_hCurrent) : nullptr;
    const COobItem* item = next ? ItemOf(m_tree, next) : nullptr;
    if (item && item->m_nType == TYPE_ARMY) {
        m_hCurrent = next;
        Compute();
    }
}

void CSummaryDlg::OnPrevious() {
    if (const HTREEITEM previous = m_hCurrent ? m_tree.GetPrevSiblingItem(m_hCurrent) : nullptr) {
        m_hCurrent = previous;
        Compute();
    }
}
