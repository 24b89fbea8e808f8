// The text listings: the cost, leader and key reports, one line an entry, names indented by depth.
#include <vector>

#include "base/HtmlText.h"
#include "base/NumberText.h"
#include "base/TreeWalk.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/ContainerTotals.h"
#include "model/LeaderItem.h"
#include "model/ReportParts.h"

namespace {

// What a typical entry takes in each report, line end included: the text is reserved for it once
// rather than copied as it grows (a larger one still grows as usual).
constexpr std::size_t kTypicalListing = 72;

std::string_view KindText(const COobItem* item) {
    return item && item->m_pKind ? std::string_view(item->m_pKind->m_strName) : std::string_view();
}

// printf's "%-<width>s": the text, then blanks up to width; a longer text is not cut.
void AppendPadded(std::string& out, std::string_view text, std::size_t width) {
    out += text;
    if (text.size() < width) {
        out.append(width - text.size(), ' ');
    }
}

// Four blanks per depth level, then the name: the indented last column of the text reports.
void AppendIndentedName(std::string& out, int depth, const COobItem* item) {
    out.append(static_cast<std::size_t>(4 * depth), ' ');
    if (item) {
        out += item->m_strName;
    }
    out += kLineEnd;
}

void AppendRule(std::string& out, std::size_t stars) {
    out.append(stars, '*');
    out += kLineEnd;
}

// The column titles between two rules of stars, at the head of each army's part.
void AppendTitles(std::string& out, std::size_t stars, std::string_view titles) {
    AppendRule(out, stars);
    AppendLine(out, titles);
    AppendRule(out, stars);
}

bool IsDepot(const COobItem* item) {
    return item && item->m_nType == TYPE_DEPOT;
}
bool IsArmy(const COobItem* item) {
    return item && item->m_nType == TYPE_ARMY;
}

}  // namespace

void AppendCostReport(std::string& out, const CTreeStore& tree) {
    out.reserve(out.size() + tree.GetCount() * kTypicalListing);
    AppendLine(out, "Cost Report created by Harnwick");
    const std::vector<CContainerTotals> totals = AllTotals(tree);
    std::size_t index = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step(), ++index) {
        const COobItem* item = ItemOf(tree, walk.Current());
        if (IsArmy(item)) {
            AppendLine(out, "");
            AppendTitles(out, 32, "       Cost : Type        : Name");
        }
        if (IsDepot(item)) {
            break;
        }
        // A container's figure is its subtree's total cost, another item's its own cost:
        // what Aggregate gives for each.
        const double cost = !item ? 0.0 : IsContainer(*item) ? totals[index].cost : item->Cost();
        out += ' ';
        AppendFixed(out, cost, 2, 10);
        out += " : ";
        AppendPadded(out, KindText(item), 11);
        out += " : ";
        AppendIndentedName(out, walk.Depth(), item);
    }
}

void AppendLeaderReport(std::string& out, const CTreeStore& tree) {
    AppendLine(out, "Leader Report created by Harnwick");
    int n = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        const COobItem* item = ItemOf(tree, walk.Current());
        if (IsArmy(item)) {
            AppendLine(out, "");
            AppendLine(out, "Army : " + item->m_strName);
            AppendTitles(out, 45, " No  : (X,Y)   : Cm : Ld : Commands    : Name");
        }
        if (IsDepot(item)) {
            break;
        }
        if (!item || item->m_nType != TYPE_LEADER) {
            continue;
        }
        const auto* leader = static_cast<const CLeaderItem*>(item);
        const char command =
            CommandLetter(leader->m_pType ? std::string_view(leader->m_pType->m_strType) : "");
        // " %-3d : (%-2d,%-2d) : %c  : %c  : "
        out += ' ';
        AppendLeftAligned(out, n, 3);
        out += " : (";
        AppendLeftAligned(out, n % 12 + 1, 2);
        out += ',';
        AppendLeftAligned(out, n / 12 + 1, 2);
        out += ") : ";
        out += command;
        out += "  : ";
        out += GradeLetter(leader->m_nLeadership);
        out += "  : ";
        // A leader at the top level commands no echelon: its column stays blank.
        const HTREEITEM parent = tree.GetParentItem(walk.Current());
        AppendPadded(out, parent ? KindText(ItemOf(tree, parent)) : std::string_view(), 11);
        out += " : ";
        AppendIndentedName(out, walk.Depth(), item);
        ++n;
    }
}

void AppendKeyReport(std::string& out, const CTreeStore& tree) {
    out.reserve(out.size() + tree.GetCount() * kTypicalListing);
    AppendLine(out, "Key Report created by Harnwick");
    // One counter per depth, and the length of the key up to each depth: an entry's key is its
    // parent's with its own counter added. The tables grow with the tree, so entries deeper than
    // ten levels (which only the editing commands can make) get keys too.
    std::vector<int> counters;
    std::vector<std::size_t> keyLengths;
    std::string key;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        const COobItem* item = ItemOf(tree, walk.Current());
        if (IsArmy(item)) {
            AppendLine(out, "");
            AppendTitles(out, 37, " Key            : Type        :  Name");
        }
        const std::size_t depth = static_cast<std::size_t>(walk.Depth());
        counters.resize(depth + 1, 0);
        keyLengths.resize(depth + 1, 0);
        ++counters[depth];
        key.resize(depth == 0 ? 0 : keyLengths[depth - 1]);
        AppendNumber(key, counters[depth]);
        key += '.';
        keyLengths[depth] = key.size();
        AppendPadded(out, key, 15);
        out += " : ";
        AppendPadded(out, KindText(item), 11);
        out += " : ";
        AppendIndentedName(out, walk.Depth(), item);
    }
}
