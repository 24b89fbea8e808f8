// The order-of-battle reader, its writer, the copy buffer and the reports, on the sample game
// data: any file reads into a consistent tree, every report is made from it, and what the
// writer makes of the tree is a fixed point of reading and writing.
#include <cstddef>
#include <cstdint>

#include "FuzzSupport.h"
#include "base/LineStore.h"
#include "base/Result.h"
#include "model/LeaderItem.h"
#include "model/OobItem.h"
#include "model/Reports.h"

namespace {

void MakeReports(COobSession& session) {
    NumberLeaders(session.tree);
    for (int flags = 0; flags <= (HTML_COSTS | HTML_IMAGES); ++flags) {
        ReportText(session.tree, ReportKind::kHtml, flags);
    }
    ReportText(session.tree, ReportKind::kCost);
    ReportText(session.tree, ReportKind::kLeader);
    ReportText(session.tree, ReportKind::kKey);
}

// The copy buffer holds the same lines without indentation; pasting them back and copying again
// must give the same lines.
void RequireCopyFixedPoint(COobSession& session) {
    CLineStore copied;
    session.document.m_writer.CopyToList(session.tree, nullptr, copied);
    COobSession pasted;
    pasted.document.m_reader.PasteFromList(pasted.tree, TVI_ROOT, TVI_LAST, copied);
    RequireConsistentTree(pasted.tree);
    CLineStore again;
    pasted.document.m_writer.CopyToList(pasted.tree, nullptr, again);
    Require(again.GetCount() == copied.GetCount(), "pasted lines copy to a different count");
    for (int i = 0; i < copied.GetCount(); ++i) {
        Require(again.GetText(i) == copied.GetText(i), "pasted lines copy differently");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    COobSession first;
    Require(first.document.LoadTree(WriteScratchFile("input.oob", data, size), first.tree) ==
                RESULT_DONE,
            "the input file does not open");
    RequireConsistentTree(first.tree);
    MakeReports(first);

    // Reading takes any input, damaged or not, so the first read need not come back from its
    // own text: what the writer made of it must come back unchanged, and the tree itself too
    // whenever only armies and structures have children. A "Begin" after a unit in a damaged
    // file hangs the next items under the unit; the writer puts a "Begin" after any entry with
    // children, but such a tree is outside the format, which promises blocks only after armies
    // and structures, so it is held to the fixed point alone; so is a tree whose writing cuts a
    // line, as what was cut off does not come back.
    const std::string written = first.document.m_writer.ToText(first.tree);
    const bool cut = HasCutLine(first.tree);
    const auto second = RequireOobFixedPoint(written, cut);
    if (!HasChildrenOutsideContainers(first.tree) && !cut) {
        Require(TreeOutline(second->tree) == TreeOutline(first.tree),
                "an order of battle does not read back as the same tree");
    }
    RequireCopyFixedPoint(first);
    return 0;
}
