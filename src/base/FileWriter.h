// The one way the program writes a file.
#pragma once

#include <string>
#include <string_view>

// Replaces the file at path by bytes, or leaves it as it was. The bytes go to a temporary file
// in the same folder, which is written, checked, flushed to disk, given the old file's
// permission bits and exchanged with the old file (the file a symbolic link points to, not the
// link); the folder is synced after, and should that fail the names go back, so the old file
// is there again. Gives RESULT_DONE or RESULT_CANNOT_WRITE; on failure no temporary file is
// left and LastWriteError() names the file and the reason. On a file system that cannot
// exchange two names (FAT, network file systems) the old file is renamed over instead, and a
// failure after that rename is still reported though the new bytes stay.
int ReplaceFile(const std::string& path, std::string_view bytes);

// Appends bytes to the file at path (created when missing), flushed to disk and checked.
int AppendToFile(const std::string& path, std::string_view bytes);

// "<path>: <reason>" of the last write that failed.
const std::string& LastWriteError();
