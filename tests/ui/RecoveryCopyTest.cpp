// The recovery copy of unsaved changes: written a second after the last change, gone once the
// file holds the tree again, offered at the next start and restored unsaved or discarded.
#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "MainWindowFixture.h"

namespace {

namespace fs = std::filesystem;

class RecoveryCopyTest : public MainWindowTest {
protected:
    // The state folder's files by extension, with their bytes.
    std::map<std::string, std::string> Kept() {
        std::map<std::string, std::string> kept;
        std::error_code none;
        for (const auto& file : fs::directory_iterator(folder / "state/harnwick", none)) {
            kept[file.path().extension()] = ReadBytes(file.path());
        }
        return kept;
    }
    const std::string question = "The order of battle of " + folder / "harnwick.txt" +
                                 " has changes that were not saved when the editor last ended. "
                                 "Do you want to restore them? No discards them.";
};

// Quitting writes the copy of a change that has not waited its second.
TEST_F(RecoveryCopyTest, WrittenASecondAfterAChangeAndRestoredUnsavedAtTheNextStart) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        EditTree(main);
        user.Wait(999);
        EXPECT_TRUE(Kept().empty());
        user.Wait(1);
        EXPECT_EQ(Kept(), (std::map<std::string, std::string>{
                              {".oob", main.m_session.Document()->m_writer.ToText(main.m_tree)},
                              {".txt", folder / "harnwick.txt\n" + folder / "valdoria.oob\n"}}));
        user.Command(ID_EDIT_UNDO);
        EXPECT_TRUE(Kept().empty());
        user.Command(ID_EDIT_REDO);
    });
    ui.AnswerMessage(question, IDYES);
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        user.Wait(0);  // the window is up
        ExpectStatus(user, "*", "*");
        EXPECT_EQ(Labels(main.m_tree)[0], "First Army");
        user.Command(ID_EDIT_UNDO);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(Labels(main.m_tree)[0], "Royal Army of Valdoria");
        user.Command(ID_EDIT_REDO);
    });
    // Once the file is newer than the copy kept at quitting, the copy is removed unoffered.
    fs::last_write_time(folder / "valdoria.oob",
                        fs::file_time_type::clock::now() + std::chrono::hours(1));
    Run([](CHeadlessUser& user, CMainDlg&) { user.Wait(0); });
    EXPECT_TRUE(Kept().empty());
}

// A good Save, and New or Load answered No to the save question, remove the copy; a command
// that then ends without replacing the tree has it written again. At start No discards it.
TEST_F(RecoveryCopyTest, RemovedBySaveNewOrLoadAnsweredNoAndDiscardedAtStart) {
    // The files chosen in turn ("" cancels), the command, and whether the copy comes back.
    const std::tuple<std::vector<std::string>, int, bool> endings[] = {
        {{folder / "new.txt", folder / "valdoria.oob", folder / "valdoria.inf"},
         ID_FILE_NEW_EXISTING,
         false},
        {{folder / "harnwick.txt"}, ID_FILE_LOAD, false},
        {{}, ID_FILE_SAVE, false},
        {{""}, ID_FILE_LOAD, true},
    };
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        for (const auto& [files, command, keptAgain] : endings) {
            EditTree(main);
            user.Wait(1000);
            EXPECT_EQ(Kept().size(), 2u);
            ui.AnswerMessage(IDYES);  // the command's question, or Save's
            if (command != ID_FILE_SAVE) {
                ui.AnswerMessage("Do you want to save your files?", IDNO);
            }
            for (const std::string& file : files) {
                file.empty() ? ui.CancelFileDialog() : ui.AnswerFileDialog(file);
            }
            if (!files.empty() && !files[0].empty()) {
                ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) {
                    if (ws.IsEnabled(IDC_WS_OOB_PICK)) {
                        ws.Click(IDC_WS_OOB_PICK);
                        ws.Click(IDC_WS_TARGET_PICK);
                    }
                    ws.Click(IDC_WS_ACCEPT);
                });
            }
            user.Command(command);
            EXPECT_TRUE(Kept().empty());
            user.Wait(1000);
            EXPECT_EQ(Kept().size(), keptAgain ? 2u : 0u);
        }
    });
    ui.AnswerMessage(question, IDNO);
    Run([&](CHeadlessUser& user, CMainDlg&) {
        user.Wait(0);
        ExpectStatus(user, "-", "-");
    });
    EXPECT_TRUE(Kept().empty());
}

}  // namespace
