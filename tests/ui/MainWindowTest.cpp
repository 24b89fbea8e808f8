// Start-up and the main window: START.INI, the fields' first values, Exit and Escape, the
// commands before any workspace, the right-click menu, the About box, and the resources.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "HeadlessTest.h"
#include "app/EditorApp.h"
#include "app/MainDlg.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
// Runs the test in a fresh current folder, as the program runs in its own.
class MainWindowTest : public HeadlessTest {
protected:
    MainWindowTest() {
        char pattern[] = "/tmp/harnwick-ui-XXXXXX";
        folder = ::mkdtemp(pattern);
        previous = std::filesystem::current_path();
        std::filesystem::current_path(folder);
    }
    ~MainWindowTest() override {
        std::filesystem::current_path(previous);
        std::filesystem::remove_all(folder);
    }

    void WriteStartIni(const std::string& bytes) {
        std::ofstream(folder / "START.INI", std::ios::binary) << bytes;
    }

    // Runs the main window with script, and quits it afterwards.
    int Run(const std::function<void(CHeadlessUser&, CMainDlg&)>& script) {
        ui.OnDialog(IDD_HARNWICK_DIALOG, [&](CHeadlessUser& user) {
            script(user, static_cast<CMainDlg&>(user.Dialog()));
            if (user.Dialog().IsRunning()) {
                ui.AnswerMessage("Do you want to quit?", IDYES);
                user.Command(ID_FILE_EXIT);
            }
        });
        return dlg.DoModal();
    }

    std::filesystem::path folder;
    std::filesystem::path previous;
    CMainDlg dlg;
};

TEST_F(MainWindowTest, WithoutStartIniTheProgramSaysSoAndEnds) {
    ui.AnswerMessage(IDOK);
    EXPECT_EQ(dlg.DoModal(), -1);
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Messages()[0].text, "Bad or missing START.INI file!");
    EXPECT_EQ(ui.Messages()[0].caption, "Error");
    EXPECT_EQ(ui.Messages()[0].Icon(), MB_ICONEXCLAMATION);
    EXPECT_EQ(ui.Messages()[0].Buttons(), MB_OK);
}

struct StartIniCase {
    std::string content;
    std::string startDir;
};

class StartIniTest : public MainWindowTest, public ::testing::WithParamInterface<StartIniCase> {};

TEST_P(StartIniTest, TheFirstLineIsTheStartFolder) {
    WriteStartIni(GetParam().content);
    Run([](CHeadlessUser&, CMainDlg& main) { EXPECT_EQ(main.m_strStartDir, GetParam().startDir); });
    EXPECT_EQ(dlg.m_strStartDir, GetParam().startDir);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StartIniTest,
    ::testing::Values(StartIniCase{"", ""}, StartIniCase{"\n/second/line\n", ""},
                      StartIniCase{"/home/designer/oob\r\nignored\r\n", "/home/designer/oob"},
                      StartIniCase{"/no/line/feed", "/no/line/feed"},
                      StartIniCase{std::string(300, 'd') + "\nx", std::string(249, 'd')},
                      StartIniCase{std::string(249, 'e') + "\r\n", std::string(249, 'e')},
                      StartIniCase{"C:\\Caf\xE9\\OOB\n", "C:\\Caf\xE9\\OOB"}));

TEST_F(MainWindowTest, StartsWithNoWorkspaceAndTheFieldsFirstValues) {
    WriteStartIni(".\n");
    Run([](CHeadlessUser& user, CMainDlg& main) {
        EXPECT_EQ(user.Text(IDC_OOB_STATUS), "-");
        EXPECT_EQ(user.Text(IDC_BACKUP_STATUS), "-");
        EXPECT_EQ(user.Text(IDC_MARKED_NAME), "empty");
        EXPECT_EQ(user.Text(IDC_MARKED_CAPTION), "Marked item");
        EXPECT_FALSE(user.IsVisible(IDC_CLIP_LIST));
        EXPECT_FALSE(user.IsVisible(IDC_ENTER));
        EXPECT_EQ(user.FocusId(), IDC_TREE);
        EXPECT_EQ(main.m_nClipMode, 0);
        EXPECT_EQ(main.m_hMarked, nullptr);
        EXPECT_EQ(main.m_pDocument, nullptr);
        EXPECT_EQ(main.m_pWorkspace, nullptr);
        EXPECT_EQ(main.m_pDatabase, nullptr);
        EXPECT_EQ(main.m_tree.GetCount(), 0u);
        EXPECT_EQ(&user.Dialog().GetDlgItem(IDC_TREE)->Tree(), &main.m_tree);
        EXPECT_EQ(&user.Dialog().GetDlgItem(IDC_CLIP_LIST)->Lines(), &main.m_clipList);
    });
}

