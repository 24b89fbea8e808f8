// Paths written on Windows (backslashes, any letter case, Windows-1252 names) find their files;
// the stored path itself never changes.
#include "base/PathResolve.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "CaseFile.h"
#include "base/BmpReader.h"
#include "base/FileWriter.h"
#include "base/PathText.h"
#include "base/Windows1252.h"
#include "gamedata/GameDatabase.h"
#include "model/Templates.h"
#include "model/Workspace.h"

namespace fs = std::filesystem;

// The rows of paths.txt, then a workspace and game data written on Windows: every file found, a
// new backup put in the folder as spelt here, and each path saved as it was read.
TEST(PathResolve, WindowsPathsFindTheirFilesAndAreSavedAsRead) {
    CTempFolder folder;
    for (const std::string sub : {"Pictures", "data", "Data", "G\xC3\xA9n\xC3\xA9raux"}) {
        fs::create_directory(folder / sub);
    }
    fs::copy_file(HW_SAMPLE_DIR "/units.bmp", folder / "Pictures/Units.bmp");
    fs::copy_file(HW_SAMPLE_DIR "/valdoria.inf", folder / "data/valdoria.inf");
    fs::copy_file(HW_SAMPLE_DIR "/valdoria.tpl", folder / "data/VALDORIA.TPL");
    WriteBytes(folder / "Data/valdoria.inf", "");
    WriteBytes(folder / "G\xC3\xA9n\xC3\xA9raux/Faces.bmp", "");
    std::istringstream rows(ReadBytes(HW_TEST_DATA "/paths.txt"));
    for (std::string line; std::getline(rows, line);) {
        std::istringstream in(std::regex_replace(line, std::regex("@"), folder.Path()));
        if (line[0] != '#') {
            const std::string stored = Pieces(in, true), read = Pieces(in, true);
            EXPECT_EQ(ResolvePath(stored), read) << line;
            EXPECT_EQ(ResolvePathToWrite(stored), Pieces(in, true)) << line;
        }
    }
    const std::string at = folder.Path() + "\\";
    const std::string text = "Spring|\r\n" + at + "Data\\Spring.OOB|\r\n" + at +
                             "PICTURES\\Spring.OOB|\r\n" + at + "data\\Valdoria.INF|\r\n1|" + at +
                             "Pictures\\UNITS.bmp|\r\n0|empty|\r\n0|empty|\r\n0|empty|\r\n"
                             "0|empty|\r\n";
    WriteBytes(folder / "spring.txt", text);
    CWorkspace workspace;
    ASSERT_EQ(workspace.Load(folder / "spring.txt"), RESULT_DONE);
    EXPECT_TRUE(ReadBmpFile(workspace.m_strPicturePaths[0]).Done());
    CGameDatabase database;
    ASSERT_EQ(database.Load(workspace.m_strTargetFile), RESULT_DONE);
    EXPECT_EQ(ResolvePath(TemplateFilePath(database)), folder / "data/VALDORIA.TPL");
    EXPECT_EQ(database.Save(database.m_strFilePath), RESULT_DONE);
    EXPECT_EQ(ReplaceFile(workspace.m_strBackupFile, "backup"), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "Pictures/Spring.OOB"), "backup");
    EXPECT_EQ(folder.Names("data"), (std::vector<std::string>{"VALDORIA.TPL", "valdoria.inf"}));
    ASSERT_EQ(workspace.Save(workspace.m_strPath), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "spring.txt"), text);
}

// Valid UTF-8 is read as UTF-8, anything else as Windows-1252; a changed text that Windows-1252
// cannot hold is written as UTF-8 (QtPathFieldTest shows the rest of the way back).
TEST(PathResolve, PathTextIsUtf8WhenValidElseWindows1252) {
    EXPECT_EQ(PathToUnicode("G\xC3\xA9n\xF0\x9F\x98\x80"), U"G\u00E9n\U0001F600");
    for (const char* invalid :
         {"G\xE9n", "\xC0\xAF", "\xED\xA0\x80", "\xE2\x82", "\xF4\x90\x80\x80"}) {
        EXPECT_EQ(PathToUnicode(invalid), Windows1252ToUnicode(invalid)) << invalid;
    }
    EXPECT_EQ(UnicodeToPath(U"G\u00E9n\u041A\xD800", "G\xE9n"), "G\xC3\xA9n\xD0\x9A\xEF\xBF\xBD");
}
