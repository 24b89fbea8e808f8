// Builds a text line at the end of a string with plain stores: the writers of a million-line
// file spend their time here. The string is grown once, by an upper bound of what the line can
// take, and cut back to what was written when the writer goes.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

class CLineWriter {
public:
    // Room for a number in "%d" form, sign included.
    static constexpr std::size_t kNumberRoom = 20;

    CLineWriter(std::string& out, std::size_t maxLength) : m_out(out), m_nStart(out.size()) {
        out.resize(m_nStart + maxLength);
        m_pNext = out.data() + m_nStart;
    }
    ~CLineWriter() { m_out.resize(static_cast<std::size_t>(m_pNext - m_out.data())); }
    CLineWriter(const CLineWriter&) = delete;
    CLineWriter& operator=(const CLineWriter&) = delete;

    CLineWriter& Text(std::string_view text) {
        // An empty view may point nowhere, and memcpy must not be given a null source.
        if (!text.empty()) {
            std::memcpy(m_pNext, text.data(), text.size());
            m_pNext += text.size();
        }
        return *this;
    }
    CLineWriter& Char(char c) {
        *m_pNext++ = c;
        return *this;
    }
    CLineWriter& Number(long long value) {
        m_pNext = std::to_chars(m_pNext, m_pNext + kNumberRoom, value).ptr;
        return *this;
    }

private:
    std::string& m_out;
    std::size_t m_nStart;
    char* m_pNext;
};
