#include "model/RecoveryFolder.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/FileWriter.h"

namespace fs = std::filesystem;

namespace {
constexpr const char* kCopyExtension = ".oob";
constexpr const char* kHeaderExtension = ".txt";

// FNV-1a: a file name that stays the same for the same workspace path from run to run.
std::string Digest(const std::string& text) {
    std::uint64_t hash = 14695981039346656037ull;
    for (unsigned char c : text) {
        hash = (hash ^ c) * 1099511628211ull;
    }
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(hash));
    return hex;
}

void RemoveQuietly(const fs::path& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}
}  // namespace

std::string CRecoveryFolder::PathOf(const std::string& workspace, const char* extension) const {
    return (fs::path(m_strFolder) / (Digest(workspace) + extension)).string();
}

// The copy goes first: a header always names the workspace whose copy lies beside it.
CWriteResult CRecoveryFolder::Write(const std::string& workspace, const std::string& oobFile,
                                    std::string_view text) const {
    std::error_code error;
    fs::create_directories(m_strFolder, error);
    if (error) {
        return {RESULT_CANNOT_WRITE, m_strFolder + ": " + error.message()};
    }
    CWriteResult written = ReplaceFile(PathOf(workspace, kCopyExtension), text);
    if (written.Done()) {
        written =
            ReplaceFile(PathOf(workspace, kHeaderExtension), workspace + "\n" + oobFile + "\n");
    }
    return written;
}

void CRecoveryFolder::Remove(const std::string& workspace) const {
    RemoveQuietly(PathOf(workspace, kCopyExtension));
    RemoveQuietly(PathOf(workspace, kHeaderExtension));
}

std::vector<CRecoveryFolder::CCopy> CRecoveryFolder::Pending() const {
    std::vector<std::pair<fs::file_time_type, CCopy>> found;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_strFolder, error)) {
        const fs::path header = entry.path();
        if (header.extension() != kHeaderExtension) {
            continue;
        }
        CCopy copy;
        std::ifstream in(header, std::ios::binary);
        std::getline(in, copy.workspace);
        std::getline(in, copy.oobFile);
        copy.path = fs::path(header).replace_extension(kCopyExtension).string();
        // A header another program left, or one that names another workspace, is not ours.
        if (header.stem() != Digest(copy.workspace)) {
            continue;
        }
        std::error_code noCopy;
        const fs::file_time_type written = fs::last_write_time(copy.path, noCopy);
        if (noCopy) {
            RemoveQuietly(header);
            continue;
        }
        std::error_code noFile;
        const fs::file_time_type saved = fs::last_write_time(copy.oobFile, noFile);
        if (!noFile && saved >= written) {
            Remove(copy.workspace);
            continue;
        }
        found.emplace_back(written, std::move(copy));
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<CCopy> copies;
    for (auto& [written, copy] : found) {
        copies.push_back(std::move(copy));
    }
    return copies;
}
