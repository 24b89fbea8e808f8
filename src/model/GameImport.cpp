#include "model/GameImport.h"

#include <array>
#include <fstream>
#include <vector>

#include "base/LineTokenizer.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "model/ContainerItems.h"
#include "model/EditCommands.h"
#include "model/ItemLineReader.h"
#include "model/OobWriter.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

constexpr int kHeaderLines = 9;
constexpr std::size_t kMaxKeyNumbers = 10;

bool IsCounted(const COobItem& item) {
    return item.m_nType == TYPE_UNIT || item.m_nType == TYPE_LEADER || item.m_nType == TYPE_SUPPLY;
}

// The strength of a unit or the supply points of a supply; none for other kinds.
std::int16_t* StrengthOf(COobItem& item) {
    if (item.m_nType == TYPE_UNIT) {
        return &static_cast<CUnitItem&>(item).m_nStrength;
    }
    if (item.m_nType == TYPE_SUPPLY) {
        return &static_cast<CSupplyItem&>(item).m_nSupply;
    }
    return nullptr;
}

void MarkSeen(const CTreeStore& tree, HTREEITEM entry) {
    if (COobItem* item = entry ? ItemOf(tree, entry) : nullptr) {
        item->m_nSeen = 1;
    }
}

// Record 1: the strength left to one entry. The first mention replaces what the item held
// before the import; further mentions add to it.
void ApplyStrength(COobItem& item, std::int16_t added) {
    if (std::int16_t* strength = StrengthOf(item)) {
        if (item.m_nSeen == 0) {
            item.m_nSeen = 1;
            *strength = 0;
        }
        *strength = static_cast<std::int16_t>(*strength + added);
    } else if (item.m_nType == TYPE_LEADER) {
        item.m_nSeen = 1;
    }
}

// The structures whose subtrees hold no men (their Aggregate of men is 0), found in one walk
// rather than one walk of each structure's subtree: an entry's men go to the innermost structure
// open above it, and a structure's total to the next one out when the walk leaves it. Men are
// whole numbers below 2^30 an item, so the totals of any order of battle under eight million
// entries are exact whatever the order of the sums. Inner structures come
// before the structures that hold them, so removing them in this order never removes an entry
// still to come.
std::vector<HTREEITEM> StructuresWithoutMen(const CTreeStore& tree) {
    struct Open {
        HTREEITEM entry;
        int depth;
        double men;
    };
    std::vector<Open> open;
    std::vector<HTREEITEM> empty;
    const auto closeFrom = [&open, &empty](int depth) {
        while (!open.empty() && open.back().depth >= depth) {
            const Open closed = open.back();
            open.pop_back();
            if (closed.men == 0.0) {
                empty.push_back(closed.entry);
            }
            if (!open.empty()) {
                open.back().men += closed.men;
            }
        }
    };
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        closeFrom(walk.Depth());
        const COobItem* item = ItemOf(tree, walk.Current());
        const double men = item ? item->Men() : 0.0;
        if (item && item->m_nType == TYPE_STRUCTURE) {
            open.push_back({walk.Current(), walk.Depth(), men});
        } else if (!open.empty()) {
            open.back().men += men;
        }
    }
    closeFrom(0);
    return empty;
}

// Keys that name no entry (a number beyond the last sibling, a level that does not exist) give
// none: the import then changes nothing for that line, and the tree stays as it was. The
// tokenizer is the caller's, set to '.': a game file names one key a line.
HTREEITEM FindItemByKey(std::string_view key, const CTreeStore& tree, CLineTokenizer& tokenizer) {
    tokenizer.SetLine(key);
    CItemLineReader reader(tokenizer, nullptr);
    std::array<std::int16_t, kMaxKeyNumbers> numbers;
    std::size_t count = 0;
    while (count < kMaxKeyNumbers && !reader.AtEnd()) {
        numbers[count++] = reader.Number<std::int16_t>();
    }
    // Moving k - 1 siblings on is a jump by rows: a game file names every unit, and a level may
    // hold hundreds of entries.
    HTREEITEM entry = tree.GetRootItem();
    for (std::size_t i = 0; i < count && entry; ++i) {
        if (numbers[i] > 1) {
            const CTreeEntry& parent = *entry->Parent();
            const std::size_t row = entry->Row() + static_cast<std::size_t>(numbers[i] - 1);
            entry = row < parent.ChildCount() ? parent.Child(row) : nullptr;
        }
        if (entry && i + 1 < count && numbers[i + 1] > 0) {
            entry = tree.GetChildItem(entry);
        }
    }
    return entry;
}

