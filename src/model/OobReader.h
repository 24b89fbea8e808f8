// Reads order-of-battle text into the tree: .oob files, template blocks and the copy buffer's
// lines. The tree is the caller's; the reader holds no copy of it and is handed it on every call.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/LineStore.h"
#include "base/LineTokenizer.h"
#include "base/TreeStore.h"

class CGameDatabase;

// Line reader results.
enum : std::int16_t {
    READ_END = 0,       // end of the input
    READ_BLOCK = 1,     // a "Begin" or "End" line
    READ_TEMPLATE = 2,  // a "</T>" line, the end of a template
    READ_OTHER = -1,    // an item line, or a line passed over
};

// What the line reader keeps from one line to the next.
struct COobReaderState {
    static constexpr int kLevels = 10;  // the top level and eight nested blocks, plus the caller's

    // parents[d] is the entry under which items of level d+1 go; parents[0] is the caller's.
    std::array<HTREEITEM, kLevels> parents{};
    HTREEITEM insertAfter = TVI_LAST;
    std::int16_t level = 1;
    // The deepest level an item may take: items deeper would lie deeper in the tree than a file
    // can hold (less than kLevels - 1 when the caller's parent is itself nested).
    std::int16_t deepest = kLevels - 1;

    COobReaderState(HTREEITEM parent, HTREEITEM after);
};

class COobReader {
public:
    explicit COobReader(CGameDatabase* database);

    // Fills the tree from the file at path; RESULT_DONE, or RESULT_CANNOT_OPEN with the tree
    // unchanged.
    int LoadTree(const std::string& path, CTreeStore& tree);
    // Inserts the template block of the file at path that comes after ordinal end tags, under
    // parent after insertAfter; RESULT_DONE or RESULT_CANNOT_OPEN.
    int InsertTemplate(const std::string& path, CTreeStore& tree, HTREEITEM parent,
                       HTREEITEM insertAfter, int ordinal);
    // Inserts the lines of the copy buffer under parent after insertAfter.
    void PasteFromList(CTreeStore& tree, HTREEITEM parent, HTREEITEM insertAfter,
                       const CLineStore& list);

    // Told of every line of three characters or more that the reader passes over (no kind's
    // keyword begins it, its kind names no item class, or it is nested deeper than the parents
    // table), with the number, from 1, of the line it is (counted from the start of the file for
    // LoadTree and InsertTemplate). The editor passes over them silently; the batch tool's check
    // lists them.
    std::function<void(int lineNumber, const std::string& line)> m_onPassedOver;

    CGameDatabase* m_pDatabase;

private:
    // One line as read from a file, without its line break.
    std::int16_t ReadRawLine(std::string_view raw, CTreeStore& tree, COobReaderState& state,
                             bool templateEnds);
    std::int16_t ReadNormalisedLine(CTreeStore& tree, COobReaderState& state);
    void PassOver(std::string_view line);

    CLineTokenizer m_tokenizer;  // reused from line to line
    int m_nLineNumber = 0;
};
