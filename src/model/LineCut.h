// Where every writer finishes its lines: a line is never written longer than a reader takes.
#pragma once

#include <cstddef>
#include <string>

// Cuts the line that runs from lineStart to the end of out, when it is longer than a reader
// takes, as the readers cut it, with the separators left at the cut dropped: tabs and the
// format's delimiter (' ' in an order of battle, '|' in the game data and the workspace).
void CutOverLongLine(std::string& out, std::size_t lineStart, char delimiter);

// The same for every line of a whole text (the writers that write through a stream).
void CutOverLongLines(std::string& text, char delimiter);
