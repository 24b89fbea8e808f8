#include "model/OobReader.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <memory>

#include "base/Result.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ItemFactory.h"
#include "model/ItemLineReader.h"

namespace {

// Entries above entry, itself included: 0 for the root, 1 for a top-level entry.
int DepthOf(const CTreeStore& tree, HTREEITEM entry) {
    int depth = 0;
    for (HTREEITEM e = entry; e && e != TVI_ROOT; e = tree.GetParentItem(e)) {
        ++depth;
    }
    return depth;
}

// The state of a reader that inserts under parent, which may itself be nested.
COobReaderState NestedState(const CTreeStore& tree, HTREEITEM parent, HTREEITEM insertAfter) {
    COobReaderState state(parent, insertAfter);
    state.deepest = static_cast<std::int16_t>(COobReaderState::kLevels - 1 - DepthOf(tree, parent));
    return state;
}

}  // namespace

COobReaderState::COobReaderState(HTREEITEM parent, HTREEITEM after) : insertAfter(after) {
    // Every slot starts as the caller's parent, so that an item at a level whose block was
    // never opened by a container (a damaged file) still hangs on an entry that exists.
    parents.fill(parent);
}

COobReader::COobReader(CGameDatabase* database) : m_pDatabase(database) {
    m_tokenizer.SetDelimiter(' ');
}

std::int16_t COobReader::ReadRawLine(std::string_view raw, CTreeStore& tree, COobReaderState& state,
                                     bool templateEnds) {
    ++m_nLineNumber;
    // raw stays as it is until the line has been read.
    m_tokenizer.ViewLine(raw);
    if (templateEnds && m_tokenizer.Line() == "</T>") {
        return READ_TEMPLATE;
    }
    return ReadNormalisedLine(tree, state);
}

std::int16_t COobReader::ReadNormalisedLine(CTreeStore& tree, COobReaderState& state) {
    const std::string_view line = m_tokenizer.Line();
    if (line == "Begin") {
        // Blocks nested deeper than the parents table are still counted, so that their "End"
        // lines close them, but the level stops where a 16-bit count would wrap.
        if (state.level < INT16_MAX) {
            ++state.level;
        }
        return READ_BLOCK;
    }
    if (line == "End") {
        // An "End" with no open block (more "End" than "Begin") closes nothing.
        if (state.level > 1) {
            --state.level;
        }
        return READ_BLOCK;
    }
    if (line.size() <= 2) {
        return READ_OTHER;
    }
    // Items nested deeper than the parents table, or than a file can hold, are passed over.
    if (state.level > state.deepest) {
        PassOver(line);
        return READ_OTHER;
    }
    CKindRecord* kind = FindKindInLine(m_pDatabase, line);
    std::unique_ptr<COobItem> item = kind ? CreateItem(kind->TypeCode()) : nullptr;
    if (!item) {
        PassOver(line);
        return READ_OTHER;
    }
    item->m_pDatabase = m_pDatabase;
    item->m_pKind = kind;
    CItemLineReader reader(m_tokenizer, kind);
    item->ReadFields(reader);
    // A line cut short before the names of its records (a unit's type or weapon, a gunboat's
    // weapon) is passed over: written back, its numbers would move into the empty name fields.
    if (reader.WordMissing()) {
        PassOver(line);
        return READ_OTHER;
    }
    HTREEITEM entry =
        tree.InsertItem(std::move(item), state.parents[state.level - 1], state.insertAfter);
    if (!entry) {
        return READ_OTHER;
    }
    state.parents[state.level] = entry;
    state.insertAfter = TVI_LAST;
    return READ_OTHER;
}

void COobReader::PassOver(std::string_view line) {
    if (m_onPassedOver) {
        m_onPassedOver(m_nLineNumber, std::string(line));
    }
}

int COobReader::LoadTree(const std::string& path, CTreeStore& tree) {
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return RESULT_CANNOT_OPEN;
    }
    m_nLineNumber = 0;
    COobReaderState state(TVI_ROOT, TVI_LAST);
    {
        CTreeStore::CBulkChange bulk(tree);
        // Lines are taken up to their line feed; the characters after the last line feed are
        // not read, as a line-by-line reader would meet the end of the file there. The file is
        // read a chunk at a time, so that its text stays in the cache while its lines are read.
        constexpr std::size_t kChunk = 64 * 1024;
        // A line split between chunks waits here. Two characters beyond what a line keeps are
        // enough to read it as the whole line reads: a longer line is cut at the same place.
        constexpr std::size_t kHeld = kMaxLineLength + 2;
        const auto chunk = std::make_unique_for_overwrite<char[]>(kChunk);
        std::string held;
        while (in) {
            in.read(chunk.get(), kChunk);
            const std::size_t size = static_cast<std::size_t>(in.gcount());
            const char* next = chunk.get();
            const char* const end = next + size;
            while (const auto* feed = static_cast<const char*>(
                       std::memchr(next, '\n', static_cast<std::size_t>(end - next)))) {
                std::string_view line(next, static_cast<std::size_t>(feed - next));
                if (!held.empty()) {
                    held.append(line.substr(0, kHeld - std::min(held.size(), kHeld)));
                    line = held;
                }
                ReadRawLine(TrimLine(line), tree, state, true);
                held.clear();
                next = feed + 1;
            }
            const std::string_view rest(next, static_cast<std::size_t>(end - next));
            held.append(rest.substr(0, kHeld - std::min(held.size(), kHeld)));
        }
    }
    tree.SelectItem(tree.GetRootItem());
    return RESULT_DONE;
}

int COobReader::InsertTemplate(const std::string& path, CTreeStore& tree, HTREEITEM parent,
                               HTREEITEM insertAfter, int ordinal) {
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return RESULT_CANNOT_OPEN;
    }
    m_nLineNumber = 0;
    std::string line;
    for (int passed = 0; passed < ordinal; ++m_nLineNumber) {
        const LineRead read = ReadTextLine(in, line);
        if (read == LineRead::End) {
            break;
        }
        // The end tag is taken as the block reader below takes it, blanks and tabs around it
        // dropped: else an indented tag would end a block there but not be counted here.
        m_tokenizer.SetLine(line);
        if (m_tokenizer.Line() == "</T>") {
            ++passed;
        }
    }
    COobReaderState state = NestedState(tree, parent, insertAfter);
    // A last line without a line break is not read.
    while (ReadTextLine(in, line) == LineRead::Line) {
        if (ReadRawLine(line, tree, state, true) == READ_TEMPLATE) {
            break;
        }
    }
    return RESULT_DONE;
}

void COobReader::PasteFromList(CTreeStore& tree, HTREEITEM parent, HTREEITEM insertAfter,
                               const CLineStore& list) {
    COobReaderState state = NestedState(tree, parent, insertAfter);
    for (int i = 0; i < list.GetCount(); ++i) {
        const std::string& text = list.GetText(i);
        if (!text.empty()) {
            ReadRawLine(text, tree, state, false);
        }
    }
}
