// Case files: keyed lines whose values are pieces of bytes, so that inputs of any size and any
// byte are written as short text (tests/data/hostile/README.md gives the format).
#pragma once

#include <gtest/gtest.h>

#include <iomanip>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "TempFolder.h"

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

// The pieces up to the end of the line or a ")", run together, or only the next one: "text",
// repeat N PIECE, noise N "banned" SEED (random bytes, none of them banned, the same on every run
// for one seed), le16 N, le32 N (N in 2 or 4 bytes, least significant first) or ( PIECE ... ).
inline std::string Pieces(std::istream& in, bool one = false) {
    std::string out;
    while ((in >> std::ws).peek() != EOF && in.peek() != ')') {
        std::string word;
        std::size_t n = 0;
        if (in.peek() == '"') {
            in >> std::quoted(word, '"', '\x01');
            out += Unescape(word);
        } else if (in.peek() == '(') {
            in.ignore();
            out += Pieces(in);
        } else if (in >> word && (word == "le16" || word == "le32")) {
            long long value = 0;  // a number as binary formats hold it
            in >> value;
            for (int i = 0; i < (word == "le16" ? 2 : 4); ++i) {
                out += static_cast<char>(value >> 8 * i);
            }
        } else if (in >> n >> std::ws && word == "repeat") {
            const std::string piece = Pieces(in, true);
            for (std::size_t i = 0; i < n; ++i) {
                out += piece;
            }
        } else {
            std::string banned;
            unsigned seed = 0;
            EXPECT_TRUE(word == "noise" && in >> std::quoted(banned, '"', '\x01') >> seed) << word;
            banned = Unescape(banned);
            std::string noise;
            for (std::mt19937 random(seed); noise.size() < n;) {
                const char c = static_cast<char>(random());
                noise += banned.find(c) == std::string::npos ? std::string(1, c) : "";
            }
            out += noise;
        }
        if (one) {
            return out;
        }
    }
    in.ignore();
    return out;
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
    const std::map<std::string, std::string CCase::*> pieces = {
        {"input", &CCase::input}, {"result", &CCase::result}, {"written", &CCase::written}};
    const std::map<std::string, std::vector<std::string> CCase::*> lists = {
        {"tree", &CCase::tree}, {"after-lines", &CCase::afterLines}};
    std::istringstream in(ReadBytes(path));
    for (std::string line; std::getline(in, line);) {
        std::istringstream rest(line);
        std::string key;
        rest >> key >> std::ws;
        if (pieces.count(key)) {
            c.*pieces.at(key) += Pieces(rest);
        } else if (lists.count(key)) {
            (c.*lists.at(key)).push_back(Pieces(rest));
        } else if (key == "option") {
            std::getline(rest, c.option);
        } else if (key == "written-whole") {
            c.writtenWhole = true;
        } else if (key == "partial-line") {
            std::getline(rest, key);
            c.partialLineRead = key == "read";
        } else {
            EXPECT_TRUE(key.empty() || key[0] == '#') << path << ": " << line;
        }
    }
    return c;
}
