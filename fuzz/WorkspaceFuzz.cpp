// The workspace reader on any file, and its writer: what the writer makes of a workspace reads
// back as the same workspace (less what a cut line lost) and is written again byte for byte.
// Each path it names resolves to itself or to a file there is, and its text gives its bytes back.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>

#include "FuzzSupport.h"
#include "base/PathResolve.h"
#include "base/PathText.h"
#include "model/Workspace.h"

namespace {

bool StartsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

// b is a read back from what was written of a: the same numbers, the same texts or, where the
// writer cut a line that grew past what the readers take (a flag of -1 written 255), their start.
bool KeptFields(const CWorkspace& a, const CWorkspace& b) {
    bool kept = a.m_nPictureFlags == b.m_nPictureFlags && StartsWith(a.m_strTitle, b.m_strTitle) &&
                StartsWith(a.m_strOobFile, b.m_strOobFile) &&
                StartsWith(a.m_strBackupFile, b.m_strBackupFile) &&
                StartsWith(a.m_strTargetFile, b.m_strTargetFile);
    for (std::size_t i = 0; i < a.m_strPicturePaths.size(); ++i) {
        kept = kept && StartsWith(a.m_strPicturePaths[i], b.m_strPicturePaths[i]);
    }
    return kept;
}

void CheckPath(const std::string& stored) {
    const std::string found = ResolvePath(stored);
    std::error_code error;
    Require(
        found == stored || std::filesystem::exists(std::filesystem::symlink_status(found, error)),
        "a path resolves to no file");
    ResolvePathToWrite(stored);
    Require(UnicodeToPath(PathToUnicode(stored), stored) == stored,
            "a path's text gives other bytes back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    CWorkspace first;
    first.ReadFrom(input);
    const std::string written = first.ToText();
    std::istringstream again(written);
    CWorkspace second;
    second.ReadFrom(again);
    Require(KeptFields(first, second), "a written workspace reads back differently");
    Require(second.ToText() == written, "a written workspace is written differently");
    for (const std::string* path :
         {&first.m_strOobFile, &first.m_strBackupFile, &first.m_strTargetFile}) {
        CheckPath(*path);
    }
    for (const std::string& path : first.m_strPicturePaths) {
        CheckPath(path);
    }
    return 0;
}
