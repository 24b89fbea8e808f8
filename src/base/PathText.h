// The characters a path's bytes stand for. A path is the file system's own bytes and is never
// changed; here the file system's text is UTF-8, but a path that came from a file written on
// Windows holds Windows-1252 bytes. Bytes that are valid UTF-8 are read as UTF-8 (a Windows-1252
// text is valid UTF-8 only by a rare accident of accented capitals followed by symbols), any
// others as Windows-1252, so every path has a text and goes back to the same bytes.
#pragma once

#include <string>
#include <string_view>

bool IsValidUtf8(std::string_view bytes);

std::u32string PathToUnicode(std::string_view bytes);

// The bytes for text shown in place of the path original: original itself when text is what it
// shows, so that an untouched field gives its bytes back; else text in the code page original
// was shown in (Windows-1252 when that can hold it), else UTF-8. A character that is no Unicode
// scalar value (a lone surrogate) becomes U+FFFD.
std::string UnicodeToPath(const std::u32string& text, std::string_view original = {});
