// A temporary folder per test, removed with everything in it afterwards, and file helpers.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

class CTempFolder {
public:
    CTempFolder() {
        char pattern[] = "/tmp/harnwick-test-XXXXXX";
        const char* made = ::mkdtemp(pattern);
        EXPECT_NE(made, nullptr);
        m_strPath = made ? made : "";
    }
    ~CTempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_strPath, ignored);
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    const std::string& Path() const { return m_strPath; }
    std::string operator/(const std::string& name) const { return m_strPath + "/" + name; }

    // The names in the folder (or in its subfolder sub), sorted.
    std::vector<std::string> Names(const std::string& sub = "") const {
        std::vector<std::string> names;
        for (const auto& e : std::filesystem::directory_iterator(m_strPath + "/" + sub)) {
            names.push_back(e.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::string m_strPath;
};

inline std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return std::move(out).str();
}

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}
