// A fresh temporary folder made the current one for the length of a test, as the editor runs in
// its own folder; removed with everything in it afterwards.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

class CUiFolder {
public:
    CUiFolder() {
        char pattern[] = "/tmp/harnwick-ui-XXXXXX";
        const char* made = ::mkdtemp(pattern);
        EXPECT_NE(made, nullptr);
        m_path = made ? made : "/tmp";
        m_previous = std::filesystem::current_path();
        std::filesystem::current_path(m_path);
    }
    ~CUiFolder() {
        std::filesystem::current_path(m_previous);
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    CUiFolder(const CUiFolder&) = delete;
    CUiFolder& operator=(const CUiFolder&) = delete;

    std::string Path() const { return m_path.string(); }
    std::string operator/(const std::string& name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
    std::filesystem::path m_previous;
};

inline std::string ReadFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return std::move(out).str();
}

inline void WriteFileBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}
