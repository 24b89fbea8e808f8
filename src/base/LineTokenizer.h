// Takes one text line apart field by field. Every reader of the program hands its lines to one
// of these, with the delimiter of its file format.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// Numbers read from a line are stored by truncating toward zero and keeping the low bits of the
// field's width (300 in an 8-bit field becomes 44). Defined for every double, NaN and infinities
// included (they give 0), so no file can cause an out-of-range conversion.
long long TruncateToInteger(double value);

class CLineTokenizer {
public:
    // The longest line the tokenizer holds; longer text is cut.
    static constexpr std::size_t kMaxLine = 255;

    CLineTokenizer() { SetDelimiter('\0'); }
    virtual ~CLineTokenizer() = default;

    // Must come before the first SetLine: the delimiter takes part in normalisation.
    void SetDelimiter(char delimiter);
    char Delimiter() const { return m_cDelimiter; }
    void SetLine(std::string_view text);
    // SetLine without the copy when the line needs nothing but its ends trimmed: the tokenizer
    // then reads text itself, which must stay as it is until the next SetLine or ViewLine. For a
    // reader that holds its file's text while it takes each line apart.
    void ViewLine(std::string_view text);
    std::string GetLine() const { return std::string(Line()); }
    std::string_view Line() const { return std::string_view(Text(), m_nLength); }

    // The cursor is wider than a line needs so that stepping past the end never wraps back
    // to the start of the line.
    std::size_t& Position() { return m_nCursor; }
    void SetPosition(std::size_t n) { m_nCursor = n; }
    void SeekField(int n);

    double ReadNumber();
    std::string ReadString() { return std::string(ReadField()); }
    std::string ReadRest() { return std::string(RestView()); }
    bool MatchesPrefix(std::string_view text) const { return PrefixMatches(Line(), text); }

    // ReadString and ReadRest without the copy: views into the line, valid until the next
    // SetLine.
    std::string_view ReadField();
    std::string_view RestView() const;

    // line and text agree over the length of the shorter of the two.
    static bool PrefixMatches(std::string_view line, std::string_view text) {
        const std::size_t n = line.size() < text.size() ? line.size() : text.size();
        // Keywords are a few characters long: a loop decides sooner than a call.
        for (std::size_t i = 0; i < n; ++i) {
            if (line[i] != text[i]) {
                return false;
            }
        }
        return true;
    }

private:
    void Take(std::string_view text, bool view);
    const char* Text() const { return m_pViewed ? m_pViewed : m_line.data(); }
    bool AtEnd() const { return m_nCursor >= m_nLength; }
    bool IsSeparator(char c) const { return m_bSeparator[static_cast<unsigned char>(c)]; }
    // True when text holds a tab or two delimiters in a row, which compacting would change.
    bool NeedsCompacting(const char* begin, const char* end) const;

    // The normalised line: a fixed buffer, so that setting a line never allocates.
    std::array<char, kMaxLine> m_line;
    const char* m_pViewed = nullptr;  // the caller's text, when ViewLine took it as it is
    std::size_t m_nLength = 0;
    std::size_t m_nCursor = 0;
    char m_cDelimiter = '\0';
    std::array<bool, 256> m_bSeparator{};  // the tab and the delimiter, by byte value
    // The delimiter sixteen times, as the checks of a line compare it sixteen bytes at once.
    std::array<char, 16> m_delimiters16{};
};

template <typename Int>
Int StoreTruncated(double value) {
    return static_cast<Int>(TruncateToInteger(value));
}
