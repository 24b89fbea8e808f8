#include "base/TextLines.h"

#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <istream>
#include <sstream>

#include "base/PathResolve.h"

LineRead ReadTextLine(std::istream& in, std::string& line) {
    if (!std::getline(in, line)) {
        line.clear();
        return LineRead::End;
    }
    const bool terminated = !in.eof();
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    if (line.size() > kMaxLineLength) {
        line.resize(kMaxLineLength);
    }
    return terminated ? LineRead::Line : LineRead::LastLine;
}

bool OpenToRead(const std::string& stored, std::ifstream& in) {
    const std::string path = ResolvePath(stored);
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return false;
    }
    in.open(path, std::ios::binary);
    return in.is_open();
}

bool ReadWholeFile(const std::string& stored, std::string& text) {
    const std::string path = ResolvePath(stored);
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    // Read in one piece when the size is known; a pipe or a special file is read to its end.
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0, std::ios::beg);
    if (size > 0 && in) {
        text.resize(static_cast<std::size_t>(size));
        in.read(text.data(), size);
        text.resize(static_cast<std::size_t>(in.gcount()));
        return true;
    }
    in.clear();
    in.seekg(0, std::ios::beg);
    std::ostringstream buffer;
    buffer << in.rdbuf();
    text = std::move(buffer).str();
    return true;
}

std::string Format(const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0) {
        std::vsnprintf(text.data(), text.size() + 1, format, args);
    }
    va_end(args);
    return text;
}

std::string FormatNumber(double value) {
    if (!std::isfinite(value)) {
        return "0";
    }
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.5e", value);  // d.ddddde±xx, rounded as %g rounds
    const char* e = std::strchr(buffer, 'e');
    const int exponent = std::atoi(e + 1);
    if (exponent >= -4 && exponent < 6) {
        return Format("%g", value);
    }
    std::string digits;
    for (const char* p = buffer; p < e; ++p) {
        if (*p >= '0' && *p <= '9') {
            digits += *p;
        }
    }
    while (digits.size() > 1 && digits.back() == '0') {
        digits.pop_back();
    }
    std::string text = value < 0 ? "-" : "";
    if (exponent >= 6) {
        text += digits;
        text.append(static_cast<std::size_t>(exponent) + 1 - digits.size(), '0');
    } else {
        text += "0.";
        text.append(static_cast<std::size_t>(-exponent - 1), '0');
        text += digits;
    }
    return text;
}

void AppendNumber(std::string& out, long long value) {
    char buffer[24];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, static_cast<std::size_t>(result.ptr - buffer));
}
