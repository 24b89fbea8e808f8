// The bytes of the last file written, kept for the next one.
#pragma once

#include <string>

#include "base/FileWriter.h"

// A large order of battle is saved again and again, and its reports written after it: building
// each file's text in memory already in use saves faulting in fresh pages for every byte, which
// takes as long as writing the file.
class CWriteBuffer {
public:
    // Replaces the file at path by the bytes fill appends to the emptied buffer.
    template <typename Fill>
    CWriteResult Replace(const std::string& path, Fill fill) {
        m_bytes.clear();
        fill(m_bytes);
        return ReplaceFile(path, m_bytes);
    }

private:
    std::string m_bytes;
};
