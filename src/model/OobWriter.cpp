#include "model/OobWriter.h"

#include <string_view>

#include "base/FileWriter.h"
#include "base/LineCut.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"

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

void AppendHeader(std::string& out, const CGameDatabase* database) {
    AppendNumber(out, database ? database->m_nOobHeader : 0);
    out += kLineEnd;
}

}  // namespace

COobWriter::COobWriter(CGameDatabase* database) : m_pDatabase(database) {}

void COobWriter::WriteSubtree(std::string& out, const CTreeStore& tree, HTREEITEM start) const {
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
}

void COobWriter::CopyToList(const CTreeStore& tree, HTREEITEM start, CLineStore& list) const {
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
}

void COobWriter::AppendText(std::string& out, const CTreeStore& tree) const {
    out.reserve(out.size() + tree.GetCount() * kTypicalLine);
    AppendHeader(out, m_pDatabase);
    WriteSubtree(out, tree, nullptr);
}

std::string COobWriter::ToText(const CTreeStore& tree) const {
    std::string out;
    AppendText(out, tree);
    return out;
}

CWriteResult COobWriter::Save(const std::string& path, const CTreeStore& tree) {
    return m_written.Replace(path, [&](std::string& out) { AppendText(out, tree); });
}

CWriteResult COobWriter::CreateDefault(const std::string& path) const {
    std::string out;
    AppendHeader(out, m_pDatabase);
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
