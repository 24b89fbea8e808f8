// The workspaces opened last (File, Recent workspaces): the most recent first, each once, at
// most eight, kept in a text file of one path a line.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Result.h"

class CRecentList {
public:
    static constexpr std::size_t kMax = 8;

    // The list the file at path holds; a file that does not open gives an empty list.
    void Load(const std::string& path);
    // Replaces the file at path by the list through the safe writer, its folder made when
    // missing.
    CWriteResult Save(const std::string& path) const;
    // path goes first; listed already, it moves there; the ninth path goes. A path that a line
    // of the file cannot hold (empty, or with a line feed) is not listed. Gives whether the list
    // changed.
    bool Add(const std::string& path);
    void Remove(const std::string& path);

    const std::vector<std::string>& Paths() const { return m_paths; }

private:
    std::vector<std::string> m_paths;
};
