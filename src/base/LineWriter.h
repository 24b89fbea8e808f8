// Builds a text line at the end of a string with plain stores: the writers of a million-line
// file and the HTML report spend their time here. The string is grown once, by an upper bound of
// what the line can take, and cut back to what was written when the writer goes.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "base/HtmlText.h"
#include "base/NumberText.h"

class CLineWriter {
public:
    // Room for a number in "%d" form, sign included: the fields written are at most 32 bits
    // wide, and every byte of room is a byte the string is grown and filled by.
    static constexpr std::size_t kNumberRoom = 11;

    CLineWriter(std::string& out, std::size_t maxLength) : m_out(out), m_nStart(out.size()) {
        out.resize(m_nStart + maxLength);
        m_pNext = out.data() + m_nStart;
    }
    ~CLineWriter() { m_out.resize(static_cast<std::size_t>(m_pNext - m_out.data())); }
    CLineWriter(const CLineWriter&) = delete;
    CLineWriter& operator=(const CLineWriter&) = delete;

    CLineWriter& Text(std::string_view text) {
        const std::size_t n = text.size();
        const char* from = text.data();
        // Most texts are a keyword, a record name or an entry's name: up to sixteen bytes are
        // copied as two pieces that may overlap, without a call. An empty view may point
        // nowhere, and is not read.
        if (n >= 8 && n <= 16) {
            Copy<8>(m_pNext, from);
            Copy<8>(m_pNext + n - 8, from + n - 8);
        } else if (n >= 4 && n < 8) {
            Copy<4>(m_pNext, from);
            Copy<4>(m_pNext + n - 4, from + n - 4);
        } else if (n > 0 && n < 4) {
            m_pNext[0] = from[0];
            m_pNext[n / 2] = from[n / 2];
            m_pNext[n - 1] = from[n - 1];
        } else if (n > 16) {
            std::memcpy(m_pNext, from, n);
        }
        m_pNext += n;
        return *this;
    }
    CLineWriter& Char(char c) {
        *m_pNext++ = c;
        return *this;
    }
    CLineWriter& Number(std::int32_t value) {
        m_pNext = std::to_chars(m_pNext, m_pNext + kNumberRoom, value).ptr;
        return *this;
    }

    // Text copied from the files into an HTML page, & < > escaped: room kEscapedRoom a
    // character.
    CLineWriter& Escaped(std::string_view text) {
        m_pNext = WriteEscaped(m_pNext, text);
        return *this;
    }
    // A number in printf's "%g" form: room kGeneralRoom.
    CLineWriter& General(double value) {
        m_pNext = WriteGeneral(m_pNext, value);
        return *this;
    }

private:
    template <std::size_t kBytes>
    static void Copy(char* to, const char* from) {
        char bytes[kBytes];
        std::memcpy(bytes, from, kBytes);
        std::memcpy(to, bytes, kBytes);
    }

    std::string& m_out;
    std::size_t m_nStart;
    char* m_pNext;
};
