// The common start of every item kind's reader: the kind from the line's keyword, then the
// fields from the first character after the keyword, one delimiter stepped after each field.
#pragma once

#include <cstdint>
#include <string>

#include "model/LineTokenizer.h"
#include "model/TextLines.h"

class COobItem;

class CItemLineReader {
public:
    // Sets item's kind from line (none when no keyword matches).
    CItemLineReader(COobItem& item, const std::string& line);

    template <typename Int>
    Int Number() {
        const double value = m_tokenizer.ReadNumber();
        ++m_tokenizer.Position();
        return StoreTruncated<Int>(value);
    }
    // One word: the name of a record.
    std::string Word();
    // The rest of the line: the item's name, with its inner blanks.
    std::string Rest() { return m_tokenizer.ReadRest(); }
    // The normalised line, as the warnings quote it.
    std::string Line() const { return m_tokenizer.GetLine(); }

private:
    CLineTokenizer m_tokenizer;
};
