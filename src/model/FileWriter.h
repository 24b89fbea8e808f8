// The one way the program writes a file.
#pragma once

#include <string>
#include <string_view>

// Replaces the file at path by bytes, or leaves it as it was. The bytes go to a temporary file
// in the same folder, which is written, checked, flushed to disk, given the old file's
// permission bits and renamed over the old file (over the file a symbolic link points to, not
// over the link); the folder is synced after. Gives RESULT_DONE or RESULT_CANNOT_WRITE; on
// failure no temporary file is left and LastWriteError() names the file and the reason.
int ReplaceFile(const std::string& path, std::string_view bytes);

// Appends bytes to the file at path (created when missing), flushed to disk and checked.
int AppendToFile(const std::string& path, std::string_view bytes);

// "<path>: <reason>" of the last write that failed.
const std::string& LastWriteError();
