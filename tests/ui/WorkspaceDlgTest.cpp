// "Workspace Properties": its fields from the workspace, the pickers and what their cancel
// writes, the picture switches, the required paths, and what Accept saves.
#include <gtest/gtest.h>

#include "HeadlessTest.h"
#include "UiFolder.h"
#include "app/Workspace.h"
#include "dialogs/WorkspaceDlg.h"
#include "resources/ResourceIds.h"

namespace {
class WorkspaceDlgTest : public HeadlessTest {
protected:
    WorkspaceDlgTest() : dlg(workspace) {
        workspace.m_strPath = folder / "campaign.txt";
        workspace.m_strTitle = "Northern Marches";
        workspace.m_strOobFile = "marches.oob";
        workspace.m_strBackupFile = "marches.bak";
        workspace.m_strTargetFile = "marches.inf";
        workspace.m_nPictureFlags = {1, 0, 1, 0, 0};
        workspace.m_strPicturePaths = {"art/units.bmp", "empty", "art/icons3d2.bmp", "empty",
                                       "empty"};
        dlg.m_strInitialDir = "/designs";
    }

    // Runs the dialog with script; gives its result.
    int Run(const std::function<void(CHeadlessUser&)>& script) {
        ui.OnDialog(IDD_WORKSPACE, script);
        return dlg.DoModal();
    }

