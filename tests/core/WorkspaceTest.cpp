// The workspace file: nine lines of bar-ended fields, written with CR LF and read through the
// bar tokenizer, whose normalisation decides what odd lines read as.
#include "model/Workspace.h"

#include <gtest/gtest.h>

#include <string>

#include "TempFolder.h"
#include "WorkspaceFields.h"
#include "base/Result.h"

namespace {

class Workspace : public ::testing::Test {
protected:
    Workspace() {
        m_fresh.m_strTitle = "New Order of Battle";
        m_fresh.m_strOobFile = "war.oob";
        m_fresh.m_strTargetFile = "war.inf";
        m_fresh.m_nPictureFlags[4] = 1;
        m_fresh.m_strPicturePaths[4] = "icons3d0.bmp";
    }
    // A workspace loaded over the fresh one from a file holding text.
    CWorkspace LoadOverFresh(const std::string& text) {
        WriteBytes(m_folder / "w.txt", text);
        CWorkspace loaded = m_fresh;
        EXPECT_EQ(loaded.Load(m_folder / "w.txt"), RESULT_DONE);
        return loaded;
    }

    CTempFolder m_folder;
    CWorkspace m_fresh;
};

TEST_F(Workspace, WritesNineLinesAndReadsThemBack) {
    const std::string path = m_folder / "fresh.txt";
    ASSERT_EQ(m_fresh.Save(path), RESULT_DONE);
    EXPECT_EQ(ReadBytes(path),
              "New Order of Battle|\r\nwar.oob|\r\n|\r\nwar.inf|\r\n0|empty|\r\n0|empty|\r\n"
              "0|empty|\r\n0|empty|\r\n1|icons3d0.bmp|\r\n");
    CWorkspace loaded;
    ASSERT_EQ(loaded.Load(path), RESULT_DONE);
    EXPECT_EQ(Fields(loaded), Fields(m_fresh));
    EXPECT_EQ(loaded.m_strPath, path);
    // The path changes only with a write that succeeded.
    EXPECT_EQ(m_fresh.Save(m_folder / "missing/w.txt"), RESULT_CANNOT_WRITE);
    EXPECT_EQ(m_fresh.m_strPath, path);
}

// Tabs separate fields like bars and leading separators go; the lines the file lacks keep what
// the workspace held.
TEST_F(Workspace, LinesReadThroughTheTokenizer) {
    const std::pair<const char*, const char*> cases[] = {
        {"\t1|units.bmp|", "1:units.bmp|"},
        {"1.9|faces.bmp|", "1:faces.bmp|"},
        {"||1|late.bmp|", "1:late.bmp|"},
    };
    for (const auto& [line, fields] : cases) {
        const CWorkspace w = LoadOverFresh("t|\r\no|\r\nb|\r\nx|\r\n" + std::string(line) + "\r\n");
        EXPECT_EQ(Fields(w),
                  std::string("t|o|b|x|") + fields + "0:empty|0:empty|0:empty|1:icons3d0.bmp|")
            << line;
    }
}

}  // namespace
