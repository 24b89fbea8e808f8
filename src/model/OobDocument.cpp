#include "model/OobDocument.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>

#include "base/FileWriter.h"
#include "base/LineCut.h"
#include "base/LineTokenizer.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/ItemFactory.h"
#include "model/ItemLineReader.h"
#include "model/LeaderItem.h"

namespace {

// Walks the subtree of start (the whole tree when start is none) and gives every line of its
// order-of-battle text, with the depth it is indented by, as an item (whose ToText is the line)
// or a text: each item's line; "Begin" after a
// container, and "End" at once when it has no children; one "End" per block closed when the
// walk climbs. Blocks still open at the end of the tree get no "End": the reader closes them
// at the end of the file. A subtree never closes blocks above its start.
template <typename Emit>
void WalkLines(const CTreeStore& tree, HTREEITEM start, Emit emit) {
    const int offset = start ? -1 : 0;
    for (CTreeWalk walk(tree, start); !walk.Done();) {
        const int level = walk.Depth();
        const COobItem* item = ItemOf(tree, walk.Current());
        const bool childless = walk.Current()->ChildCount() == 0;
        // Armies and structures always open a block. Any other entry opens one only when it
        // has children, which only a damaged file gives it: without the "Begin", its children
        // would come back as its siblings, and the "End" lines of the climb after them would
        // close blocks that were never opened.
        const bool opensBlock = item && (IsContainer(*item) || !childless);
        if (item) {
            emit(level, item, {});
        }
        if (opensBlock) {
            emit(level + 1, nullptr, "Begin");
            if (childless) {
                emit(level + 1, nullptr, "End");
            }
        }
        const int result = walk.Step();
        if (result < 0) {
            for (int i = 0; i >= result + 1; --i) {
                emit(level + i, nullptr, "End");
                if (level + i + offset - 1 < 0) {
                    break;
                }
            }
        }
    }
}

// A line of a typical order of battle, indentation and line end included: the text is reserved
// for it once rather than copied as it grows (a larger one still grows as usual).
constexpr std::size_t kTypicalLine = 48;

// Entries above entry, itself included: 0 for the root, 1 for a top-level entry.
int DepthOf(const CTreeStore& tree, HTREEITEM entry) {
    int depth = 0;
    for (HTREEITEM e = entry; e && e != TVI_ROOT; e = tree.GetParentItem(e)) {
        ++depth;
    }
    return depth;
}

}  // namespace

COobReaderState::COobReaderState(HTREEITEM parent, HTREEITEM after) : insertAfter(after) {
    // Every slot starts as the caller's parent, so that an item at a level whose block was
    // never opened by a container (a damaged file) still hangs on an entry that exists.
    parents.fill(parent);
}

COobDocument::COobDocument() {
    m_nType = TYPE_DOCUMENT;
    m_tokenizer.SetDelimiter(' ');
    m_keyTokenizer.SetDelimiter('.');
}

int COobDocument::WriteSubtree(std::string& out, const CTreeStore& tree, HTREEITEM start) {
    WalkLines(tree, start, [&out](int depth, const COobItem* item, std::string_view text) {
        const std::size_t lineStart = out.size();
        out.append(static_cast<std::size_t>(depth < 0 ? 0 : depth), '\t');
        if (item) {
            item->ToText(out);
        } else {
            out.append(text);
        }
        CutOverLongLine(out, lineStart, ' ');
        out.append(kLineEnd);
    });
    return RESULT_DONE;
}

int COobDocument::CopyToList(const CTreeStore& tree, HTREEITEM start, CLineStore& list) {
    list.ResetContent();
    WalkLines(tree, start, [&list](int, const COobItem* item, std::string_view text) {
        std::string line;
        if (item) {
            item->ToText(line);
        } else {
            line = text;
        }
        CutOverLongLine(line, 0, ' ');
        list.AddString(std::move(line));
    });
    return RESULT_DONE;
}

void COobDocument::AppendText(std::string& out, const CTreeStore& tree) {
    out.reserve(out.size() + tree.GetCount() * kTypicalLine);
    AppendNumber(out, m_pDatabase ? m_pDatabase->m_nOobHeader : 0);
    out += kLineEnd;
    WriteSubtree(out, tree, nullptr);
}

std::string COobDocument::ToText(const CTreeStore& tree) {
    std::string out;
    AppendText(out, tree);
    return out;
}

int COobDocument::Save(const std::string& path, const CTreeStore& tree) {
    m_strWritten.clear();
    AppendText(m_strWritten, tree);
    const int result = ReplaceFile(path, m_strWritten);
    if (result == RESULT_DONE) {
        m_strName = path;
    }
    return result;
}

