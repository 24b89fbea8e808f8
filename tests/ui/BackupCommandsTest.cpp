// The commands that work with the files beside the order of battle, on a copy of the sample
// workspace: the backup copy saved and restored, a subtree saved to a text file, and Find item.
#include <gtest/gtest.h>

#include <filesystem>

#include "MainWindowFixture.h"
#include "model/Workspace.h"

namespace {

// The backup is written only when it does not hold the tree; Save then still writes the
// order-of-battle file. A restore puts the backup's bytes into the order-of-battle file and
// the tree, one step that Undo takes back (the file then no longer holds the tree).
TEST_F(FileCommandsTest, BackupSavesOnlyAChangedTreeAndRestoresIt) {
    const std::string sample = ReadBytes(folder / "valdoria.oob");
    const std::string backup = folder / "valdoria.bak";
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        user.Command(ID_BACKUP_SAVE);
        ExpectStatus(user, " ", " ");
        EXPECT_EQ(ReadBytes(backup), sample);
        std::filesystem::remove(backup);
        user.Click(IDC_BACKUP_STATUS);
        EXPECT_FALSE(std::filesystem::exists(backup));

        EditTree(main);
        user.Click(IDC_BACKUP_STATUS);
        ExpectStatus(user, "*", " ");
        const std::string changed = ReadBytes(backup);
        EXPECT_EQ(changed, WithReplaced(sample, "A Royal Army of Valdoria", "A First Army"));
        main.m_session.Edit().Rename(main.m_tree.GetRootItem(), "Second Army");
        ui.AnswerMessage("Do you want to save your files?", IDYES);
        user.Command(ID_FILE_SAVE);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(ReadBytes(folder / "valdoria.oob"),
                  WithReplaced(sample, "A Royal Army of Valdoria", "A Second Army"));
        EXPECT_EQ(ReadBytes(backup), changed);
        const std::vector<std::string> saved = Labels(main.m_tree);

        main.m_session.Mark(main.m_tree.GetRootItem(), ClipMode::Copy);
        ui.AnswerMessage("Do you want to restore the backup copy of the oob file?", IDNO);
        user.Command(ID_BACKUP_RESTORE);
        EXPECT_EQ(Labels(main.m_tree), saved);
        ui.AnswerMessage("Do you want to restore the backup copy of the oob file?", IDYES);
        user.Command(ID_BACKUP_RESTORE);
        EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), changed);
        EXPECT_EQ(Labels(main.m_tree)[0], "First Army");
        ExpectStatus(user, " ", " ");
        EXPECT_EQ(user.Text(IDC_MARKED_NAME), "empty");  // the marked entry is gone

        user.Command(ID_EDIT_UNDO);
        EXPECT_EQ(Labels(main.m_tree), saved);
        ExpectStatus(user, "*", "*");
        user.Command(ID_EDIT_REDO);
        ExpectStatus(user, " ", " ");
    });
}

// A backup path that is empty, or the word a cancelled picker leaves, names no file: both
// commands say so and write nothing. A backup that does not open, or an order-of-battle file
// that cannot be written, leaves the files and the tree as they were.
TEST_F(FileCommandsTest, BackupWithoutAUsableFileChangesNothing) {
    const std::string sample = ReadBytes(folder / "valdoria.oob");
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        EditTree(main);
        const std::vector<std::string> edited = Labels(main.m_tree);
        for (const char* path : {"", "empty"}) {
            main.m_session.Workspace()->m_strBackupFile = path;
            ui.AnswerMessage("There is no backup file! (see Workspace properties)", IDOK);
            user.Command(ID_BACKUP_SAVE);
            ui.AnswerMessage("There is no backup file! (see Workspace properties)", IDOK);
            user.Command(ID_BACKUP_RESTORE);
        }
        EXPECT_FALSE(std::filesystem::exists(folder / "empty"));

        const std::string missing = folder / "missing.bak";
        main.m_session.Workspace()->m_strBackupFile = missing;
        ui.AnswerMessage("Do you want to restore the backup copy of the oob file?", IDYES);
        ui.AnswerMessage("Bad or missing " + missing + " file!", IDOK);
        user.Command(ID_BACKUP_RESTORE);

        main.m_session.Workspace()->m_strBackupFile = folder / "valdoria.inf";
        main.m_session.Workspace()->m_strOobFile = folder / "gone/valdoria.oob";
        ui.AnswerMessage("Do you want to restore the backup copy of the oob file?", IDYES);
        ui.AnswerMessage(
            "Cannot write " + folder / "gone/valdoria.oob" + ": No such file or directory", IDOK);
        user.Command(ID_BACKUP_RESTORE);
        EXPECT_EQ(Labels(main.m_tree), edited);
        ExpectStatus(user, "*", "*");
    });
    EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), sample);
}

// Save to file writes the selected entry's lines, or the whole tree's when nothing is selected,
// without the file's first line; Find selects the entry chosen. Neither changes the tree.
TEST_F(FileCommandsTest, SaveToFileWritesTheSelectedSubtreeAndFindSelects) {
    const std::string sample = ReadBytes(folder / "valdoria.oob");
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        ui.OnDialog(IDD_FIND, [](CHeadlessUser& find) {
            find.Type(IDC_FIND_TEXT, "Ravasse");
            find.Click(IDC_FIND_SEARCH);
            find.Click(IDC_FIND_GOTO);
        });
        user.Command(ID_OPTIONS_FIND);
        const HTREEITEM leader = main.m_tree.GetSelectedItem();
        ASSERT_NE(leader, nullptr);
        EXPECT_NE(main.m_tree.GetItemText(leader).find("Ravasse"), std::string::npos);

        ui.AnswerMessage("Do you want to save this item to a text file?", IDYES);
        ui.AnswerFileDialog(folder / "leader.txt");
        user.Command(ID_EDIT_SAVE_TO_FILE);
        ui.AnswerMessage("Do you want to save this item to a text file?", IDNO);
        user.Command(ID_EDIT_SAVE_TO_FILE);
        ui.AnswerMessage("Do you want to save this item to a text file?", IDYES);
        ui.CancelFileDialog();
        user.Command(ID_EDIT_SAVE_TO_FILE);

        main.m_session.ViewStore().SelectItem(nullptr);
        ui.AnswerMessage("Do you want to save this item to a text file?", IDYES);
        ui.AnswerFileDialog(folder / "all.txt");
        user.Command(ID_EDIT_SAVE_TO_FILE);
        ExpectStatus(user, " ", "*");
    });
    EXPECT_EQ(ReadBytes(folder / "leader.txt"), "L 4 6 0 Marshal Aur\xe8le Ravasse\r\n");
    EXPECT_EQ(ReadBytes(folder / "all.txt"), sample.substr(sample.find('\n') + 1));
}

}  // namespace
