#include "base/LineTokenizer.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "base/Bytes16.h"

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
    m_delimiters16.fill(delimiter);
}

namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7FULL;

std::uint64_t Load8(const char* p) {
    std::uint64_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

// 0x80 in every byte of word that equals the byte of pattern (pattern is that byte times
// kOnes), 0 in every other byte: exact, with no carry from one byte into the next.
std::uint64_t EqualBytes(std::uint64_t word, std::uint64_t pattern) {
    const std::uint64_t x = word ^ pattern;
    return ~(((x & kLow7) + kLow7) | x | kLow7);
}

}  // namespace

// Sixteen positions a step on a long line, eight on a short one: a tab at i, or delimiters at both
// i and i + 1 (read as the same word shifted by one byte).
bool CLineTokenizer::NeedsCompacting(const char* begin, const char* end) const {
    const std::uint64_t tabs = static_cast<unsigned char>('\t') * kOnes;
    const std::uint64_t delimiters = static_cast<unsigned char>(m_cDelimiter) * kOnes;
    // The last character is never a separator (the ends are trimmed), so positions up to the
    // last but one are checked; a last word overlapping the one before covers the tail.
    const auto check = [&](const char* p) {
        const std::uint64_t here = Load8(p);
        return (EqualBytes(here, tabs) |
                (EqualBytes(here, delimiters) & EqualBytes(Load8(p + 1), delimiters))) != 0;
    };
    if (end - begin < 9) {
        for (const char* p = begin; p + 1 < end; ++p) {
            if (*p == '\t' || (*p == m_cDelimiter && p[1] == m_cDelimiter)) {
                return true;
            }
        }
        return false;
    }
    if (end - begin < 17) {
        return check(begin) || check(end - 9);
    }
    const Bytes16 tabs16 = Bytes16{} + static_cast<unsigned char>('\t');
    const Bytes16 delimiters16 = Load16(m_delimiters16.data());
    const auto check16 = [&](const char* p) {
        const Bytes16 here = Load16(p);
        return BitsOf((here == tabs16) |
                      ((here == delimiters16) & (Load16(p + 1) == delimiters16))) != 0;
    };
    for (const char* p = begin; end - p >= 17; p += 16) {
        if (check16(p)) {
            return true;
        }
    }
    return check16(end - 17);
}

// Separators (tabs and the delimiter) before the first field and after the last are dropped,
// and every run of them between fields becomes one delimiter. Most lines need nothing more
// than their ends trimmed and are copied whole.
void CLineTokenizer::SetLine(std::string_view text) {
    Take(text, false);
}

void CLineTokenizer::ViewLine(std::string_view text) {
    Take(text, true);
}

void CLineTokenizer::Take(std::string_view text, bool view) {
    text = text.substr(0, kMaxLine);
    m_nCursor = 0;
    const char* first = text.data();
    const char* last = first + text.size();
    // Indentation: sixteen bytes a step while that many are left.
    const Bytes16 tabs16 = Bytes16{} + static_cast<unsigned char>('\t');
    const Bytes16 delimiters16 = Load16(m_delimiters16.data());
    for (; last - first >= 16; first += 16) {
        const Bytes16 here = Load16(first);
        const unsigned kept = ~BitsOf((here == tabs16) | (here == delimiters16)) & 0xFFFFu;
        if (kept != 0) {
            first += std::countr_zero(kept);
            break;
        }
    }
    while (first < last && IsSeparator(*first)) {
        ++first;
    }
    while (last > first && IsSeparator(last[-1])) {
        --last;
    }
    char* const out = m_line.data();
    m_pViewed = nullptr;
    if (!NeedsCompacting(first, last)) {
        m_nLength = static_cast<std::size_t>(last - first);
        if (view) {
            m_pViewed = first;
        } else {
            std::memcpy(out, first, m_nLength);
        }
        return;
    }
    std::size_t length = 0;
    bool inToken = true;
    for (const char* p = first; p < last; ++p) {
        if (IsSeparator(*p)) {
            if (inToken) {
                out[length++] = m_cDelimiter;
                inToken = false;
            }
        } else {
            out[length++] = *p;
            inToken = true;
        }
    }
    m_nLength = length;
}

void CLineTokenizer::SeekField(int n) {
    if (n <= 0) {
        m_nCursor = 0;
        return;
    }
    int seen = 0;
    for (std::size_t i = 0; i < m_nLength; ++i) {
        if (Text()[i] == m_cDelimiter && ++seen == n) {
            m_nCursor = i + 1;
            return;
        }
    }
    m_nCursor = m_nLength;
}

double CLineTokenizer::ReadNumber() {
    const char* const line = Text();
    const char delimiter = m_cDelimiter;
    std::size_t i = m_nCursor;
    double sign = 1.0;
    double value = 0.0;
    bool fraction = false;
    int exponent = 0;
    if (i < m_nLength && line[i] == '-') {
        sign = -1.0;
        ++i;
    }
    // Every character up to the delimiter is taken: digits build the value, the first full stop
    // starts the fraction, and anything else (a second full stop, a minus sign, a letter) is
    // passed over.
    for (; i < m_nLength && line[i] != delimiter; ++i) {
        const char c = line[i];
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
    m_nCursor = i;
    return sign * value;
}

std::string_view CLineTokenizer::ReadField() {
    const char* const line = Text();
    const std::size_t start = m_nCursor < m_nLength ? m_nCursor : m_nLength;
    std::size_t end = start;
    while (end < m_nLength && line[end] != m_cDelimiter) {
        ++end;
    }
    m_nCursor = end > m_nCursor ? end : m_nCursor;
    return std::string_view(line + start, end - start);
}

std::string_view CLineTokenizer::RestView() const {
    if (AtEnd()) {
        return {};
    }
    return Line().substr(m_nCursor, kMaxLine);
}
