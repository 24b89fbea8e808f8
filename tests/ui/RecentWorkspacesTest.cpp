// File, Recent workspaces: the workspaces opened last, kept in the configuration folder, each
// reopened as Load opens a chosen file; one that is gone leaves the list with a message.
#include <gtest/gtest.h>

#include "MainWindowFixture.h"
#include "app/RecentList.h"
#include "model/Workspace.h"

namespace {

TEST(RecentListTest, MostRecentFirstEachOnceAtMostEight) {
    CTempFolder folder;
    CRecentList list;
    for (const char* path : {"/a", "/b", "/c", "/d", "/e", "/f", "/g", "/h", "/i", "/b"}) {
        list.Add(path);
    }
    EXPECT_FALSE(list.Add("/b") || list.Add("/x\ny"));
    ASSERT_TRUE(list.Save(folder / "made/recent").Done());
    list.Load(folder / "made/recent");
    EXPECT_EQ(list.Paths(),
              (std::vector<std::string>{"/b", "/i", "/h", "/g", "/f", "/e", "/d", "/c"}));
}

TEST_F(MainWindowTest, RecentWorkspacesListThoseOpenedAndReopenOne) {
    const std::string other = folder / "a&b.txt";
    std::filesystem::copy_file(folder / "harnwick.txt", other);
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        Load(user, other);
        const std::vector<CMenuItem>& recent = main.MenuList(ID_FILE_RECENT);
        ASSERT_EQ(recent.size(), 2u);
        EXPECT_EQ(recent[0].text + recent[1].text,
                  "&1 " + folder / "a&&b.txt" + "&2 " + folder / "harnwick.txt");
        EditTree(main);
        ui.AnswerMessage("Do you want to save your files?", IDNO);
        ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) { ws.Click(IDC_WS_ACCEPT); });
        user.Command(ID_FILE_MRU_FILE1 + 1);
        EXPECT_EQ(main.m_session.Workspace()->m_strPath, folder / "harnwick.txt");
        EXPECT_EQ(recent[0].text, "&1 " + folder / "harnwick.txt");

        std::filesystem::remove(other);
        ui.AnswerMessage("The workspace file " + other +
                             " no longer exists. It has been taken out of the recent workspaces.",
                         IDOK);
        user.Command(ID_FILE_MRU_FILE1 + 1);
        EXPECT_EQ(recent.size(), 1u);
    });
    EXPECT_EQ(ReadBytes(folder / "config/harnwick/recent"), folder / "harnwick.txt\n");
}

}  // namespace
