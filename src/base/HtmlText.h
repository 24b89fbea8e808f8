// Pieces of the HTML report's text.
#pragma once

#include <cstddef>
#include <string_view>

// The most an escaped text takes, for each character of the text ("&amp;").
constexpr std::size_t kEscapedRoom = 5;
// Writes text copied from the files from to, which has kEscapedRoom characters for each of
// text's, with &, < and > escaped so that a name cannot break the page; returns the end.
char* WriteEscaped(char* to, std::string_view text);

// The letter "GFEDCBA" gives a grade from 0 to 6 (0 is G, 6 is A). Other grades have no letter;
// they show as '?', so that a damaged value is visible rather than mistaken for a real grade.
char GradeLetter(int grade);
// The grade letter of a leader's command type: its name's first character as a digit.
char CommandLetter(std::string_view commandType);
