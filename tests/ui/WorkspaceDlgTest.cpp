// "Workspace Properties": its fields from the workspace, the pickers and what their cancel
// writes, the picture switches, the required paths, and what Accept saves.
#include <gtest/gtest.h>

#include "HeadlessTest.h"
#include "UiFolder.h"
#include "dialogs/WorkspaceDlg.h"
#include "model/Workspace.h"
#include "resources/ResourceIds.h"

namespace {
using Script = std::function<void(CHeadlessUser&)>;

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
    int Run(const Script& script) {
        ui.OnDialog(IDD_WORKSPACE, script);
        return dlg.DoModal();
    }

    CUiFolder folder;
    CWorkspace workspace;
    CWorkspaceDlg dlg;
};

// Each picker opens in the opener's folder with its kind and extension, and writes the chosen
// path or, cancelled, "empty". A picture switch turned on opens a picker at the path field's
// text; turned off, or its picker cancelled, it is off with "empty". The workspace is untouched.
TEST_F(WorkspaceDlgTest, PickersAndPictureSwitchesWriteTheChosenPathOrEmpty) {
    const struct {
        int button, field, openMode;
        bool open;
        const char *ext, *pattern;  // a picture's pattern is its file
    } cases[] = {
        {IDC_WS_OOB_PICK, IDC_WS_OOB_FILE, 0, false, "oob", "*.oob"},
        {IDC_WS_OOB_PICK, IDC_WS_OOB_FILE, 1, true, "oob", "*.oob"},
        {IDC_WS_BACKUP_PICK, IDC_WS_BACKUP_FILE, 1, false, "oob", "*.oob"},
        {IDC_WS_TARGET_PICK, IDC_WS_TARGET_FILE, 0, true, "inf", "*.inf"},
        {IDC_WS_UNIT_PICTURES_ON, IDC_WS_UNIT_PICTURES, 0, true, "bmp", "units.bmp"},
        {IDC_WS_LEADER_FACES_ON, IDC_WS_LEADER_FACES, 0, true, "bmp", "leaders.bmp"},
        {IDC_WS_INFANTRY_ICONS_ON, IDC_WS_INFANTRY_ICONS, 0, true, "bmp", "icons3d2.bmp"},
        {IDC_WS_CAVALRY_ICONS_ON, IDC_WS_CAVALRY_ICONS, 0, true, "bmp", "icons3d1.bmp"},
        {IDC_WS_ARTILLERY_ICONS_ON, IDC_WS_ARTILLERY_ICONS, 0, true, "bmp", "icons3d0.bmp"},
    };
    workspace.m_nPictureFlags.fill(0);
    workspace.m_strPicturePaths.fill("art/old.bmp");
    for (const auto& c : cases) {
        const bool picture = *c.pattern != '*';
        const std::size_t shown = ui.FileDialogs().size();
        dlg.m_nOpenMode = static_cast<std::uint16_t>(c.openMode);
        ui.AnswerFileDialog("/designs/chosen");
        ui.CancelFileDialog();
        Run([&](CHeadlessUser& user) {
            user.Click(c.button);
            EXPECT_EQ(user.Text(c.field), "/designs/chosen." + std::string(c.ext)) << c.pattern;
            user.Click(c.button);
            EXPECT_EQ(user.Text(c.field), "empty");
            if (picture) {
                user.Click(c.button);
                EXPECT_EQ(user.Check(c.button), 0);
                EXPECT_EQ(user.Text(c.field), "empty");
            }
            user.Click(IDC_WS_CANCEL);
        });
        const CShownFileDialog& chooser = ui.FileDialogs().at(shown);
        EXPECT_EQ(chooser.open, c.open) << c.pattern;
        EXPECT_EQ(chooser.defaultExtension, c.ext);
        EXPECT_EQ(chooser.initialDir, picture ? "art/old.bmp" : "/designs");
        EXPECT_EQ(chooser.filters.at(0).pattern, c.pattern);
        EXPECT_EQ(ui.FileDialogs().back().initialDir, picture ? "empty" : "/designs");
    }
    EXPECT_EQ(workspace.m_strOobFile, "marches.oob");
}

