#include "app/RecentList.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/FileWriter.h"

void CRecentList::Load(const std::string& path) {
    m_paths.clear();
    std::ifstream in(path, std::ios::binary);
    std::string line;
    while (m_paths.size() < kMax && std::getline(in, line)) {
        if (!line.empty() && std::find(m_paths.begin(), m_paths.end(), line) == m_paths.end()) {
            m_paths.push_back(line);
        }
    }
}

CWriteResult CRecentList::Save(const std::string& path) const {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error) {
        return {RESULT_CANNOT_WRITE, path + ": " + error.message()};
    }
    std::string text;
    for (const std::string& listed : m_paths) {
        text += listed + "\n";
    }
    return ReplaceFile(path, text);
}

bool CRecentList::Add(const std::string& path) {
    if (path.empty() || path.find('\n') != std::string::npos ||
        (!m_paths.empty() && m_paths.front() == path)) {
        return false;
    }
    Remove(path);
    m_paths.insert(m_paths.begin(), path);
    if (m_paths.size() > kMax) {
        m_paths.resize(kMax);
    }
    return true;
}

void CRecentList::Remove(const std::string& path) {
    std::erase(m_paths, path);
}
