// Reads the fields of a normalised line, stepping over one delimiter after each: an item's from
// the first character after its kind's keyword, or, with no kind, any line's from its start (the
// import reads the game file's records and position keys with it).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/DataObject.h"
#include "base/LineTokenizer.h"
#include "gamedata/GameRecords.h"

class CItemLineReader {
public:
    // tokenizer holds the normalised line; kind is the kind its keyword names (none: the line
    // is read from its start).
    CItemLineReader(CLineTokenizer& tokenizer, const CKindRecord* kind)
        : m_tokenizer(tokenizer),
          m_pLine(tokenizer.Line().data()),
          m_nLength(tokenizer.Line().size()),
          m_nAt(kind ? kind->m_strKeyword.size() : 0),
          m_cDelimiter(tokenizer.Delimiter()),
          m_bDigitDelimiter(m_cDelimiter >= '0' && m_cDelimiter <= '9') {}

    // TruncateToInteger of the tokenizer's number, with the common field (a few digits, perhaps
    // a minus sign) read here: a file of a million lines reads several million of them, and the
    // reader keeps its place in registers where the tokenizer would go through memory.
    template <typename Int>
    Int Number() {
        std::size_t i = m_nAt;
        const bool negative = i < m_nLength && m_pLine[i] == '-';
        i += negative ? 1 : 0;
        const std::size_t digitsStart = i;
        unsigned long long value = 0;
        for (unsigned digit; i < m_nLength && (digit = Digit(m_pLine[i])) <= 9; ++i) {
            value = value * 10 + digit;
        }
        // Anything else before the delimiter (a full stop, a letter), a number too long to be
        // sure of, or a digit for a delimiter, goes to the tokenizer's general reader.
        if (i - digitsStart > kPlainDigits || (i < m_nLength && m_pLine[i] != m_cDelimiter) ||
            m_bDigitDelimiter) {
            m_tokenizer.SetPosition(m_nAt);
            const long long general = TruncateToInteger(m_tokenizer.ReadNumber());
            m_nAt = m_tokenizer.Position() + 1;
            return static_cast<Int>(general);
        }
        m_nAt = i + 1;
        const long long plain = static_cast<long long>(value);
        return static_cast<Int>(negative ? -plain : plain);
    }
    // One word: the name of a record. A normalised line has no empty fields, so an empty word
    // means the line ended before it.
    std::string_view Word() {
        const std::size_t start = m_nAt < m_nLength ? m_nAt : m_nLength;
        std::size_t end = start;
        while (end < m_nLength && m_pLine[end] != m_cDelimiter) {
            ++end;
        }
        m_nAt = (end > m_nAt ? end : m_nAt) + 1;
        m_bWordMissing = m_bWordMissing || end == start;
        return std::string_view(m_pLine + start, end - start);
    }
    // True when every field has been read.
    bool AtEnd() const { return m_nAt >= m_nLength; }
    // True when the line ended before a record name it should hold. No line can name a record
    // with an empty name, so the item could not be written back as it was read.
    bool WordMissing() const { return m_bWordMissing; }
    // The rest of the line: the item's name, with its inner blanks. A new name moved into the
    // item costs less than assigning the text into the item's empty one.
    CNameText Rest() const {
        return m_nAt < m_nLength ? CNameText(m_pLine + m_nAt, m_nLength - m_nAt) : CNameText();
    }
    // The normalised line, as the warnings quote it.
    std::string_view Line() const { return std::string_view(m_pLine, m_nLength); }

private:
    // Nine digits are always below 2^31, so they need no reduction; the loop may read more
    // (unsigned, so they wrap harmlessly) before it hands the number on.
    static constexpr std::size_t kPlainDigits = 9;
    static unsigned Digit(char c) { return static_cast<unsigned char>(c) - unsigned{'0'}; }

    CLineTokenizer& m_tokenizer;
    const char* m_pLine;
    std::size_t m_nLength;
    // Wider than a line needs, so that stepping past the end never wraps back to its start.
    std::size_t m_nAt;
    char m_cDelimiter;
    bool m_bDigitDelimiter;
    bool m_bWordMissing = false;
};
