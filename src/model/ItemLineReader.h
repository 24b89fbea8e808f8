// Reads an item's fields from its normalised line, from the first character after the kind's
// keyword, stepping over one delimiter after each field.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/DataObject.h"
#include "model/LineTokenizer.h"

class CKindRecord;

class CItemLineReader {
public:
    // tokenizer holds the normalised line; kind is the kind its keyword names (or none).
    CItemLineReader(CLineTokenizer& tokenizer, const CKindRecord* kind);

    template <typename Int>
    Int Number() {
        const long long value = m_tokenizer.ReadTruncated();
        ++m_tokenizer.Position();
        return static_cast<Int>(value);
    }
    // One word: the name of a record. A normalised line has no empty fields, so an empty word
    // means the line ended before it.
    std::string_view Word() {
        const std::string_view word = m_tokenizer.ReadField();
        ++m_tokenizer.Position();
        m_bWordMissing = m_bWordMissing || word.empty();
        return word;
    }
    // True when the line ended before a record name it should hold. No line can name a record
    // with an empty name, so the item could not be written back as it was read.
    bool WordMissing() const { return m_bWordMissing; }
    // The rest of the line: the item's name, with its inner blanks. A new name moved into the
    // item costs less than assigning the text into the item's empty one.
    CNameText Rest() const { return CNameText(m_tokenizer.RestView()); }
    // The normalised line, as the warnings quote it.
    std::string_view Line() const { return m_tokenizer.Line(); }

private:
    CLineTokenizer& m_tokenizer;
    bool m_bWordMissing = false;
};