TEST_F(MainWindowTest, EscapeAsksBeforeQuittingAndNoKeepsTheWindowOpen) {
    WriteStartIni(".\n");
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

// Everything but New, Load, Exit, About and Armies summary needs a workspace: before one is
// open, each does nothing and shows nothing (an unscripted message or dialog fails the test).
TEST_F(MainWindowTest, CommandsBeforeAnyWorkspaceDoNothingAndShowNothing) {
    WriteStartIni(".\n");
    const std::vector<int> commands = {
        ID_FILE_SAVE,           ID_FILE_SAVE_AS,
        ID_FILE_PROPERTIES,     ID_EDIT_PROPERTIES,
        ID_EDIT_COPY,           ID_EDIT_CUT,
        ID_ADD_NEXT_UNIT,       ID_ADD_NEXT_LEADER,
        ID_ADD_NEXT_SUPPLY,     ID_ADD_NEXT_STRUCTURE,
        ID_ADD_NEXT_PASTE,      ID_ADD_NEXT_TEMPLATE,
        ID_ADD_CHILD_UNIT,      ID_ADD_CHILD_LEADER,
        ID_ADD_CHILD_SUPPLY,    ID_ADD_CHILD_STRUCTURE,
        ID_ADD_CHILD_PASTE,     ID_ADD_CHILD_TEMPLATE,
        ID_DELETE_ITEM,         ID_DELETE_CHILDREN,
        ID_EDIT_SAVE_TO_FILE,   ID_EDIT_SAVE_AS_TEMPLATE,
        ID_OPTIONS_FIND,        ID_BACKUP_SAVE,
        ID_BACKUP_RESTORE,      ID_OPTIONS_GET_DATA,
        ID_OPTIONS_SAVE_TARGET, ID_REPORT_HTML,
        ID_REPORT_LEADER,       ID_REPORT_COST,
        ID_REPORT_KEY,
    };
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        for (int command : commands) {
            user.Command(command);
        }
        user.Click(IDC_OOB_STATUS);
        user.Click(IDC_BACKUP_STATUS);
        user.Enter();
        user.Enter(true);
        EXPECT_EQ(user.Text(IDC_OOB_STATUS), "-");
        EXPECT_EQ(user.Text(IDC_BACKUP_STATUS), "-");
        EXPECT_EQ(user.Text(IDC_MARKED_NAME), "empty");
        EXPECT_EQ(user.Text(IDC_MARKED_CAPTION), "Marked item");
        EXPECT_EQ(main.m_tree.GetCount(), 0u);
        EXPECT_EQ(main.m_pWorkspace, nullptr);
    });
    EXPECT_EQ(ui.Messages().size(), 1u);  // the quit question only
    EXPECT_EQ(ui.Dialogs().size(), 1u);
}

TEST_F(MainWindowTest, TheRightClickMenuStillOpensAndItsCommandsDoNothing) {
    WriteStartIni(".\n");
    ui.AnswerPopupMenu(ID_EDIT_COPY);
    ui.AnswerPopupMenu(ID_DELETE_ITEM);
    Run([](CHeadlessUser& user, CMainDlg&) {
        user.RightClick(IDC_TREE);
        user.RightClick(IDC_TREE);
        EXPECT_EQ(user.Text(IDC_MARKED_CAPTION), "Marked item");
    });
    ASSERT_EQ(ui.Popups().size(), 2u);
    const CMenuItem& shown = ui.Popups()[0].menu;
    EXPECT_EQ(shown.text, "&Edit");
    ASSERT_FALSE(shown.popup.empty());
    EXPECT_EQ(shown.popup[0].text, "&Properties");
    // No entry selected: at the tree's top-left corner (7, 7 dialog units).
    EXPECT_EQ(ui.Popups()[0].point, (CPoint{11, 11}));
    EXPECT_EQ(ui.Messages().size(), 1u);
}

TEST_F(MainWindowTest, TheRightClickMenuOpensBesideTheSelectedEntry) {
    WriteStartIni(".\n");
    ui.AnswerPopupMenu(0);
    Run([](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM army = main.m_tree.InsertItem("1st Army");
        user.SelectEntry(IDC_TREE, army);
        user.RightClick(IDC_TREE);
        EXPECT_EQ(main.m_tree.GetSelectedItem(), army);
        main.m_tree.DeleteAllItems();
    });
    // Label 19..19+6*8+4 by 0..16 in the tree, whose client area starts at 11, 11.
    ASSERT_EQ(ui.Popups().size(), 1u);
    EXPECT_EQ(ui.Popups()[0].point, (CPoint{11 + 19 + 52 + 20, 11 + 16}));
}

TEST_F(MainWindowTest, AboutShowsTheProgramsNameVersionAndIcon) {
    WriteStartIni(".\n");
    ui.OnDialog(IDD_ABOUTBOX, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().Resource().caption, "About Harnwick");
        const auto& controls = user.Dialog().Resource().controls;
        EXPECT_EQ(controls[0].image, &IconResource(IDR_MAINFRAME));
        EXPECT_EQ(controls[1].text, "Harnwick Version 4.0");
        user.Enter();
    });
    Run([](CHeadlessUser& user, CMainDlg&) { user.Command(ID_ABOUT); });
    EXPECT_EQ(ui.Dialogs().size(), 2u);
}

TEST_F(MainWindowTest, AMinimisedWindowDrawsItsIconCentred) {
    WriteStartIni(".\n");
    Run([](CHeadlessUser& user, CMainDlg& main) {
        EXPECT_TRUE(user.Paint().Ops().empty());
        user.Minimise(true);
        const auto& ops = user.Paint().Ops();
        ASSERT_EQ(ops.size(), 2u);
        EXPECT_EQ(ops[0].kind, CPaintOp::Kind::EraseIconBackground);
        EXPECT_EQ(ops[1].kind, CPaintOp::Kind::DrawIcon);
        EXPECT_EQ(ops[1].image, main.m_hIcon);
        // A client area of 630 x 406 pixels: (630 - 32 + 1) / 2 and (406 - 32 + 1) / 2.
        EXPECT_EQ(ops[1].x, 299);
        EXPECT_EQ(ops[1].y, 187);
        user.Minimise(false);
    });
}

TEST_F(MainWindowTest, TheApplicationRunsTheMainWindowAndEnds) {
    WriteStartIni(".\n");
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