std::int16_t COobDocument::ReadLine(std::istream& in, CTreeStore& tree, COobReaderState& state) {
    std::string line;
    // A last line without a line break is not read.
    if (ReadTextLine(in, line) != LineRead::Line) {
        return READ_END;
    }
    return ReadRawLine(line, tree, state, true);
}

std::int16_t COobDocument::ReadLineText(const std::string& text, CTreeStore& tree,
                                        COobReaderState& state) {
    if (text.empty()) {
        return READ_END;
    }
    return ReadRawLine(text, tree, state, false);
}

std::int16_t COobDocument::ReadRawLine(std::string_view raw, CTreeStore& tree,
                                       COobReaderState& state, bool templateEnds) {
    ++m_nLineNumber;
    // raw stays as it is until the line has been read.
    m_tokenizer.ViewLine(raw);
    if (templateEnds && m_tokenizer.Line() == "</T>") {
        return READ_TEMPLATE;
    }
    return ReadNormalisedLine(tree, state);
}

std::int16_t COobDocument::ReadNormalisedLine(CTreeStore& tree, COobReaderState& state) {
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
        LinePassedOver(std::string(line));
        return READ_OTHER;
    }
    CKindRecord* kind = FindKindInLine(m_pDatabase, line);
    std::unique_ptr<COobItem> item = kind ? CreateItem(kind->TypeCode()) : nullptr;
    if (!item) {
        LinePassedOver(std::string(line));
        return READ_OTHER;
    }
    item->m_pDatabase = m_pDatabase;
    item->m_pKind = kind;
    CItemLineReader reader(m_tokenizer, kind);
    item->ReadFields(reader);
    // A line cut short before the names of its records (a unit's type or weapon, a gunboat's
    // weapon) is passed over: written back, its numbers would move into the empty name fields.
    if (reader.WordMissing()) {
        LinePassedOver(std::string(line));
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

void COobDocument::LinePassedOver(const std::string&) {}

int COobDocument::LoadTree(const std::string& path, CTreeStore& tree) {
    m_strName = path;
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return RESULT_CANNOT_OPEN;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
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

int COobDocument::InsertTemplate(const std::string& path, CTreeStore& tree, HTREEITEM parent,
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
    COobReaderState state(parent, insertAfter);
    state.deepest = static_cast<std::int16_t>(COobReaderState::kLevels - 1 - DepthOf(tree, parent));
    for (;;) {
        const std::int16_t result = ReadLine(in, tree, state);
        if (result == READ_END || result == READ_TEMPLATE) {
            break;
        }
    }
    return RESULT_DONE;
}

int COobDocument::PasteFromList(CTreeStore& tree, HTREEITEM parent, HTREEITEM insertAfter,
                                const CLineStore& list) {
    COobReaderState state(parent, insertAfter);
    state.deepest = static_cast<std::int16_t>(COobReaderState::kLevels - 1 - DepthOf(tree, parent));
    for (int i = 0; i < list.GetCount(); ++i) {
        ReadLineText(list.GetText(i), tree, state);
    }
    return RESULT_DONE;
}

int COobDocument::CreateDefault(const std::string& path) {
    std::string out;
    AppendNumber(out, m_pDatabase ? m_pDatabase->m_nOobHeader : 0);
    out += kLineEnd;
    if (m_pDatabase) {
        for (CDataListNode* n = m_pDatabase->m_Kinds.Head(); n; n = n->m_pNext) {
            const auto& kind = static_cast<const CKindRecord&>(*n->m_pPayload);
            if (kind.TypeCode() == TYPE_ARMY) {
                const std::string name(kind.m_strName);
                out += kind.m_strKeyword + name + kLineEnd;
                out += std::string("\tBegin") + kLineEnd;
                out += "\tL 4 4 0 " + name + " Leader" + kLineEnd;
                out += std::string("\tEnd") + kLineEnd;
            } else if (kind.TypeCode() == TYPE_DEPOT) {
                out += kind.m_strKeyword + "6 0 " + std::string(kind.m_strName) + kLineEnd;
            }
        }
    }
    return ReplaceFile(path, out);
}

void COobDocument::NumberLeaders(const CTreeStore& tree) {
    std::int32_t number = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        COobItem* item = ItemOf(tree, walk.Current());
        if (item && item->m_nType == TYPE_LEADER) {
            static_cast<CLeaderItem*>(item)->m_nLeaderNumber = number++;
        }
    }
}
