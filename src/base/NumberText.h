// The reports' numbers, byte for byte what printf writes, at a fraction of printf's cost: the
// HTML report writes one or more for each of a million entries.
#pragma once

#include <cstddef>
#include <string>

// Room for any number in printf's "%g" form.
constexpr std::size_t kGeneralRoom = 32;
// Writes value as printf's "%g" writes it (six significant digits) from to, which has
// kGeneralRoom characters, and returns the end.
char* WriteGeneral(char* to, double value);

// Appends value as printf's "%<width>.<precision>f" writes it: blanks before it up to width.
void AppendFixed(std::string& out, double value, int precision, std::size_t width);

// Appends value as printf's "%-<width>d" writes it: blanks after it up to width.
void AppendLeftAligned(std::string& out, long long value, std::size_t width);
