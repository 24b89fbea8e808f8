// Finding the file a stored path names. Game data and workspaces written on Windows name their
// files with backslashes and in any letter case ("Pictures\Units.BMP"); here names are exact
// and only '/' separates them. The stored path is never changed (a file saved writes it back
// byte for byte): only the opening of a file goes where it resolves to.
#pragma once

#include <string>

// The path itself when it exists; else the path taken apart at '/' and '\\', each part found in
// the folder before it: its exact name first, else the one name that equals it but for letter
// case (ASCII and the Windows-1252 letters, each name read as PathToUnicode reads it; among
// several, the least in byte order). The stored path unchanged when some part is not found, so
// that a message about the file names what the file said.
std::string ResolvePath(const std::string& stored);

// Where a file named by a stored path is written: the file it resolves to when there is one,
// else its folder resolved and its own name as stored (a new backup file in a folder spelt in
// another case).
std::string ResolvePathToWrite(const std::string& stored);
