// Paths written on Windows (backslashes, any letter case, Windows-1252 names) find their files;
// the stored path itself never changes.
#include "base/PathResolve.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "TempFolder.h"
#include "base/BmpReader.h"
#include "base/FileWriter.h"
#include "base/PathText.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "model/Templates.h"
#include "model/Workspace.h"

namespace {

namespace fs = std::filesystem;

const std::string kGeneraux = "G\xC3\xA9n\xC3\xA9raux";  // UTF-8, as the file system names it

// An exact name is taken before one differing in case, and among several of those the least;
// a Windows-1252 name finds its UTF-8 folder; a part found nowhere leaves the path as stored,
// while a path to write keeps only its own missing name.
TEST(PathResolve, FindsEachPartExactlyElseButForCase) {
    CTempFolder folder;
    for (const std::string sub : {"Pictures", "data", "Data", kGeneraux.c_str()}) {
        fs::create_directory(folder / sub);
    }
    WriteBytes(folder / "Pictures/Units.bmp", "");
    WriteBytes(folder / "data/army.oob", "");
    WriteBytes(folder / "Data/army.oob", "");
    WriteBytes(folder / (kGeneraux + "/Faces.bmp"), "");
    const std::string at = folder.Path();
    const struct {
        std::string stored, read, written;
    } cases[] = {
        {at + "\\PICTURES\\units.BMP", at + "/Pictures/Units.bmp", at + "/Pictures/Units.bmp"},
        {at + "/data\\ARMY.oob", at + "/data/army.oob", at + "/data/army.oob"},
        {at + "\\DATA\\.\\\\army.oob", at + "/Data/army.oob", at + "/Data/army.oob"},
        {at + "\\g\xC9N\xC9RAUX\\faces.bmp", at + "/" + kGeneraux + "/Faces.bmp",
         at + "/" + kGeneraux + "/Faces.bmp"},
        {at + "\\data\\..\\pictures\\Units.bmp", at + "/data/../Pictures/Units.bmp",
         at + "/data/../Pictures/Units.bmp"},
        {at + "\\pictures\\New.bmp", at + "\\pictures\\New.bmp", at + "/Pictures/New.bmp"},
        {at + "\\Nowhere\\Units.bmp", at + "\\Nowhere\\Units.bmp", at + "\\Nowhere\\Units.bmp"},
        {"", "", ""},
        {"\\\\", "\\\\", "\\\\"},
        {std::string(5000, '\\'), std::string(5000, '\\'), std::string(5000, '\\')},
        {at + std::string("/data\0x", 7), at + std::string("/data\0x", 7),
         at + std::string("/data\0x", 7)},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ResolvePath(c.stored), c.read) << c.stored;
        EXPECT_EQ(ResolvePathToWrite(c.stored), c.written) << c.stored;
    }
}

// Valid UTF-8 is read as UTF-8, anything else as Windows-1252; a text the user did not change
// gives its own bytes back, a changed one keeps the code page it was shown in while it can.
TEST(PathResolve, PathTextComesBackAsItsOwnBytes) {
    const std::string windows = "G\xE9n";
    const std::string utf8 = "G\xC3\xA9n";
    EXPECT_EQ(PathToUnicode(windows), U"G\u00E9n");
    EXPECT_EQ(PathToUnicode(utf8), U"G\u00E9n");
    EXPECT_EQ(UnicodeToPath(U"G\u00E9n", windows), windows);
    EXPECT_EQ(UnicodeToPath(U"G\u00E9n", utf8), utf8);
    EXPECT_EQ(UnicodeToPath(U"G\u00E9nx", windows), windows + "x");
    EXPECT_EQ(UnicodeToPath(U"G\u00E9n\u041A", windows), utf8 + "\xD0\x9A");
    EXPECT_EQ(UnicodeToPath(U"\U0001F600\xD800"), "\xF0\x9F\x98\x80\xEF\xBF\xBD");
    for (const char* invalid :
         {"\xC0\xAF", "\xED\xA0\x80", "\xE2\x82", "\xF4\x90\x80\x80", "\xFF"}) {
        EXPECT_FALSE(IsValidUtf8(invalid)) << invalid;
    }
}

// A workspace and game data written on Windows: every file is found, a new backup goes into the
// folder as spelt here, and saving writes each path back as it was read.
TEST(PathResolve, WindowsWorkspaceFindsItsFilesAndIsSavedAsRead) {
    CTempFolder folder;
    for (const char* sub : {"pictures", "data", "backup"}) {
        fs::create_directory(folder / sub);
    }
    fs::copy_file(HW_SAMPLE_DIR "/units.bmp", folder / "pictures/units.bmp");
    fs::copy_file(HW_SAMPLE_DIR "/valdoria.inf", folder / "data/valdoria.inf");
    fs::copy_file(HW_SAMPLE_DIR "/valdoria.tpl", folder / "data/VALDORIA.TPL");
    const std::string at = folder.Path() + "\\";
    const std::string text = "Spring|\r\n" + at + "Data\\Spring.OOB|\r\n" + at +
                             "Backup\\Spring.OOB|\r\n" + at + "Data\\Valdoria.INF|\r\n1|" + at +
                             "Pictures\\Units.BMP|\r\n0|empty|\r\n0|empty|\r\n0|empty|\r\n"
                             "0|empty|\r\n";
    WriteBytes(folder / "spring.txt", text);
    CWorkspace workspace;
    ASSERT_EQ(workspace.Load(folder / "spring.txt"), RESULT_DONE);
    EXPECT_TRUE(ReadBmpFile(workspace.m_strPicturePaths[0]).Done());
    CGameDatabase database;
    ASSERT_EQ(database.Load(workspace.m_strTargetFile), RESULT_DONE);
    std::string templates;
    EXPECT_TRUE(ReadWholeFile(TemplateFilePath(database), templates));
    EXPECT_EQ(database.Save(database.m_strFilePath), RESULT_DONE);
    EXPECT_EQ(ReplaceFile(workspace.m_strBackupFile, "backup"), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "backup/Spring.OOB"), "backup");
    EXPECT_EQ(folder.Names("data"), (std::vector<std::string>{"VALDORIA.TPL", "valdoria.inf"}));
    ASSERT_EQ(workspace.Save(workspace.m_strPath), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "spring.txt"), text);
    EXPECT_EQ(database.m_strFilePath, at + "Data\\Valdoria.INF");
}

}  // namespace