    CUiFolder folder;
    CWorkspace workspace;
    CWorkspaceDlg dlg;
};

TEST_F(WorkspaceDlgTest, ResetTakesEveryFieldBackFromTheWorkspace) {
    ui.CancelFileDialog();
    ui.AnswerFileDialog("/designs/other.bmp");
    Run([](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Changed");
        user.Click(IDC_WS_OOB_PICK);
        user.Click(IDC_WS_LEADER_FACES_ON);
        EXPECT_EQ(user.Text(IDC_WS_LEADER_FACES), "/designs/other.bmp");
        user.Click(IDC_WS_RESET);
        EXPECT_EQ(user.Text(IDC_WS_TITLE), "Northern Marches");
        EXPECT_EQ(user.Text(IDC_WS_OOB_FILE), "marches.oob");
        EXPECT_EQ(user.Text(IDC_WS_LEADER_FACES), "empty");
        EXPECT_EQ(user.Check(IDC_WS_LEADER_FACES_ON), 0);
        user.Escape();
    });
}

struct PickerCase {
    int button;
    int field;
    std::uint16_t openMode;
    bool open;
    const char* defExt;
    const char* firstFilter;
};

class WorkspacePickerTest : public WorkspaceDlgTest,
                            public ::testing::WithParamInterface<PickerCase> {};

// Each picker opens in the opener's folder with its kind, extension and filters; OK writes the
// chosen path, a cancel writes "empty".
TEST_P(WorkspacePickerTest, WritesTheChosenPathOrEmpty) {
    const PickerCase& c = GetParam();
    dlg.m_nOpenMode = c.openMode;
    ui.AnswerFileDialog("/designs/chosen");
    ui.CancelFileDialog();
    Run([&c](CHeadlessUser& user) {
        user.Click(c.button);
        EXPECT_EQ(user.Text(c.field), std::string("/designs/chosen.") + c.defExt);
        user.Click(c.button);
        EXPECT_EQ(user.Text(c.field), "empty");
        user.Click(IDC_WS_CANCEL);
    });
    ASSERT_EQ(ui.FileDialogs().size(), 2u);
    const CShownFileDialog& shown = ui.FileDialogs()[0];
    EXPECT_EQ(shown.open, c.open);
    EXPECT_EQ(shown.defaultExtension, c.defExt);
    EXPECT_EQ(shown.fileName, "");
    EXPECT_EQ(shown.initialDir, "/designs");
    EXPECT_EQ(shown.flags, unsigned{OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT});
    ASSERT_EQ(shown.filters.size(), 2u);
    EXPECT_EQ(shown.filters[0].description, c.firstFilter);
    EXPECT_EQ(shown.filters[1].description, "Text Files (*.txt)");
    EXPECT_EQ(shown.filters[1].pattern, "*.txt");
    EXPECT_EQ(workspace.m_strOobFile, "marches.oob");  // cancelled: the workspace is untouched
}

INSTANTIATE_TEST_SUITE_P(
    Pickers, WorkspacePickerTest,
    ::testing::Values(PickerCase{IDC_WS_OOB_PICK, IDC_WS_OOB_FILE, 0, false, "oob",
                                 "Order Of Battle Files (*.oob)"},
                      PickerCase{IDC_WS_OOB_PICK, IDC_WS_OOB_FILE, 1, true, "oob",
                                 "Order Of Battle Files (*.oob)"},
                      PickerCase{IDC_WS_BACKUP_PICK, IDC_WS_BACKUP_FILE, 1, false, "oob",
                                 "Order Of Battle Files (*.oob)"},
                      PickerCase{IDC_WS_TARGET_PICK, IDC_WS_TARGET_FILE, 0, true, "inf",
                                 "Target Platform Files (*.inf)"}));

struct SwitchCase {
    int checkBox;
    int field;
    const char* file;
    const char* firstFilter;
};

class PictureSwitchTest : public WorkspaceDlgTest,
                          public ::testing::WithParamInterface<SwitchCase> {};

// On: an open picker for the picture file, starting at the path field's text; a cancel turns
// the switch off again and writes "empty". Off: the path becomes "empty".
TEST_P(PictureSwitchTest, OnAsksForTheFileAndOffForgetsIt) {
    const SwitchCase& c = GetParam();
    workspace.m_nPictureFlags.fill(0);
    workspace.m_strPicturePaths.fill("art/old.bmp");
    const std::string chosen = std::string("/designs/art/") + c.file;
    ui.AnswerFileDialog(chosen);
    ui.CancelFileDialog();
    Run([&](CHeadlessUser& user) {
        user.Click(c.checkBox);
        EXPECT_EQ(user.Check(c.checkBox), 1);
        EXPECT_EQ(user.Text(c.field), chosen);
        user.Click(c.checkBox);
        EXPECT_EQ(user.Check(c.checkBox), 0);
        EXPECT_EQ(user.Text(c.field), "empty");
        user.Click(c.checkBox);
        EXPECT_EQ(user.Check(c.checkBox), 0);
        EXPECT_EQ(user.Text(c.field), "empty");
        user.Click(IDC_WS_CANCEL);
    });
    ASSERT_EQ(ui.FileDialogs().size(), 2u);
    const CShownFileDialog& shown = ui.FileDialogs()[0];
    EXPECT_TRUE(shown.open);
    EXPECT_EQ(shown.defaultExtension, "bmp");
    EXPECT_EQ(shown.initialDir, "art/old.bmp");
    EXPECT_EQ(ui.FileDialogs()[1].initialDir, "empty");
    ASSERT_EQ(shown.filters.size(), 2u);
    EXPECT_EQ(shown.filters[0].description, c.firstFilter);
    EXPECT_EQ(shown.filters[0].pattern, c.file);
    EXPECT_EQ(shown.filters[1].description, "Bitmap Files (*.bmp)");
}

INSTANTIATE_TEST_SUITE_P(
    Switches, PictureSwitchTest,
    ::testing::Values(SwitchCase{IDC_WS_UNIT_PICTURES_ON, IDC_WS_UNIT_PICTURES, "units.bmp",
                                 "Unit Picture Files (units.bmp)"},
                      SwitchCase{IDC_WS_LEADER_FACES_ON, IDC_WS_LEADER_FACES, "leaders.bmp",
                                 "Leader Face Files (leaders.bmp)"},
                      SwitchCase{IDC_WS_INFANTRY_ICONS_ON, IDC_WS_INFANTRY_ICONS, "icons3d2.bmp",
                                 "Infantry Icon Files (icons3d2.bmp)"},
                      SwitchCase{IDC_WS_CAVALRY_ICONS_ON, IDC_WS_CAVALRY_ICONS, "icons3d1.bmp",
                                 "Cavalry Icon Files (icons3d1.bmp)"},
                      SwitchCase{IDC_WS_ARTILLERY_ICONS_ON, IDC_WS_ARTILLERY_ICONS, "icons3d0.bmp",
                                 "Artillery Icon Files (icons3d0.bmp)"}));

TEST_F(WorkspaceDlgTest, AcceptSavesEveryFieldToTheWorkspaceFile) {
    ui.AnswerFileDialog("/designs/art/leaders.bmp");
    const int result = Run([](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Southern Marches");
        user.Click(IDC_WS_LEADER_FACES_ON);
        user.Click(IDC_WS_INFANTRY_ICONS_ON);
        user.Click(IDC_WS_ACCEPT);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(workspace.m_strTitle, "Southern Marches");
    EXPECT_EQ(ReadFileBytes(folder / "campaign.txt"),
              "Southern Marches|\r\nmarches.oob|\r\nmarches.bak|\r\nmarches.inf|\r\n"
              "1|art/units.bmp|\r\n1|/designs/art/leaders.bmp|\r\n0|empty|\r\n0|empty|\r\n"
              "0|empty|\r\n");
}

// A title typed before a picker is kept through it.
TEST_F(WorkspaceDlgTest, APickerKeepsTheTitleBeingTyped) {
    ui.AnswerFileDialog("/designs/army.oob");
    Run([](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Typed first");
        user.Click(IDC_WS_OOB_PICK);
        EXPECT_EQ(user.Text(IDC_WS_TITLE), "Typed first");
        user.Click(IDC_WS_ACCEPT);
    });
    EXPECT_EQ(workspace.m_strTitle, "Typed first");
    EXPECT_EQ(workspace.m_strOobFile, "/designs/army.oob");
}

struct RequiredCase {
    const char* oobFile;
    const char* targetFile;
    const char* message;  // none: accepted
};

class RequiredPathTest : public WorkspaceDlgTest,
                         public ::testing::WithParamInterface<RequiredCase> {};

// Only the empty text is refused, and the OOB file first; "empty" passes. Refused, the dialog
// stays open with its fields, even with the pickers disabled.
TEST_P(RequiredPathTest, OnlyAnEmptyOobOrTargetPathIsRefused) {
    const RequiredCase& c = GetParam();
    workspace.m_strOobFile = c.oobFile;
    workspace.m_strTargetFile = c.targetFile;
    dlg.m_nMode = 1;
    if (c.message) {
        ui.AnswerMessage(c.message, IDOK);
    }
    const int result = Run([&c](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Typed");
        user.Click(IDC_WS_ACCEPT);
        EXPECT_EQ(user.Dialog().IsRunning(), c.message != nullptr);
        if (user.Dialog().IsRunning()) {
            EXPECT_EQ(user.Text(IDC_WS_TITLE), "Typed");
            user.Click(IDC_WS_CANCEL);
        }
    });
    EXPECT_EQ(result, c.message ? 0 : 1);
    if (c.message) {
        ASSERT_EQ(ui.Messages().size(), 1u);
        EXPECT_EQ(ui.Messages()[0].caption, "Error");
        EXPECT_EQ(ui.Messages()[0].type, unsigned{MB_OK | MB_ICONEXCLAMATION});
        EXPECT_EQ(workspace.m_strTitle, "Northern Marches");
        EXPECT_FALSE(std::filesystem::exists(folder / "campaign.txt"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Paths, RequiredPathTest,
    ::testing::Values(RequiredCase{"", "marches.inf", "You must select OOB file!"},
                      RequiredCase{"", "", "You must select OOB file!"},
                      RequiredCase{"marches.oob", "", "You must select target file!"},
                      RequiredCase{"empty", "empty", nullptr}));

TEST_F(WorkspaceDlgTest, CancelEscapeAndTheCloseBoxGiveZeroAndLeaveTheWorkspace) {
    for (auto leave :
         {+[](CHeadlessUser& u) { u.Click(IDC_WS_CANCEL); }, +[](CHeadlessUser& u) { u.Escape(); },
          +[](CHeadlessUser& u) { u.CloseBox(); }}) {
        EXPECT_EQ(Run([leave](CHeadlessUser& user) {
                      user.Type(IDC_WS_TITLE, "Not kept");
                      leave(user);
                  }),
                  0);
    }
    EXPECT_EQ(workspace.m_strTitle, "Northern Marches");
    EXPECT_FALSE(std::filesystem::exists(folder / "campaign.txt"));
}

// A workspace file that cannot be written: the error names it, the dialog stays open with the
// user's fields, and the workspace keeps its values, so Cancel still leaves it as it was.
TEST_F(WorkspaceDlgTest, AFailedSaveNamesTheFileAndStaysOpen) {
    workspace.m_strPath = folder / "no-such-folder/campaign.txt";
    ui.AnswerMessage(IDOK);
    const int result = Run([](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Unsaved");
        user.Click(IDC_WS_ACCEPT);
        EXPECT_TRUE(user.Dialog().IsRunning());
        EXPECT_EQ(user.Text(IDC_WS_TITLE), "Unsaved");
        user.Click(IDC_WS_CANCEL);
    });
    EXPECT_EQ(result, 0);
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(
        ui.Messages()[0].text.rfind("Cannot write " + folder / "no-such-folder/campaign.txt", 0),
        0u);
    EXPECT_EQ(ui.Messages()[0].caption, "Error");
    EXPECT_EQ(ui.Messages()[0].Icon(), MB_ICONEXCLAMATION);
    EXPECT_EQ(workspace.m_strTitle, "Northern Marches");
    EXPECT_EQ(workspace.m_strPath, folder / "no-such-folder/campaign.txt");
}
}  // namespace