// Reset takes every field back from the workspace; a title typed before a picker is kept
// through it; Accept saves every field to the workspace file.
TEST_F(WorkspaceDlgTest, ResetThenAcceptSavesEveryFieldToTheWorkspaceFile) {
    ui.CancelFileDialog();
    ui.AnswerFileDialog("/designs/other.bmp");
    ui.AnswerFileDialog("/designs/art/leaders.bmp");
    ui.AnswerFileDialog("/designs/army.oob");
    const int result = Run([](CHeadlessUser& user) {
        user.Type(IDC_WS_TITLE, "Changed");
        user.Click(IDC_WS_OOB_PICK);
        user.Click(IDC_WS_LEADER_FACES_ON);
        user.Click(IDC_WS_RESET);
        EXPECT_EQ(
            user.Text(IDC_WS_TITLE) + user.Text(IDC_WS_OOB_FILE) + user.Text(IDC_WS_LEADER_FACES),
            "Northern Marchesmarches.oobempty");
        EXPECT_EQ(user.Check(IDC_WS_LEADER_FACES_ON), 0);
        user.Type(IDC_WS_TITLE, "Southern Marches");
        user.Click(IDC_WS_LEADER_FACES_ON);
        user.Click(IDC_WS_INFANTRY_ICONS_ON);
        user.Click(IDC_WS_OOB_PICK);
        EXPECT_EQ(user.Text(IDC_WS_TITLE), "Southern Marches");
        user.Click(IDC_WS_ACCEPT);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(workspace.m_strTitle, "Southern Marches");
    EXPECT_EQ(ReadBytes(folder / "campaign.txt"),
              "Southern Marches|\r\n/designs/army.oob|\r\nmarches.bak|\r\nmarches.inf|\r\n"
              "1|art/units.bmp|\r\n1|/designs/art/leaders.bmp|\r\n0|empty|\r\n0|empty|\r\n"
              "0|empty|\r\n");
}

// Accept refuses an empty OOB path, then an empty target path ("empty" passes), and fails on a
// workspace file that cannot be written: the message names the fault, the dialog stays open with
// the user's fields (even with the pickers disabled), and the workspace keeps its values, so that
// Cancel, Escape or the close box still give 0 and leave it and its file as they were.
TEST_F(WorkspaceDlgTest, ARefusedOrFailedAcceptStaysOpenAndLeavingChangesNothing) {
    const std::string written = workspace.m_strPath;
    const std::string unwritable = folder / "no-such-folder/campaign.txt";
    const struct {
        const char *oobFile, *targetFile;
        std::string path, message;
        Script leave;  // none: accepted
    } cases[] = {
        {"", "", written, "You must select OOB file!",
         [](CHeadlessUser& u) { u.Click(IDC_WS_CANCEL); }},
        {"marches.oob", "", written, "You must select target file!",
         [](CHeadlessUser& u) { u.Escape(); }},
        {"marches.oob", "marches.inf", unwritable,
         "Cannot write " + unwritable + ": No such file or directory",
         [](CHeadlessUser& u) { u.CloseBox(); }},
        {"empty", "empty", written, "", nullptr},
    };
    dlg.m_nMode = 1;
    for (const auto& c : cases) {
        workspace.m_strOobFile = c.oobFile;
        workspace.m_strTargetFile = c.targetFile;
        workspace.m_strPath = c.path;
        if (c.leave) {
            ui.AnswerMessage(c.message, IDOK);
        }
        const int result = Run([&c](CHeadlessUser& user) {
            user.Type(IDC_WS_TITLE, "Typed");
            user.Click(IDC_WS_ACCEPT);
            EXPECT_EQ(user.Dialog().IsRunning(), c.leave != nullptr);
            if (c.leave) {
                EXPECT_EQ(user.Text(IDC_WS_TITLE), "Typed");
                c.leave(user);
            }
        });
        EXPECT_EQ(result, c.leave ? 0 : 1) << c.message;
        EXPECT_EQ(workspace.m_strTitle, c.leave ? "Northern Marches" : "Typed") << c.message;
        EXPECT_EQ(std::filesystem::exists(written), !c.leave) << c.message;
    }
    for (const CShownMessage& shown : ui.Messages()) {
        EXPECT_EQ(shown.type, unsigned{MB_OK | MB_ICONEXCLAMATION});
    }
}
}  // namespace
