// Case files: keyed lines whose values are pieces of bytes, so that inputs of any size and any
// byte are written as short text (tests/data/hostile/README.md gives the format).
#pragma once

#include <gtest/gtest.h>

#include <iomanip>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "TempFolder.h"

// Random bytes with none of the bytes in banned, the same on every run for one seed.
inline std::string Noise(std::size_t size, const std::string& banned, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes;
    while (bytes.size() < size) {
        const char c = static_cast<char>(random());
        if (banned.find(c) == std::string::npos) {
            bytes += c;
        }
    }
    return bytes;
}

// "text" with its escapes \r \n \t \\ and \xHH taken.
inline std::string Unescape(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = i + 1 < text.size() && text[i] == '\\' ? text[++i] : '\0';
        if (c == 'x') {
            out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            out += c == '\0' ? text[i] : c == 'r' ? '\r' : c == 'n' ? '\n' : c == 't' ? '\t' : c;
        }
    }
    return out;
}

inline std::string Piece(std::istream& in);

// The pieces up to the end of the line or a ")", run together.
inline std::string Pieces(std::istream& in) {
    std::string out;
    while ((in >> std::ws).peek() != EOF && in.peek() != ')') {
        out += Piece(in);
    }
    in.ignore();
    return out;
}

// One piece: "text", repeat N PIECE, noise N "banned" SEED or ( PIECE ... ).
inline std::string Piece(std::istream& in) {
    std::string word;
    if (in.peek() == '"') {
        in >> std::quoted(word, '"', '\x01');
        return Unescape(word);
    }
    if (in.get() == '(') {
        return Pieces(in);
    }
    in.unget();
    std::size_t n = 0;
    in >> word >> n >> std::ws;
    if (word == "repeat") {
        const std::string piece = Piece(in);
        std::string out;
        for (std::size_t i = 0; i < n; ++i) {
            out += piece;
        }
        return out;
    }
    std::string banned;
    unsigned seed = 0;
    EXPECT_TRUE(word == "noise" && in >> std::quoted(banned, '"', '\x01') >> seed) << word;
    return Noise(n, Unescape(banned), seed);
}

inline std::string PiecesOf(const std::string& text) {
    std::istringstream in(text);
    return Pieces(in);
}

struct CCase {
    std::string input, option, result, written;
    std::vector<std::string> tree;        // order-of-battle lines a case may read into
    std::vector<std::string> afterLines;  // a cut case: the result after 0, 1, ... whole lines
    bool partialLineRead = false;         // a cut inside a line reads it as the file's last
    bool writtenWhole = false;            // the written text is the case's, not only holds it
};

inline CCase ReadCase(const std::string& path) {
    CCase c;
    std::istringstream in(ReadBytes(path));
    for (std::string line; std::getline(in, line);) {
        const std::size_t blank = line.find(' ');
        const std::string key = line.substr(0, blank);
        const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
        if (key == "input") {
            c.input += PiecesOf(rest);
        } else if (key == "result") {
            c.result += PiecesOf(rest);
        } else if (key == "written") {
            c.written += PiecesOf(rest);
        } else if (key == "option") {
            c.option = rest;
        } else if (key == "tree") {
            c.tree.push_back(PiecesOf(rest));
        } else if (key == "after-lines") {
            c.afterLines.push_back(PiecesOf(rest));
        } else if (key == "written-whole") {
            c.writtenWhole = true;
        } else if (key == "partial-line") {
            c.partialLineRead = rest == "read";
        } else {
            EXPECT_TRUE(key.empty() || key[0] == '#') << path << ": " << line;
        }
    }
    return c;
}
