// Template insertion of any template file into the sample frontier order of battle, under any
// parent, after any sibling, at any ordinal. Input: the parent's choice, the sibling's choice,
// the ordinal, then the template file. The tree stays consistent and the writer's text of it
// is a fixed point of reading and writing.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "FuzzSupport.h"
#include "base/Result.h"

namespace {

// Every entry in pre-order.
void CollectEntries(HTREEITEM entry, std::vector<HTREEITEM>& entries) {
    for (std::size_t row = 0; row < entry->ChildCount(); ++row) {
        entries.push_back(entry->Child(row));
        CollectEntries(entry->Child(row), entries);
    }
}

// 0 the top level, else an entry of the tree.
HTREEITEM ChooseParent(const std::vector<HTREEITEM>& entries, std::uint8_t choice) {
    return choice == 0 ? TVI_ROOT : entries[(choice - 1) % entries.size()];
}

// 0 first, 1 last, else any entry of the tree, a child of the parent or not.
HTREEITEM ChooseAfter(const std::vector<HTREEITEM>& entries, std::uint8_t choice) {
    if (choice < 2) {
        return choice == 0 ? TVI_FIRST : TVI_LAST;
    }
    return entries[(choice - 2) % entries.size()];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) {
        return 0;
    }
    COobSession session;
    Require(session.document.LoadTree(WriteScratchFile("frontier.oob", SampleText("frontier.oob")),
                                      session.tree) == RESULT_DONE,
            "the sample order of battle does not open");
    std::vector<HTREEITEM> entries;
    CollectEntries(session.tree.HiddenRoot(), entries);
    const HTREEITEM parent = ChooseParent(entries, data[0]);
    const HTREEITEM after = ChooseAfter(entries, data[1]);
    const int ordinal = static_cast<std::int8_t>(data[2]);

    const std::size_t before = session.tree.GetCount();
    Require(session.document.m_reader.InsertTemplate(
                WriteScratchFile("input.tpl", data + 3, size - 3), session.tree, parent, after,
                ordinal) == RESULT_DONE,
            "the template file does not open");
    RequireConsistentTree(session.tree);
    Require(session.tree.GetCount() >= before, "inserting a template removes entries");
    RequireOobFixedPoint(session.document.m_writer.ToText(session.tree), HasCutLine(session.tree));
    return 0;
}
