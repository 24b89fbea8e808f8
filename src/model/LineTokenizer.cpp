#include "model/LineTokenizer.h"

#include <algorithm>
#include <cmath>

long long TruncateToInteger(double value) {
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

void CLineTokenizer::SetLine(const std::string& text) {
    m_strLine = text.substr(0, kMaxLine);
    m_nCursor = 0;
    std::size_t out = 0;
    bool inToken = false;
    bool separatorWritten = false;
    for (char c : m_strLine) {
        if (c == '\t' || c == m_cDelimiter) {
            if (inToken) {
                m_strLine[out++] = m_cDelimiter;
                separatorWritten = true;
                inToken = false;
            }
        } else {
            m_strLine[out++] = c;
            inToken = true;
            separatorWritten = false;
        }
    }
    if (separatorWritten) {
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
    m_strToken.clear();
    double sign = 1.0;
    double value = 0.0;
    bool fraction = false;
    int exponent = 0;
    if (!AtEnd() && m_strLine[m_nCursor] == '-') {
        m_strToken += '-';
        sign = -1.0;
        ++m_nCursor;
    }
    if (!AtEnd() && m_strLine[m_nCursor] != m_cDelimiter) {
        do {
            const char c = m_strLine[m_nCursor];
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
            m_strToken += c;
            ++m_nCursor;
        } while (!AtEnd() && m_strLine[m_nCursor] != m_cDelimiter);
    }
    return sign * value;
}

std::string CLineTokenizer::ReadString() {
    m_strToken.clear();
    while (!AtEnd() && m_strLine[m_nCursor] != m_cDelimiter) {
        m_strToken += m_strLine[m_nCursor++];
    }
    return m_strToken;
}

std::string CLineTokenizer::ReadRest() {
    m_strToken.clear();
    if (!AtEnd()) {
        m_strToken.assign(m_strLine, m_nCursor, kMaxLine);
    }
    return m_strToken;
}

bool CLineTokenizer::MatchesPrefix(const std::string& text) const {
    const std::size_t n = std::min(m_strLine.size(), text.size());
    return m_strLine.compare(0, n, text, 0, n) == 0;
}
