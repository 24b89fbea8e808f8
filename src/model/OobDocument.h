// Turns the order-of-battle tree into text and back: .oob files, template blocks, the copy
// buffer and the skeleton of a new order of battle. The tree is the main window's; the document
// holds no copy of it and is handed the tree on every call.
#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "base/DataObject.h"
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

// Game-file import flags.
enum : int {
    IMPORT_REMOVE_MISSING = 1,  // remove units, leaders and supplies the file does not mention
    IMPORT_ZERO_MISSING = 2,    // set their strength or supply points to 0
    IMPORT_REMOVE_EMPTY = 4,    // remove structures whose subtree holds no men
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

class COobDocument : public CDataObject {
public:
    COobDocument();

    // Writes the header number and the whole tree; RESULT_DONE or RESULT_CANNOT_WRITE.
    virtual int Save(const std::string& path, const CTreeStore& tree);
    // Appends the lines of the subtree of start (the whole tree when start is none).
    virtual int WriteSubtree(std::string& out, const CTreeStore& tree, HTREEITEM start);
    virtual int CopyToList(const CTreeStore& tree, HTREEITEM start, CLineStore& list);
    // RESULT_DONE, or RESULT_CANNOT_OPEN with the tree unchanged.
    virtual int LoadTree(const std::string& path, CTreeStore& tree);
    virtual int InsertTemplate(const std::string& path, CTreeStore& tree, HTREEITEM parent,
                               HTREEITEM insertAfter, int ordinal);
    virtual int PasteFromList(CTreeStore& tree, HTREEITEM parent, HTREEITEM insertAfter,
                              const CLineStore& list);
    // Writes the skeleton of a new order of battle; RESULT_DONE or RESULT_CANNOT_WRITE.
    virtual int CreateDefault(const std::string& path);
    virtual std::int16_t ReadLine(std::istream& in, CTreeStore& tree, COobReaderState& state);
    virtual std::int16_t ReadLineText(const std::string& text, CTreeStore& tree,
                                      COobReaderState& state);
    virtual void NumberLeaders(const CTreeStore& tree);

    // The reports: each writes its file whole (RESULT_DONE or RESULT_CANNOT_WRITE).
    virtual int WriteHtmlReport(const std::string& path, const CTreeStore& tree, int flags);
    virtual int WriteLeaderReport(const std::string& path, const CTreeStore& tree);
    virtual int WriteCostReport(const std::string& path, const CTreeStore& tree);
    virtual int WriteKeyReport(const std::string& path, const CTreeStore& tree);

    // Brings the tree up to date from a game file (IMPORT_* flags); RESULT_DONE, or
    // RESULT_CANNOT_OPEN with the tree untouched.
    virtual int GetData(const std::string& path, CTreeStore& tree, int flags);
    // The entry a position key (2.1.3. or 2.1.3) names; none when it names no entry.
    virtual HTREEITEM FindItemByKey(const std::string& key, const CTreeStore& tree);

    // The bytes Save writes.
    std::string ToText(const CTreeStore& tree);
    // The bytes of each report.
    std::string HtmlReport(const CTreeStore& tree, int flags);
    std::string LeaderReport(const CTreeStore& tree);
    std::string CostReport(const CTreeStore& tree);
    std::string KeyReport(const CTreeStore& tree);

    // Told of every line of three characters or more that the reader passes over: no kind's
    // keyword begins it, its kind names no item class, or it is nested deeper than the parents
    // table. The editor passes over them silently; the batch tool's check lists them.
    virtual void LinePassedOver(const std::string& line);
    // The number, from 1, of the line the reader is on (counted from the start of the file for
    // LoadTree and InsertTemplate).
    int LineNumber() const { return m_nLineNumber; }

    CGameDatabase* m_pDatabase = nullptr;

private:
    // Appends the header number and the whole tree's lines.
    void AppendText(std::string& out, const CTreeStore& tree);

    // The bytes of the last file written (saved or reported), kept for the next one: a large
    // order of battle is saved again and again, and building the text in memory already in use
    // saves faulting in fresh pages for every byte, which takes as long as writing the file.
    std::string m_strWritten;

    // One line as read from a file, without its line break.
    std::int16_t ReadRawLine(std::string_view raw, CTreeStore& tree, COobReaderState& state,
                             bool templateEnds);
    std::int16_t ReadNormalisedLine(CTreeStore& tree, COobReaderState& state);

    CLineTokenizer m_tokenizer;     // reused from line to line
    CLineTokenizer m_keyTokenizer;  // for position keys: a game file names one a line
    int m_nLineNumber = 0;
};
