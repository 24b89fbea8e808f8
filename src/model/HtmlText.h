// Pieces of the HTML report's text.
#pragma once

#include <string>
#include <string_view>

// Appends text copied from the files, with &, < and > escaped so that a name cannot break the
// page.
void AppendEscaped(std::string& out, std::string_view text);

// The letter "GFEDCBA" gives a grade from 0 to 6 (0 is G, 6 is A). Other grades have no letter;
// they show as '?', so that a damaged value is visible rather than mistaken for a real grade.
char GradeLetter(int grade);
// The grade letter of a leader's command type: its name's first character as a digit.
char CommandLetter(std::string_view commandType);