// The numbers of a position key are divided by dots.
struct CKeyTokenizer : CLineTokenizer {
    CKeyTokenizer() { SetDelimiter('.'); }
};

}  // namespace

HTREEITEM FindItemByKey(std::string_view key, const CTreeStore& tree) {
    CKeyTokenizer tokenizer;
    return FindItemByKey(key, tree, tokenizer);
}

int ImportGameData(const std::string& path, CTreeStore& tree, int flags) {
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return RESULT_CANNOT_OPEN;
    }
    CTreeStore::CBulkChange bulk(tree);
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        if (COobItem* item = ItemOf(tree, walk.Current())) {
            item->m_nSeen = 0;
        }
    }
    std::string line;
    for (int i = 0; i < kHeaderLines; ++i) {
        ReadTextLine(in, line);
    }
    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter(' ');
    CKeyTokenizer keyTokenizer;
    for (bool records = true; records;) {
        if (ReadTextLine(in, line) == LineRead::End) {
            break;
        }
        tokenizer.SetLine(line);
        CItemLineReader fields(tokenizer, nullptr);
        const int record = fields.Number<std::int16_t>();
        if (record == 1) {
            const HTREEITEM entry = FindItemByKey(fields.Word(), tree, keyTokenizer);
            for (int unused = 0; unused < 2; ++unused) {
                fields.Number<std::int16_t>();
            }
            const auto added = fields.Number<std::int16_t>();
            if (COobItem* item = entry ? ItemOf(tree, entry) : nullptr) {
                ApplyStrength(*item, added);
            }
        } else if (record == 2) {
            tokenizer.SeekField(10);
            const int count = StoreTruncated<std::int16_t>(tokenizer.ReadNumber());
            for (int i = 0; i < count && ReadTextLine(in, line) != LineRead::End; ++i) {
                MarkSeen(tree, FindItemByKey(line, tree, keyTokenizer));
            }
        } else {
            records = false;
        }
    }

    if (flags & (IMPORT_REMOVE_MISSING | IMPORT_ZERO_MISSING)) {
        for (CTreeWalk walk(tree, nullptr); !walk.Done();) {
            const HTREEITEM entry = walk.Current();
            COobItem* item = ItemOf(tree, entry);
            const bool missing = item && IsCounted(*item) && item->m_nSeen == 0;
            if (missing && (flags & IMPORT_REMOVE_MISSING)) {
                // Step past everything the entry holds before it goes: a damaged file can give
                // a unit children, and they go with it.
                walk.StepOver();
                tree.DeleteItem(entry);
                continue;
            }
            if (missing && (flags & IMPORT_ZERO_MISSING)) {
                if (std::int16_t* strength = StrengthOf(*item)) {
                    *strength = 0;
                }
            }
            walk.Step();
        }
    }

    if (flags & IMPORT_REMOVE_EMPTY) {
        for (const HTREEITEM entry : StructuresWithoutMen(tree)) {
            tree.DeleteItem(entry);
        }
    }
    return RESULT_DONE;
}

// The copy is a store of its own, so the tree, its history and its view never see the import.
CWriteResult ImportToFile(const CTreeStore& tree, const std::string& gameFile, int flags,
                          COobWriter& writer, const std::string& path) {
    CTreeStore copy;
    AppendCopy(tree, copy);
    if (ImportGameData(gameFile, copy, flags) != RESULT_DONE) {
        return {RESULT_CANNOT_OPEN, gameFile};
    }
    return writer.Save(path, copy);
}
