// Inputs no well-formed file holds, shared by the hostile-input tables of the readers: noise,
// odd line ends, over-long lines and the bytes Windows-1252 leaves undefined.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace hostile {

inline const std::string kUndefined1252 = "\x81\x8d\x8f\x90\x9d";
inline constexpr std::size_t kMiB = 1024 * 1024;

// Random bytes (seeded, so every run reads the same) with none of the bytes in banned; with an
// empty banned every byte value occurs.
inline std::string Noise(std::size_t size, std::string_view banned = {}, unsigned seed = 1809) {
    std::mt19937 random(seed);
    std::string bytes;
    bytes.reserve(size);
    while (bytes.size() < size) {
        const char c = static_cast<char>(random());
        if (banned.find(c) == std::string_view::npos) {
            bytes += c;
        }
    }
    return bytes;
}

inline std::string Repeat(std::string_view piece, std::size_t times) {
    std::string out;
    out.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        out += piece;
    }
    return out;
}

// text with every from replaced by to.
inline std::string Replace(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// text with its first from replaced by to.
inline std::string ReplaceFirst(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

// CR LF text with its line ends taking turns: LF, CR LF, LF, ...
inline std::string MixedLineEnds(const std::string& crlf) {
    std::string out;
    bool bare = true;
    for (std::size_t i = 0; i < crlf.size(); ++i) {
        if (crlf.compare(i, 2, "\r\n") == 0) {
            out += bare ? "\n" : "\r\n";
            bare = !bare;
            ++i;
        } else {
            out += crlf[i];
        }
    }
    return out;
}

// The number of line feeds in the first n bytes of text: the whole lines a cut there leaves.
inline int LinesBefore(const std::string& text, std::size_t n) {
    int lines = 0;
    for (std::size_t i = 0; i < n; ++i) {
        lines += text[i] == '\n';
    }
    return lines;
}

}  // namespace hostile
