#include "model/LineTokenizer.h"

#include <cmath>

long long TruncateToInteger(double value) {
    if (value > -2147483648.0 && value < 2147483648.0) {
        return static_cast<long long>(value);  // the common case needs no reduction
    }
    if (!std::isfinite(value)) {
        return 0;
    }
    // Reduce modulo 2^32 first: every field is at most 32 bits wide, and the reduction is exact
    // for doubles, so the low bits come out as the integer conversion would give them.
    constexpr double kWrap = 4294967296.0;
    double low = std::fmod(std::trunc(value), kWrap);
    if (low < 0) {
        low += kWrap;
    }
    return static_cast<long long>(low);
}

void CLineTokenizer::SetDelimiter(char delimiter) {
    m_cDelimiter = delimiter;
    m_bSeparator.fill(false);
    m_bSeparator[static_cast<unsigned char>('\t')] = true;
    m_bSeparator[static_cast<unsigned char>(delimiter)] = true;
}

// Compacts the line in place, in one pass: separators (tabs and the delimiter) before the first
// field and after the last are dropped, and every run of them between fields becomes one
// delimiter.
void CLineTokenizer::SetLine(std::string_view text) {
    m_strLine.assign(text.substr(0, kMaxLine));
    m_nCursor = 0;
    char* const begin = m_strLine.data();
    const std::size_t length = m_strLine.size();
    std::size_t out = 0;
    bool inToken = false;
    for (std::size_t i = 0; i < length; ++i) {
        const char c = begin[i];
        if (m_bSeparator[static_cast<unsigned char>(c)]) {
            if (inToken) {
                begin[out++] = m_cDelimiter;
                inToken = false;
            }
        } else {
            begin[out++] = c;
            inToken = true;
        }
    }
    if (out > 0 && !inToken) {
        --out;
    }
    m_strLine.resize(out);
}

void CLineTokenizer::SeekField(int n) {
    if (n <= 0) {
        m_nCursor = 0;
        return;
    }
    int seen = 0;
    for (std::size_t i = 0; i < m_strLine.size(); ++i) {
        if (m_strLine[i] == m_cDelimiter && ++seen == n) {
            m_nCursor = i + 1;
            return;
        }
    }
    m_nCursor = m_strLine.size();
}

double CLineTokenizer::ReadNumber() {
    double sign = 1.0;
    double value = 0.0;
    bool fraction = false;
    int exponent = 0;
    if (!AtEnd() && m_strLine[m_nCursor] == '-') {
        sign = -1.0;
        ++m_nCursor;
    }
    // Every character up to the delimiter is taken: digits build the value, the first full stop
    // starts the fraction, and anything else (a second full stop, a minus sign, a letter) is
    // passed over.
    while (!AtEnd() && m_strLine[m_nCursor] != m_cDelimiter) {
        const char c = m_strLine[m_nCursor++];
        if (c >= '0' && c <= '9') {
            const int d = c - '0';
            if (fraction) {
                --exponent;
                value += d * std::pow(10.0, exponent);
            } else {
                value = value * 10 + d;
            }
        } else if (c == '.') {
            fraction = true;
        }
    }
    return sign * value;
}

std::string_view CLineTokenizer::ReadField() {
    const std::size_t start = m_nCursor < m_strLine.size() ? m_nCursor : m_strLine.size();
    std::size_t end = start;
    while (end < m_strLine.size() && m_strLine[end] != m_cDelimiter) {
        ++end;
    }
    m_nCursor = end > m_nCursor ? end : m_nCursor;
    return std::string_view(m_strLine).substr(start, end - start);
}

std::string_view CLineTokenizer::RestView() const {
    if (AtEnd()) {
        return {};
    }
    return std::string_view(m_strLine).substr(m_nCursor, kMaxLine);
}
