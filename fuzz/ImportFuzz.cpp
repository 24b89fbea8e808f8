// The game-file import of any game file into the sample order of battle, with any choice of
// options. Input: the options byte, then the game file. Afterwards the tree is consistent, the
// options did what they say, and every entry's position key finds that entry.
#include <cstddef>
#include <cstdint>
#include <string>

#include "FuzzSupport.h"
#include "base/Result.h"
#include "model/ContainerItems.h"
#include "model/GameImport.h"
#include "model/OobItem.h"
#include "model/Reports.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

// The choices the options dialog offers: missing entries skipped, removed or set to 0, each
// with or without removing empty structures.
constexpr int kChoices[] = {
    0,
    IMPORT_REMOVE_MISSING,
    IMPORT_ZERO_MISSING,
    IMPORT_REMOVE_EMPTY,
    IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY,
    IMPORT_ZERO_MISSING | IMPORT_REMOVE_EMPTY,
};

bool IsCounted(const COobItem& item) {
    return item.m_nType == TYPE_UNIT || item.m_nType == TYPE_LEADER || item.m_nType == TYPE_SUPPLY;
}

// Checks what the options promise on the subtree under entry, and that the key of each entry
// (its rows counted from 1, joined by full stops) finds it.
void CheckEntries(COobSession& session, HTREEITEM entry, const std::string& key, int flags) {
    const CTreeStore& tree = session.tree;
    for (std::size_t row = 0; row < entry->ChildCount(); ++row) {
        const HTREEITEM child = entry->Child(row);
        const std::string childKey = key + std::to_string(row + 1) + '.';
        Require(FindItemByKey(childKey, tree) == child, "an entry's key finds another entry");
        const COobItem& item = *ItemOf(tree, child);
        const bool missing = IsCounted(item) && item.m_nSeen == 0;
        Require(!(missing && (flags & IMPORT_REMOVE_MISSING)), "a missing entry is kept");
        if (missing && (flags & IMPORT_ZERO_MISSING)) {
            const int strength =
                item.m_nType == TYPE_UNIT     ? static_cast<const CUnitItem&>(item).m_nStrength
                : item.m_nType == TYPE_SUPPLY ? static_cast<const CSupplyItem&>(item).m_nSupply
                                              : 0;
            Require(strength == 0, "a missing entry keeps its strength");
        }
        if ((flags & IMPORT_REMOVE_EMPTY) && item.m_nType == TYPE_STRUCTURE) {
            Require(item.Aggregate(tree, child, CATEGORY_ALL, MEASURE_MEN) != 0.0,
                    "an empty structure is kept");
        }
        CheckEntries(session, child, childKey, flags);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) {
        return 0;
    }
    const int flags = kChoices[data[0] % std::size(kChoices)];
    COobSession session;
    Require(session.document.LoadTree(WriteScratchFile("valdoria.oob", SampleText("valdoria.oob")),
                                      session.tree) == RESULT_DONE,
            "the sample order of battle does not open");
    Require(ImportGameData(WriteScratchFile("input.btl", data + 1, size - 1), session.tree,
                           flags) == RESULT_DONE,
            "the game file does not open");
    RequireConsistentTree(session.tree);
    CheckEntries(session, session.tree.HiddenRoot(), "", flags);
    session.document.m_writer.ToText(session.tree);
    ReportText(session.tree, ReportKind::kCost);
    ReportText(session.tree, ReportKind::kKey);
    return 0;
}
