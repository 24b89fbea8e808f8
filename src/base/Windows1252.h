// The Windows-1252 code page: the files and every text of the program are its bytes; the Qt
// face converts at the boundary. The five bytes the code page leaves undefined map to the C1
// controls of the same value, so every byte has a character and back.
#pragma once

#include <string>
#include <string_view>

char32_t Windows1252ToUnicode(unsigned char byte);
// The byte for character c, or -1 when the code page cannot hold it.
int UnicodeToWindows1252(char32_t c);

std::u32string Windows1252ToUnicode(std::string_view bytes);
// False (and bytes unchanged) when some character has no byte.
bool UnicodeToWindows1252(const std::u32string& text, std::string& bytes);
