// A workspace: the order-of-battle file, its backup, the target file and five picture files,
// kept in a nine-line text file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/DataObject.h"
#include "base/Result.h"

class CWorkspace : public CDataObject {
public:
    static constexpr int kPictures = 5;
    // The picture entries, in file order.
    enum Picture { UNIT_PICTURES, LEADER_FACES, INFANTRY_ICONS, CAVALRY_ICONS, ARTILLERY_ICONS };

    CWorkspace();

    void WriteTo(std::ostream& out, std::uint8_t indent) override;
    void ReadFrom(std::istream& in) override;
    // Writes the file at path, which then becomes m_strPath; a write that fails leaves the old
    // file and m_strPath as they were.
    CWriteResult Save(const std::string& path);
    // RESULT_DONE, or RESULT_CANNOT_OPEN with every field kept.
    int Load(const std::string& path);

    std::string ToText();

    std::string m_strPath;  // the workspace file's own path; not stored in it
    std::string m_strTitle;
    std::string m_strOobFile;
    std::string m_strBackupFile;
    std::string m_strTargetFile;
    std::array<std::uint8_t, kPictures> m_nPictureFlags{};
    std::array<std::string, kPictures> m_strPicturePaths;
};
