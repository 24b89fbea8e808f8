// One failing write for each File command that writes the order of battle: "Cannot write" names
// the file, the command stops there (Load goes no further than the save it asked for), and the
// open workspace, its tree and the status fields stay as they were. Every way a write can fail
// is the writer's own test.
#include <gtest/gtest.h>

#include <filesystem>

#include "MainWindowFixture.h"

namespace {

TEST_F(FileCommandsTest, AFailedWriteStopsTheCommandAndKeepsTheWorkspace) {
    std::filesystem::create_directory(folder / "work");
    const std::string reason = ": No such file or directory";
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        New(user, ID_FILE_NEW_EMPTY, folder / "work/new.txt", folder / "work/army.oob",
            folder / "valdoria.inf");
        const CWorkspace* workspace = main.m_session.Workspace();
        EditTree(main);
        const std::vector<std::string> labels = Labels(main.m_tree);
        std::filesystem::remove_all(folder / "work");
        ui.AnswerMessage("Do you want to load an existing workspace?", IDYES);
        ui.AnswerMessage("Do you want to save your files?", IDYES);
        ui.AnswerMessage("Cannot write " + folder / "work/army.oob" + reason, IDOK);
        user.Command(ID_FILE_LOAD);  // no file chooser after the error
        ExpectStatus(user, "*", "*");
        EXPECT_EQ(Labels(main.m_tree), labels);

        user.Command(ID_EDIT_UNDO);  // unchanged: New asks nothing before it writes
        ui.OnDialog(IDD_ATTACHED, [](CHeadlessUser& attached) { attached.Enter(); });
        for (int command : {ID_FILE_NEW_EMPTY, ID_FILE_NEW_ATTACHED}) {
            New(user, command, folder / "other.txt", folder / "gone/army.oob",
                folder / "valdoria.inf", {"Cannot write " + folder / "gone/army.oob" + reason});
            ExpectStatus(user, " ", "*");
            EXPECT_EQ(main.m_session.Workspace(), workspace);
            EXPECT_EQ(Labels(main.m_tree).size(), labels.size());
        }
    });
    EXPECT_EQ(ui.FileDialogs().size(), 3u + 2 * 3u);
}

}  // namespace
