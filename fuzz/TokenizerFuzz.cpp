// The line tokenizer on any line, with any delimiter, driven by a script of reads. Input: the
// delimiter byte, the script's length n, n script bytes, then the line.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "base/LineTokenizer.h"

namespace {

// The normalised line: no separator but single delimiters between fields, none at either end.
void RequireNormalised(const CLineTokenizer& tokenizer, char delimiter) {
    const std::string_view line = tokenizer.Line();
    Require(line.size() <= CLineTokenizer::kMaxLine, "the line is longer than the tokenizer holds");
    if (line.empty()) {
        return;
    }
    Require(line.front() != delimiter && line.back() != delimiter,
            "a delimiter is left at an end of the line");
    for (std::size_t i = 0; i < line.size(); ++i) {
        Require(line[i] != '\t' || delimiter == '\t', "a tab is left in the line");
        Require(i == 0 || line[i] != delimiter || line[i - 1] != delimiter,
                "two delimiters are left in a row");
    }
}

void RequireNumber(double value) {
    Require(!std::isnan(value), "a number reads as NaN");
    // Every width the readers store into gets a defined value.
    TruncateToInteger(value);
    StoreTruncated<std::int8_t>(value);
    StoreTruncated<std::int16_t>(value);
    StoreTruncated<std::int32_t>(value);
}

// A read leaves the cursor on the delimiter that ends its field or at the end of the line.
void RequireFieldEnd(CLineTokenizer& tokenizer, char delimiter) {
    const std::size_t at = tokenizer.Position();
    const std::string_view line = tokenizer.Line();
    Require(at >= line.size() || line[at] == delimiter, "a read stops inside a field");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const char delimiter = static_cast<char>(data[0]);
    std::size_t scriptSize = data[1];
    if (scriptSize > size - 2) {
        scriptSize = size - 2;
    }
    const std::uint8_t* script = data + 2;
    const std::string_view text(reinterpret_cast<const char*>(script + scriptSize),
                                size - 2 - scriptSize);

    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter(delimiter);
    tokenizer.SetLine(text);
    RequireNormalised(tokenizer, delimiter);
    const std::string line = tokenizer.GetLine();
    Require(line.size() <= text.size(), "normalising makes the line longer");

    // Normalising a normalised line changes nothing.
    CLineTokenizer again;
    again.SetDelimiter(delimiter);
    again.SetLine(line);
    Require(again.Line() == line, "normalising twice changes the line");

    for (std::size_t i = 0; i < scriptSize; ++i) {
        const std::uint8_t op = script[i];
        const std::size_t before = tokenizer.Position();
        switch (op % 8) {
            case 0:
                RequireNumber(tokenizer.ReadNumber());
                RequireFieldEnd(tokenizer, delimiter);
                break;
            case 1: {
                const std::string field = tokenizer.ReadString();
                Require(field.find(delimiter) == std::string::npos, "a field holds the delimiter");
                RequireFieldEnd(tokenizer, delimiter);
                break;
            }
            case 2: {
                const std::string rest = tokenizer.ReadRest();
                Require(tokenizer.Position() == before, "reading the rest moves the cursor");
                Require(rest.empty() || line.substr(before) == rest,
                        "the rest is not the end of the line");
                break;
            }
            case 3:
                ++tokenizer.Position();
                break;
            case 4: {
                const int field = op >> 3;
                tokenizer.SeekField(field);
                const std::size_t at = tokenizer.Position();
                Require(at <= line.size(), "a field is sought past the end of the line");
                Require(field == 0 || at == line.size() || line[at - 1] == delimiter,
                        "a sought field does not follow a delimiter");
                break;
            }
            case 5:
                tokenizer.SetPosition(op >> 3);
                break;
            case 6: {
                // A prefix of the line itself always matches, and so does a line that begins
                // a text.
                const std::size_t n = (op >> 3) * 8 % (line.size() + 1);
                Require(tokenizer.MatchesPrefix(line.substr(0, n)), "a prefix does not match");
                Require(tokenizer.MatchesPrefix(line + "Begin"), "a longer text does not match");
                break;
            }
            default:
                // Far past the end: every read from there is empty.
                tokenizer.SetPosition(before + 256);
                Require(tokenizer.ReadString().empty() && tokenizer.ReadRest().empty() &&
                            tokenizer.ReadNumber() == 0.0,
                        "a read past the end of the line is not empty");
                break;
        }
        Require(tokenizer.Line() == line, "a read changes the line");
    }
    return 0;
}
