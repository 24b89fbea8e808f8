// File Save and File New with each file operation of their writes failing, alone and with every
// operation after it: "Cannot write" names the file that failed, which keeps its old bytes, and
// the open workspace, its tree and the status fields ("*") stay as they were.
#include <gtest/gtest.h>

#include <algorithm>

#include "FailingFileOps.h"
#include "MainWindowFixture.h"

namespace {

struct FileCommand {
    const char* name;
    int id;
    std::vector<std::string> files;  // the files it writes, as the workspace names them
    std::function<void()> answers;   // what the user answers when every write succeeds
};

TEST_F(FileCommandsTest, AFailedWriteOfSaveOrNewNamesTheFileAndKeepsTheWorkspace) {
    const std::vector<FileCommand> commands = {
        {"Save",
         ID_FILE_SAVE,
         {"valdoria.oob", folder / "harnwick.txt"},
         [&] { ui.AnswerMessage("Do you want to save your files?", IDYES); }},
        {"New",
         ID_FILE_NEW_EMPTY,
         {folder / "new.txt", folder / "fresh.oob"},
         [&] {
             ui.AnswerMessage("Do you want to make a new, empty Order of Battle?", IDYES);
             ui.AnswerMessage("Do you want to save your files?", IDNO);
             ui.AnswerFileDialog(folder / "new.txt");
             ui.AnswerFileDialog(folder / "fresh.oob");
             ui.AnswerFileDialog(folder / "valdoria.inf");
             // A workspace file that cannot be written keeps the dialog open: then Cancel.
             ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) {
                 ws.Click(IDC_WS_OOB_PICK);
                 ws.Click(IDC_WS_TARGET_PICK);
                 ws.Click(IDC_WS_ACCEPT);
                 if (ws.Dialog().IsRunning()) {
                     ws.Click(IDC_WS_CANCEL);
                 }
             });
         }},
    };
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        for (const FileCommand& command : commands) {
            SCOPED_TRACE(command.name);
            main.m_strOobStatus = " ";  // the last command's edit is dropped unasked
            main.UpdateData(false);
            Load(user, folder / "harnwick.txt");
            EditTree(main);
            CFailingOps dry;
            command.answers();
            WithOps(dry, [&] { user.Command(command.id); });
            ExpectStatus(user, " ", "*");
            RecordProperty(command.name, static_cast<int>(dry.m_ops.size()));
            Load(user, folder / "harnwick.txt");
            const CWorkspace* workspace = main.m_pWorkspace.get();
            std::vector<std::string> kept;  // the files as the next command needs them
            for (const std::string& file : command.files) {
                kept.push_back(ReadBytes(file));
            }
            for (const CFault& fault : FaultsOf(dry.m_ops.size())) {
                SCOPED_TRACE(fault.Name(dry.m_ops));
                EditTree(main);
                const std::vector<std::string> labels = Labels(main.m_tree);
                for (const std::string& file : command.files) {
                    WriteBytes(file, "old " + file);
                }
                command.answers();
                ui.AnswerMessage(IDOK);
                CFailingOps ops(fault);
                WithOps(ops, [&] { user.Command(command.id); });
                const CShownMessage& error = ui.Messages().back();
                EXPECT_EQ(error.caption, "Error");
                const auto named =
                    std::find_if(command.files.begin(), command.files.end(), [&](auto& file) {
                        return error.text.rfind("Cannot write " + file + ": ", 0) == 0;
                    });
                ASSERT_NE(named, command.files.end()) << error.text;
                EXPECT_EQ(ReadBytes(*named), "old " + *named);
                ExpectStatus(user, "*", "*");
                EXPECT_EQ(Labels(main.m_tree), labels);
                EXPECT_EQ(main.m_pWorkspace.get(), workspace);
            }
            for (std::size_t i = 0; i < kept.size(); ++i) {
                WriteBytes(command.files[i], kept[i]);
            }
        }
    });
}

}  // namespace
