// Reading and writing the lines of the program's text files.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

// Every reader takes at most this many characters of a line.
constexpr std::size_t kMaxLineLength = 254;

enum class LineRead {
    Line,      // a line ended by a line feed
    LastLine,  // the characters after the last line feed, when the file does not end with one
    End,       // nothing more to read
};

// Reads up to the next line feed, which is consumed; one carriage return before it is dropped.
// A line longer than kMaxLineLength is cut there and the rest of it is dropped, so an over-long
// line never spills into the next one.
LineRead ReadTextLine(std::istream& in, std::string& line);

// A line taken from a whole file's text, without its line feed, made what ReadTextLine gives:
// one carriage return at its end dropped, cut at kMaxLineLength. Inline: a file read in calls
// it for every line.
inline std::string_view TrimLine(std::string_view line) {
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line.substr(0, kMaxLineLength);
}

// Opens the file path names (ResolvePath: a path written on Windows finds its file) to be read
// in binary; false when it does not open or is a folder, which the stream library would open
// and read as an empty file.
bool OpenToRead(const std::string& path, std::ifstream& in);

// The whole file path names (as OpenToRead finds it); false when it does not open.
bool ReadWholeFile(const std::string& path, std::string& text);

// Files are written with CR LF whatever the host.
constexpr const char* kLineEnd = "\r\n";

// printf's "%g" for the files the program reads back: six significant digits, trailing zeros
// dropped, but never an exponent, since the number reader does not understand one. Such values
// are written out in full (1e-05 as 0.00001, 1.5e+06 as 1500000); NaN and infinities as 0.
std::string FormatNumber(double value);

// Appends a decimal integer, as "%d" writes it.
void AppendNumber(std::string& out, long long value);

// printf into a std::string.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
