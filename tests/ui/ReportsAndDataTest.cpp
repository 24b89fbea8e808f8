// The Reports menu, Save Target file and Get data from the main window: each writes what the
// core (and so harnwick-cli) writes from the same files, a declined or cancelled command writes
// and shows nothing, and a write that fails says "Cannot write" and changes nothing.
#include <gtest/gtest.h>

#include <filesystem>

#include "FailingFileOps.h"
#include "MainWindowFixture.h"
#include "SampleWriters.h"
#include "base/TextLines.h"
#include "model/GameImport.h"

namespace {

std::string FileText(const std::string& path) {
    std::string text;
    ReadWholeFile(path, text);
    return text;
}

class ReportsAndDataTest : public MainWindowTest {
protected:
    ReportsAndDataTest() {
        std::filesystem::copy_file(HW_SAMPLE_DIR "/valdoria.btl", folder / "valdoria.btl");
    }

    // Get data with the game file, the two choices and, when given, another output file.
    void GetData(CHeadlessUser& user, int notExisting, int empty, const std::string& output = "") {
        ui.OnDialog(IDD_GET_DATA, [=, this](CHeadlessUser& dlg) {
            ui.AnswerFileDialog(folder / "valdoria.btl");
            dlg.Click(IDC_GD_DATA_PICK);
            dlg.Pick(IDC_GD_NOT_EXISTING, notExisting);
            dlg.Pick(IDC_GD_EMPTY_STRUCTURES, empty);
            if (!output.empty()) {
                dlg.Pick(IDC_GD_OUTPUT_TO, "Other OOB file");
                ui.AnswerFileDialog(output);
                dlg.Click(IDC_GD_OUTPUT_PICK);
            }
            dlg.Click(IDC_GD_ACCEPT);
        });
        user.Command(ID_OPTIONS_GET_DATA);
    }

    // The sample imported with flags as harnwick-cli import writes it.
    static std::string Imported(int flags) {
        CSampleFiles sample;
        ImportGameData(HW_SAMPLE_DIR "/valdoria.btl", sample.tree, flags);
        return sample.document.m_writer.ToText(sample.tree);
    }

    static std::string TreeText(CMainDlg& main) {
        return main.m_session.Document()->m_writer.ToText(main.m_tree);
    }
};

// Each report, and the HTML one with each answer to its two questions, is the core's report of
// the sample read on its own.
TEST_F(ReportsAndDataTest, EveryReportIsWhatTheCoreWrites) {
    struct Case {
        int command;
        ReportKind kind;
        std::vector<int> options;  // the answers to "Add cost values" and "Add images"
        int flags;
        const char* name;
    };
    const Case cases[] = {
        {ID_REPORT_HTML, ReportKind::kHtml, {IDNO, IDNO}, 0, "HTML"},
        {ID_REPORT_HTML, ReportKind::kHtml, {IDNO, IDYES}, HTML_IMAGES, "HTML"},
        {ID_REPORT_HTML, ReportKind::kHtml, {IDYES, IDYES}, HTML_COSTS | HTML_IMAGES, "HTML"},
        {ID_REPORT_LEADER, ReportKind::kLeader, {}, 0, "Leader"},
        {ID_REPORT_COST, ReportKind::kCost, {}, 0, "Cost"},
        {ID_REPORT_KEY, ReportKind::kKey, {}, 0, "Key"},
    };
    const CSampleFiles sample;
    Run([&](CHeadlessUser& user, CMainDlg&) {
        Load(user, folder / "harnwick.txt");
        for (const Case& c : cases) {
            const std::string extension = c.kind == ReportKind::kHtml ? "html" : "txt";
            const std::string path = folder / ("report." + extension);
            ui.AnswerMessage(std::string("Do you want to create a ") + c.name + " Report?", IDYES);
            ui.AnswerFileDialog(path);
            for (int answer : c.options) {
                ui.AnswerMessage(answer);
            }
            ui.AnswerMessage(std::string(c.name) + " Report created in : " + path, IDOK);
            user.Command(c.command);
            EXPECT_EQ(ui.FileDialogs().back().defaultExtension, extension);
            EXPECT_EQ(FileText(path), ReportText(sample.tree, c.kind, c.flags)) << c.name;
        }
    });
}

}  // namespace
