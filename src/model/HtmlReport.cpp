// The HTML report: every entry's fragment, each container's children in a nested list.
#include <vector>

#include "base/TreeWalk.h"
#include "model/ContainerItems.h"
#include "model/ContainerTotals.h"
#include "model/ReportParts.h"

namespace {

// What a typical entry takes, line end included: the text is reserved for it once rather than
// copied as it grows (a larger one still grows as usual).
constexpr std::size_t kTypicalHtml = 128;

}  // namespace

void AppendHtmlReport(std::string& out, const CTreeStore& tree, int flags) {
    out.reserve(out.size() + tree.GetCount() * kTypicalHtml);
    AppendLine(out, "<HTML><HEAD><TITLE>Order of Battle</TITLE></HEAD>");
    AppendLine(out, "<BODY><TT><P ALIGN=center>HTML Report created by Harnwick</P>");
    AppendLine(out, "<DL>");
    const std::vector<CContainerTotals> totals = AllTotals(tree);
    std::size_t index = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); ++index) {
        const HTREEITEM entry = walk.Current();
        const COobItem* item = ItemOf(tree, entry);
        if (item) {
            if (IsContainer(*item)) {
                static_cast<const CStructureItem*>(item)->AppendHtml(out, totals[index], flags);
            } else {
                item->ToHtml(out, tree, entry, flags);
            }
        }
        out += kLineEnd;
        if (item && IsContainer(*item)) {
            AppendLine(out, "<DL>");
            if (entry->ChildCount() == 0) {
                AppendLine(out, "</DL>");
            }
        }
        const int result = walk.Step();
        for (int i = result; i < 0; ++i) {
            AppendLine(out, "</DL>");
        }
    }
    AppendLine(out, "</DL></TT></BODY></HTML>");
}
