// File choosers follow the flags their caller gives: an open chooser takes a name that does not
// exist unless it must exist, and a save chooser asks before it gives an existing file.
#include "MainWindowFixture.h"
#include "platform/FileDialog.h"

namespace {
TEST_F(FileCommandsTest, ChoosersFollowTheirFlags) {
    std::vector<std::string> refused;
    ui.SetFailureHandler([&](const std::string& problem) { refused.push_back(problem); });
    const char* filter = "Workspace Files (*.txt)|*.txt|";
    const struct {
        bool open;
        unsigned flags;
        const char* answer;
        int result;
        bool askedOverwrite;
    } cases[] = {
        {true, OFN_FILEMUSTEXIST, "absent", IDCANCEL, false},
        {true, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, "absent", IDOK, false},
        {true, OFN_FILEMUSTEXIST | OFN_OVERWRITEPROMPT, "harnwick", IDOK, false},
        {false, OFN_OVERWRITEPROMPT, "harnwick", IDOK, true},
        {false, OFN_HIDEREADONLY, "harnwick", IDOK, false},
    };
    for (const auto& c : cases) {
        ui.AnswerFileDialog(folder / c.answer);
        EXPECT_EQ(CFileDialog(c.open, "txt", "", c.flags, filter).DoModal(), c.result) << c.answer;
        EXPECT_EQ(ui.FileDialogs().back().askedOverwrite, c.askedOverwrite) << c.answer;
    }
    EXPECT_EQ(ParseFileFilter("A (*.a)|*.a|B|*.b;*.c|Dangling").back().pattern, "*.b;*.c");
    EXPECT_EQ(AddDefaultExtension("/x.y/army", "oob"), "/x.y/army.oob");
    EXPECT_EQ(AddDefaultExtension("army.", "oob"), "army.");
    EXPECT_EQ(refused, std::vector<std::string>{"file chooser refuses \"" + folder / "absent.txt" +
                                                "\": it must exist and does not"});
}

// Load of a workspace name that does not exist shows the workspace dialog with the defaults.
TEST_F(FileCommandsTest, LoadOfAMissingWorkspaceShowsTheDefaults) {
    Run([&](CHeadlessUser& user, CMainDlg&) {
        ui.AnswerMessage("Do you want to load an existing workspace?", IDYES);
        ui.AnswerFileDialog(folder / "absent");
        ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) {
            EXPECT_EQ(ws.Text(IDC_WS_TITLE), "New Order of Battle");
            EXPECT_EQ(ws.Text(IDC_WS_OOB_FILE) + ws.Text(IDC_WS_TARGET_FILE), "");
            ws.Escape();
        });
        user.Command(ID_FILE_LOAD);
        ExpectStatus(user, "-", "-");
    });
    EXPECT_TRUE(ui.FileDialogs()[0].open);
}
}  // namespace
