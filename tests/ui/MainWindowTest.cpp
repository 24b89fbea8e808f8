// Start-up and the main window: START.INI, Exit and Escape, the commands before any workspace,
// and the right-click menu.
#include <gtest/gtest.h>

#include "MainWindowFixture.h"
#include "app/EditorApp.h"

namespace {

TEST_F(MainWindowTest, WithoutStartIniTheProgramSaysSoAndEnds) {
    std::filesystem::remove(folder / "START.INI");
    ui.AnswerMessage(IDOK);
    EXPECT_EQ(dlg.DoModal(), -1);
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Messages()[0].text, "Bad or missing START.INI file!");
    EXPECT_EQ(ui.Messages()[0].caption, "Error");
    EXPECT_EQ(ui.Messages()[0].type, unsigned{MB_OK | MB_ICONEXCLAMATION});
}

// The first line is the start folder, cut at 249 characters.
TEST_F(MainWindowTest, TheFirstLineOfStartIniIsTheStartFolder) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"\n/second/line\n", ""},
        {"/home/designer/oob\r\nignored\r\n", "/home/designer/oob"},
        {"/no/line/feed", "/no/line/feed"},
        {std::string(300, 'd') + "\nx", std::string(249, 'd')},
        {"C:\\Caf\xE9\\OOB\n", "C:\\Caf\xE9\\OOB"},
    };
    for (const auto& [content, startDir] : cases) {
        WriteBytes(folder / "START.INI", content);
        Run([](CHeadlessUser&, CMainDlg&) {});
        EXPECT_EQ(dlg.m_strStartDir, startDir) << content.substr(0, 20);
    }
}

TEST_F(MainWindowTest, EscapeAsksBeforeQuittingAndNoKeepsTheWindowOpen) {
    const int result = Run([this](CHeadlessUser& user, CMainDlg&) {
        ui.AnswerMessage("Do you want to quit?", IDNO);
        user.Escape();
        EXPECT_TRUE(user.Dialog().IsRunning());
        ui.AnswerMessage("Do you want to quit?", IDYES);
        user.Escape();
        EXPECT_FALSE(user.Dialog().IsRunning());
    });
    EXPECT_EQ(result, 0);
    ASSERT_EQ(ui.Messages().size(), 2u);
    for (const CShownMessage& shown : ui.Messages()) {
        EXPECT_EQ(shown.caption, "Exit");
        EXPECT_EQ(shown.type, unsigned{MB_YESNO | MB_ICONQUESTION});
    }
}

// The commands that need a workspace do nothing and show nothing before one is open (an
// unscripted message or dialog fails the test; each command still to come brings its own). The
// right-click menu still opens: at the tree's top-left corner with no entry selected, else
// beside the selected entry's label (19..19+6*8+4 by 0..16 in the tree at 11, 11).
TEST_F(MainWindowTest, CommandsBeforeAnyWorkspaceDoNothingAndShowNothing) {
    const int commands[] = {ID_FILE_SAVE, ID_FILE_SAVE_AS, ID_FILE_PROPERTIES};
    ui.AnswerPopupMenu(ID_DELETE_ITEM);
    ui.AnswerPopupMenu(0);
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        for (int command : commands) {
            user.Command(command);
        }
        user.Click(IDC_OOB_STATUS);
        user.Click(IDC_BACKUP_STATUS);
        user.Enter();
        user.Enter(true);
        user.RightClick(IDC_TREE);
        EXPECT_EQ(user.Text(IDC_OOB_STATUS) + user.Text(IDC_BACKUP_STATUS), "--");
        EXPECT_EQ(user.Text(IDC_MARKED_NAME), "empty");
        EXPECT_EQ(user.Text(IDC_MARKED_CAPTION), "Marked item");
        EXPECT_EQ(main.m_tree.GetCount(), 0u);
        EXPECT_EQ(main.m_session.Workspace(), nullptr);
        const HTREEITEM army = main.m_session.ViewStore().InsertItem("1st Army");
        user.SelectEntry(IDC_TREE, army);
        user.RightClick(IDC_TREE);
        EXPECT_EQ(main.m_tree.GetSelectedItem(), army);
        main.m_session.ViewStore().DeleteAllItems();
    });
    EXPECT_EQ(ui.Messages().size(), 1u);  // the quit question only
    EXPECT_EQ(ui.Dialogs().size(), 1u);
    ASSERT_EQ(ui.Popups().size(), 2u);
    EXPECT_EQ(ui.Popups()[0].menu.text, "&Edit");
    EXPECT_EQ(ui.Popups()[0].point, (CPoint{11, 11}));  // 7, 7 dialog units
    EXPECT_EQ(ui.Popups()[1].point, (CPoint{11 + 19 + 52 + 20, 11 + 16}));
}

TEST_F(MainWindowTest, TheApplicationRunsTheMainWindowAndEnds) {
    CEditorApp app;
    ui.AnswerMessage("Do you want to quit?", IDYES);
    ui.OnDialog(IDD_HARNWICK_DIALOG, [&app](CHeadlessUser& user) {
        EXPECT_EQ(app.m_pMainWnd, &user.Dialog());
        user.Escape();
    });
    EXPECT_FALSE(app.InitInstance());
    EXPECT_EQ(app.m_pMainWnd, nullptr);
}
}  // namespace
