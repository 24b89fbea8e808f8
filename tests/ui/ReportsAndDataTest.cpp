// Reports, Save Target file and Get data write what harnwick-cli's core writes, or nothing.
#include <gtest/gtest.h>

#include "FailingFileOps.h"
#include "MainWindowFixture.h"
#include "SampleWriters.h"
#include "model/GameImport.h"

namespace {

class ReportsAndDataTest : public MainWindowTest {
protected:
    // Get data from the sample's game file with the two choices, into the open tree or to output.
    void GetData(CHeadlessUser& user, int notExisting, int empty, const std::string& output = "") {
        ui.OnDialog(IDD_GET_DATA, [=, this](CHeadlessUser& dlg) {
            ui.AnswerFileDialog(btl);
            dlg.Click(IDC_GD_DATA_PICK);
            dlg.Pick(IDC_GD_NOT_EXISTING, notExisting);
            dlg.Pick(IDC_GD_EMPTY_STRUCTURES, empty);
            if (!output.empty()) {
                dlg.Pick(IDC_GD_OUTPUT_TO, 1);
                ui.AnswerFileDialog(output);
                dlg.Click(IDC_GD_OUTPUT_PICK);
            }
            dlg.Click(IDC_GD_ACCEPT);
        });
        user.Command(ID_OPTIONS_GET_DATA);
    }

    // The sample imported with flags, as harnwick-cli import writes it.
    static std::string Imported(int flags) {
        CSampleFiles sample;
        ImportGameData(HW_SAMPLE_DIR "/valdoria.btl", sample.tree, flags);
        return sample.document.m_writer.ToText(sample.tree);
    }

    static std::string TreeText(CMainDlg& main) {
        return main.m_session.Document()->m_writer.ToText(main.m_tree) +
               main.m_session.MarkedName();
    }

    const std::string btl = HW_SAMPLE_DIR "/valdoria.btl";
};

TEST_F(ReportsAndDataTest, EveryReportIsWhatTheCoreWrites) {
    using K = ReportKind;  // HTML flags: 2 images, 3 costs and images
    const std::tuple<int, K, int, const char*> cases[] = {
        {ID_REPORT_HTML, K::kHtml, 0, "HTML"}, {ID_REPORT_HTML, K::kHtml, 2, "HTML"},
        {ID_REPORT_HTML, K::kHtml, 3, "HTML"}, {ID_REPORT_LEADER, K::kLeader, 0, "Leader"},
        {ID_REPORT_COST, K::kCost, 0, "Cost"}, {ID_REPORT_KEY, K::kKey, 0, "Key"}};
    const CSampleFiles sample;
    Run([&](CHeadlessUser& user, CMainDlg&) {
        Load(user, folder / "harnwick.txt");
        for (const auto& [command, kind, flags, name] : cases) {
            const std::string path = folder / (kind == K::kHtml ? "report.html" : "report.txt");
            ui.AnswerMessage(std::string("Do you want to create a ") + name + " Report?", IDYES);
            ui.AnswerFileDialog(folder / "report");  // the chooser adds the extension
            if (kind == K::kHtml) {
                ui.AnswerMessage("Add cost values to report?", flags & HTML_COSTS ? IDYES : IDNO);
                ui.AnswerMessage("Add images to report?", flags & HTML_IMAGES ? IDYES : IDNO);
            }
            ui.AnswerMessage(std::string(name) + " Report created in : " + path, IDOK);
            user.Command(command);
            EXPECT_EQ(ReadBytes(path), ReportText(sample.tree, kind, flags)) << name;
        }
    });
}

// Declined, refused (Enter, an output file of the workspace) and failed commands change nothing.
TEST_F(ReportsAndDataTest, GetDataAndDeclinedOrFailedCommands) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        const std::string tree = TreeText(main);
        ui.AnswerMessage("Do you want to create a Key Report?", IDYES);
        ui.CancelFileDialog();
        user.Command(ID_REPORT_KEY);
        ui.AnswerMessage("Do you want to overwrite Target File?", IDNO);
        user.Command(ID_OPTIONS_SAVE_TARGET);
        ui.OnDialog(IDD_GET_DATA, [&](CHeadlessUser& dlg) {
            auto enabled = [&dlg] {  // Accept, the output file's picker and path
                return std::to_string(dlg.IsEnabled(IDC_GD_ACCEPT) * 100 +
                                      dlg.IsEnabled(IDC_GD_OUTPUT_PICK) * 10 +
                                      dlg.IsEnabled(IDC_GD_OUTPUT_FILE));
            };
            EXPECT_EQ(enabled(), "0");
            dlg.Pick(IDC_GD_NOT_EXISTING, "Skip");
            ui.AnswerFileDialog("missing.scn");
            dlg.Click(IDC_GD_DATA_PICK);
            // "Skip" (line 2) kept over the picker
            EXPECT_EQ(enabled() + std::to_string(dlg.Lines(IDC_GD_NOT_EXISTING).GetCurSel()),
                      "1002");
            dlg.Pick(IDC_GD_OUTPUT_TO, "Other OOB file");
            EXPECT_EQ(enabled(), "11");
            ui.AnswerFileDialog("valdoria.oob");
            dlg.Click(IDC_GD_OUTPUT_PICK);
            ui.AnswerMessage(IDOK);
            dlg.Click(IDC_GD_ACCEPT);
            EXPECT_TRUE(ui.Messages().back().text.starts_with("valdoria.oob is a file"));
            dlg.Pick(IDC_GD_OUTPUT_TO, "This OOB file");
            EXPECT_EQ(enabled() + dlg.Text(IDC_GD_OUTPUT_FILE), "100");
            dlg.Focus(IDC_GD_EMPTY_STRUCTURES);
            dlg.Enter();
            dlg.CloseBox();
        });
        user.Command(ID_OPTIONS_GET_DATA);
        CFailingOps ops({1, true});
        ui.AnswerMessage(IDYES);
        ui.AnswerFileDialog("key.txt");
        ui.AnswerMessage("Cannot write key.txt: Permission denied", IDOK);
        WithOps(ops, [&] { user.Command(ID_REPORT_KEY); });
        EXPECT_EQ(TreeText(main), tree);

        // Skip and Skip into the tree, undone; to another file, the window keeping everything.
        ui.AnswerMessage("Data was saved to file : " + folder.Path(), IDOK);
        GetData(user, 2, 1);
        EXPECT_EQ(TreeText(main), Imported(0) + "empty");
        ExpectStatus(user, "*", "*");
        user.Command(ID_EDIT_UNDO);
        EXPECT_EQ(TreeText(main), tree);
        EditTree(main);
        main.m_session.Mark(main.m_tree.GetChildItem(main.m_tree.GetRootItem()), ClipMode::Copy);
        const std::string edited = TreeText(main);
        ui.AnswerMessage("Data was saved to file : out.oob", IDOK);
        GetData(user, 0, 0, "out.oob");
        EXPECT_EQ(TreeText(main), edited);
        EXPECT_EQ(main.m_session.Edit().UndoCount(), 1u);
    });
    EXPECT_EQ(ReadBytes("valdoria.inf"), ReadBytes(HW_SAMPLE_DIR "/valdoria.inf"));
    EXPECT_FALSE(std::filesystem::exists("key.txt"));
    EXPECT_EQ(ReadBytes("out.oob"),
              WithReplaced(Imported(IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY),
                           "Royal Army of Valdoria", "First Army"));
}

}  // namespace
