// Undo and Redo head the Edit menu with their keys beside them, are enabled while there is
// something to undo or redo, and New and Load forget the history.
#include <gtest/gtest.h>

#include "MainWindowFixture.h"
#include "resources/Resources.h"

namespace {

TEST_F(MainWindowTest, UndoAndRedoFollowTheHistory) {
    const std::vector<CMenuItem>& edit =
        MenuResource(IDR_MAINMENU).GetSubMenu(kEditMenuPosition).popup;
    ASSERT_GE(edit.size(), 2u);
    EXPECT_EQ(std::pair(edit[0].id, edit[1].id), (std::pair<int, int>(ID_EDIT_UNDO, ID_EDIT_REDO)));
    EXPECT_EQ(edit[0].keys.at(0) + edit[1].keys.at(0) + edit[1].keys.at(1),
              "Ctrl+ZCtrl+Shift+ZCtrl+Y");
    auto enabled = [](CMainDlg& main) {
        return std::pair(main.IsCommandEnabled(ID_EDIT_UNDO), main.IsCommandEnabled(ID_EDIT_REDO));
    };
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        EXPECT_EQ(enabled(main), std::pair(false, false));
        Load(user, folder / "harnwick.txt");
        EXPECT_EQ(enabled(main), std::pair(false, false));
        EditTree(main);
        EXPECT_EQ(enabled(main), std::pair(true, false));
        user.Command(ID_EDIT_UNDO);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(main.m_tree.GetItemText(main.m_tree.GetRootItem()), "Royal Army of Valdoria");
        EXPECT_EQ(enabled(main), std::pair(false, true));
        user.Command(ID_EDIT_REDO);
        ExpectStatus(user, "*", "*");
        EXPECT_EQ(main.m_tree.GetItemText(main.m_tree.GetRootItem()), "First Army");
        user.Command(ID_EDIT_UNDO);
        Load(user, folder / "harnwick.txt");
        EXPECT_EQ(enabled(main), std::pair(false, false));
    });
}

}  // namespace
