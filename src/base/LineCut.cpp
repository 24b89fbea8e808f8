#include "base/LineCut.h"
// Why the writers cut. A written line exceeds what the readers take only with what was read from
// a long line of a damaged file: written with more indentation than it stood with (an item read
// at the top level and written eight tabs deep), or with a number that grew when it was stored
// in its field's width (-1 in an 8-bit field is written 255). The readers would cut such a line
// and drop the rest, so a file written whole would not read back as written, and writing what
// was read again would not give the same bytes. Cut here, the line is what a reader sees, and
// the text is a fixed point of reading and writing: read again, the cut line gives the same
// fields up to the cut, and written again it runs past the limit once more and is cut at the
// same place. The separators at the cut (tabs and the delimiter) are dropped because the readers
// drop them at a line's end: kept, the line would come back shorter. Other blanks are kept: in
// a '|' format they belong to the field, and the reader keeps them.
namespace {

bool IsSeparator(char c, char delimiter) {
    return c == '\t' || c == delimiter;
}

}  // namespace

void CutLine(std::string& out, std::size_t lineStart, char delimiter) {
    std::size_t end = lineStart + kMaxLineLength;
    while (end > lineStart && IsSeparator(out[end - 1], delimiter)) {
        --end;
    }
    out.resize(end);
}

void CutOverLongLines(std::string& text, char delimiter) {
    std::string cut;
    std::size_t copied = 0;  // text before this is in cut already
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t feed = text.find('\n', start);
        const std::size_t next = feed == std::string::npos ? text.size() : feed + 1;
        std::size_t end = feed == std::string::npos ? text.size() : feed;
        if (end > start && text[end - 1] == '\r') {
            --end;
        }
        if (end - start > kMaxLineLength) {
            cut.append(text, copied, start - copied);
            const std::size_t lineStart = cut.size();
            cut.append(text, start, end - start);
            CutOverLongLine(cut, lineStart, delimiter);
            copied = end;  // the line end, if any, follows
        }
        start = next;
    }
    if (copied > 0) {
        cut.append(text, copied, std::string::npos);
        text = std::move(cut);
    }
}
