// The workspace reader on any file, and its writer: what the writer makes of a workspace reads
// back as the same workspace and is written again byte for byte.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "FuzzSupport.h"
#include "app/Workspace.h"

namespace {

bool SameFields(const CWorkspace& a, const CWorkspace& b) {
    return a.m_strTitle == b.m_strTitle && a.m_strOobFile == b.m_strOobFile &&
           a.m_strBackupFile == b.m_strBackupFile && a.m_strTargetFile == b.m_strTargetFile &&
           a.m_nPictureFlags == b.m_nPictureFlags && a.m_strPicturePaths == b.m_strPicturePaths;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    CWorkspace first;
    first.ReadFrom(input);
    const std::string written = first.ToText();
    if (HasOverLongLine(written)) {
        return 0;
    }
    std::istringstream again(written);
    CWorkspace second;
    second.ReadFrom(again);
    Require(SameFields(first, second), "a written workspace reads back differently");
    Require(second.ToText() == written, "a written workspace is written differently");
    return 0;
}
