// The workspace file: nine lines of bar-ended fields, written with CR LF (what odd lines read as
// is in the hostile workspace cases).
#include "model/Workspace.h"

#include <gtest/gtest.h>

#include <string>

#include "TempFolder.h"
#include "base/Result.h"

namespace {

TEST(Workspace, WritesNineLinesAndReadsThemBack) {
    CTempFolder folder;
    CWorkspace fresh;
    fresh.m_strTitle = "New Order of Battle";
    fresh.m_strOobFile = "war.oob";
    fresh.m_strTargetFile = "war.inf";
    fresh.m_nPictureFlags[4] = 1;
    fresh.m_strPicturePaths[4] = "icons3d0.bmp";
    const std::string path = folder / "fresh.txt";
    ASSERT_EQ(fresh.Save(path), RESULT_DONE);
    EXPECT_EQ(ReadBytes(path),
              "New Order of Battle|\r\nwar.oob|\r\n|\r\nwar.inf|\r\n0|empty|\r\n0|empty|\r\n"
              "0|empty|\r\n0|empty|\r\n1|icons3d0.bmp|\r\n");
    CWorkspace loaded;
    ASSERT_EQ(loaded.Load(path), RESULT_DONE);
    EXPECT_EQ(loaded.m_strPath, path);
    ASSERT_EQ(loaded.Save(folder / "again.txt"), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "again.txt"), ReadBytes(path));
    // The path changes only with a write that succeeded.
    EXPECT_EQ(fresh.Save(folder / "missing/w.txt"), RESULT_CANNOT_WRITE);
    EXPECT_EQ(fresh.m_strPath, path);
}

}  // namespace
