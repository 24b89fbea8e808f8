// The one way the program writes a file.
#pragma once

#include <string>
#include <string_view>

#include "base/Result.h"

// Replaces the file at path by bytes, or leaves it as it was. The bytes go to a temporary file
// in the same folder, which is written, checked, flushed to disk, given the old file's
// permission bits and exchanged with the old file (the file a symbolic link points to, not the
// link); the folder is synced after, and should that fail the names go back, so the old file
// is there again. Gives RESULT_DONE or RESULT_CANNOT_WRITE with the file and the reason; on
// failure no temporary file is left. On a file system that cannot exchange two names (FAT,
// network file systems) the old file is renamed over instead, and a failure after that rename
// is still reported though the new bytes stay. The file is where ResolvePathToWrite finds it; a
// failure names path as given.
CWriteResult ReplaceFile(const std::string& path, std::string_view bytes);

// Saves an object whose own file is filePath under path: write replaces the file at path, and
// only a write that succeeded makes path the object's file. A write that fails leaves the
// object naming the file it named before, so that the next save goes where its file is.
template <typename Write>
CWriteResult SaveAs(std::string& filePath, const std::string& path, Write write) {
    CWriteResult result = write();
    if (result.Done()) {
        filePath = path;
    }
    return result;
}

// Appends bytes to the file at path (found as ReplaceFile finds it; created when missing),
// flushed to disk and checked.
CWriteResult AppendToFile(const std::string& path, std::string_view bytes);
