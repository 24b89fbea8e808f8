// Where every writer finishes its lines: a line is never written longer than a reader takes.
#pragma once

#include <cstddef>
#include <string>

#include "base/TextLines.h"

// Cuts the line from lineStart to the end of out to kMaxLineLength, as the readers cut it, with
// the separators left at the cut dropped: tabs and the format's delimiter (' ' in an order of
// battle, '|' in the game data and the workspace).
void CutLine(std::string& out, std::size_t lineStart, char delimiter);

// The same when the line is longer than a reader takes. The test is made here, without a call:
// the order-of-battle writer makes it for each of a million lines.
inline void CutOverLongLine(std::string& out, std::size_t lineStart, char delimiter) {
    if (out.size() - lineStart > kMaxLineLength) {
        CutLine(out, lineStart, delimiter);
    }
}

// The same for every line of a whole text (the writers that write through a stream).
void CutOverLongLines(std::string& text, char delimiter);
