#include "model/ContainerTotals.h"

#include "base/HtmlText.h"
#include "base/LineWriter.h"
#include "base/NumberText.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

namespace {

int ClassOf(const COobItem& item) {
    return item.m_pBaseType ? item.m_pBaseType->ClassCode() : 0;
}

void Add(CContainerTotals& totals, int itemClass, double men, double cost) {
    switch (itemClass) {
        case 1:
            totals.infantry += men;
            break;
        case 2:
            totals.cavalry += men;
            break;
        case 3:
            totals.artillery += men;
            break;
        default:
            break;
    }
    totals.cost += cost;
}

}  // namespace

CContainerTotals TotalsOf(const CTreeStore& tree, HTREEITEM entry) {
    const COobItem& item = *ItemOf(tree, entry);
    return {item.Aggregate(tree, entry, CATEGORY_INFANTRY, MEASURE_MEN),
            item.Aggregate(tree, entry, CATEGORY_CAVALRY, MEASURE_MEN),
            item.Aggregate(tree, entry, CATEGORY_ARTILLERY, MEASURE_MEN),
            item.Aggregate(tree, entry, CATEGORY_ALL, MEASURE_COST)};
}

std::vector<CContainerTotals> AllTotals(const CTreeStore& tree) {
    std::vector<CContainerTotals> totals;
    totals.reserve(tree.GetCount());
    struct Open {
        std::size_t index;
        int depth;
    };
    std::vector<Open> open;  // the entry's ancestors still being summed, and itself
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        while (!open.empty() && open.back().depth >= walk.Depth()) {
            open.pop_back();
        }
        const COobItem* item = ItemOf(tree, walk.Current());
        open.push_back({totals.size(), walk.Depth()});
        totals.emplace_back();
        if (!item) {
            continue;
        }
        const int itemClass = ClassOf(*item);
        const double men = itemClass >= 1 && itemClass <= 3 ? item->Men() : 0.0;
        const double cost = item->Cost();
        for (const Open& ancestor : open) {
            Add(totals[ancestor.index], itemClass, men, cost);
        }
    }
    return totals;
}

void AppendContainerHtml(std::string& out, std::string_view name, const CContainerTotals& totals,
                         int flags) {
    // The tags with the four parts' labels take under 200 characters.
    constexpr std::size_t kTagsRoom = 200;
    CLineWriter line(out, kTagsRoom + kEscapedRoom * name.size() + 4 * kGeneralRoom);
    line.Text("<BIG><B><U>").Escaped(name).Text("</U></B></BIG> <SMALL>(");
    bool first = true;
    auto part = [&line, &first](std::string_view label, double value) {
        if (!first) {
            line.Text(", ");
        }
        first = false;
        line.Text(label).Text(" <B>").General(value).Text("</B>");
    };
    if (totals.infantry != 0.0) {
        part("Infantry", totals.infantry);
    }
    if (totals.cavalry != 0.0) {
        part("Cavalry", totals.cavalry);
    }
    if (totals.artillery != 0.0) {
        part("Artillery", totals.artillery);
    }
    if (flags & HTML_COSTS) {
        part("Cost", totals.cost);
    }
    line.Text(")</SMALL>");
}
