// Where every writer finishes its lines: a line is never written longer than a reader takes.
#pragma once

#include <cstddef>
#include <string>

// Cuts the line that runs from lineStart to the end of out, when it is longer than a reader
// takes, as the readers cut it, with the blanks and field ends left at the cut dropped.
void CutOverLongLine(std::string& out, std::size_t lineStart);

// The same for every line of a whole text (the writers that write through a stream).
void CutOverLongLines(std::string& text);
