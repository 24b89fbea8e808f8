// The template library driven from the main window on a copy of the sample workspace: the
// chooser's filters, templates saved into a library without templates, inserted next to and
// under entries, and a library that cannot be written.
#include <gtest/gtest.h>

#include <filesystem>

#include "MainWindowFixture.h"
#include "TestTrees.h"
#include "gamedata/GameRecords.h"
#include "model/Templates.h"

namespace {

class TemplateCommandsTest : public MainWindowTest {
protected:
    // The sample's game data without its two templates, and an empty library.
    void EmptyLibrary() {
        const std::string target = ReadBytes(folder / "valdoria.inf");
        WriteBytes(folder / "valdoria.inf",
                   target.substr(0, target.find("\t6|2|0|14400|")) + "</F>");
        WriteBytes(folder / "valdoria.tpl", "");
    }

    void Select(CHeadlessUser& user, CMainDlg& main, const std::string& label) {
        const HTREEITEM entry = FindLabel(main.m_tree, label);
        ASSERT_NE(entry, nullptr) << label;
        user.SelectEntry(IDC_TREE, entry);
    }

    // Add child or Add next, Template, choosing the template named name.
    void AddTemplate(CHeadlessUser& user, int command, const std::string& name) {
        ui.OnDialog(IDD_TEMPLATE_SELECT, [name](CHeadlessUser& chooser) {
            chooser.Pick(IDC_CHOICE_LIST, name);
            chooser.Click(IDC_CHOICE_ACCEPT);
        });
        user.Command(command);
    }
};

// Country and Type each narrow the list ("All" first); Cost follows the selected template; with
// nothing listed Accept does nothing, and Enter cancels.
TEST_F(TemplateCommandsTest, TheChooserFiltersByCountryAndKind) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        Select(user, main, "I Corps");
        ui.OnDialog(IDD_TEMPLATE_SELECT, [](CHeadlessUser& chooser) {
            EXPECT_EQ(chooser.Lines(IDC_TPL_COUNTRY).GetCount(), 3);
            EXPECT_EQ(chooser.Lines(IDC_TPL_KIND).GetCount(), 7);  // "All" and six kinds
            EXPECT_EQ(chooser.Lines(IDC_CHOICE_LIST).GetCount(), 2);
            EXPECT_EQ(chooser.Text(IDC_TPL_COST), "14400");
            chooser.Pick(IDC_TPL_COUNTRY, 2);
            EXPECT_EQ(chooser.Lines(IDC_CHOICE_LIST).GetCount(), 1);
            EXPECT_EQ(chooser.Text(IDC_TPL_COST), "400");
            chooser.Pick(IDC_TPL_KIND, "Brigade");
            EXPECT_EQ(chooser.Lines(IDC_CHOICE_LIST).GetCount(), 0);
            EXPECT_EQ(chooser.Text(IDC_TPL_COST), "0");
            chooser.Click(IDC_CHOICE_ACCEPT);
            EXPECT_TRUE(chooser.Dialog().IsRunning());
            chooser.Pick(IDC_TPL_COUNTRY, "All");
            EXPECT_EQ(chooser.Lines(IDC_CHOICE_LIST).GetCount(), 1);
            EXPECT_EQ(chooser.Text(IDC_TPL_COST), "14400");
            chooser.Enter();
        });
        user.Command(ID_ADD_CHILD_TEMPLATE);
        ExpectStatus(user, " ", "*");
    });
}

// Each template saved is appended as the next block, its record with the next ordinal, the
// target file written with it. A template child goes in front of the children, a template next
// right after the selected entry; the selection stays; each insertion is one step of the history.
// Refused silently: a template child of a unit, a template whose level the parent does not
// exceed, Save as template on an army.
TEST_F(TemplateCommandsTest, SavedTemplatesAreAppendedAndInsertedAtTheirPlace) {
    EmptyLibrary();
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        Select(user, main, "1st Division");
        ui.OnDialog(IDD_TEMPLATE_SAVE, [](CHeadlessUser& save) {
            EXPECT_EQ(save.Text(IDC_TPL_TYPE), "Division");
            EXPECT_EQ(save.Text(IDC_TPL_NAME), "Template : 1st Division");
            save.Type(IDC_TPL_NAME, "typed");
            save.Pick(IDC_TPL_COUNTRY, 1);  // the stored name back
            EXPECT_EQ(save.Text(IDC_TPL_NAME), "Template : 1st Division");
            save.Click(IDC_CHOICE_ACCEPT);
        });
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        std::string division;
        main.m_session.Document()->m_writer.WriteSubtree(division, main.m_tree,
                                                         main.m_tree.GetSelectedItem());
        Select(user, main, "1st Battery");
        ui.OnDialog(IDD_TEMPLATE_SAVE, [](CHeadlessUser& save) { save.Click(IDC_CHOICE_ACCEPT); });
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        EXPECT_EQ(ReadBytes(folder / "valdoria.tpl"),
                  division + "</T>\r\nU 17 3 Howitzer How10 10 0 0 1st Battery\r\n</T>\r\n");
        const std::string target = ReadBytes(folder / "valdoria.inf");
        EXPECT_NE(target.find("\t6|7|1|"), std::string::npos);  // kind, level, second country
        EXPECT_LT(target.find("|Template : 1st Division|"),
                  target.find("|Template : 1st Battery|"));
        ExpectStatus(user, " ", "*");

        const std::vector<std::string> loaded = Labels(main.m_tree);
        Select(user, main, "I Corps");
        const HTREEITEM corps = main.m_tree.GetSelectedItem();
        AddTemplate(user, ID_ADD_CHILD_TEMPLATE, "Template : 1st Battery");
        EXPECT_EQ(main.m_tree.GetSelectedItem(), corps);
        ExpectStatus(user, "*", "*");
        Select(user, main, "General Thibault Lavault");
        AddTemplate(user, ID_ADD_NEXT_TEMPLATE, "Template : 1st Division");
        EXPECT_EQ(main.m_tree.GetItemText(main.m_tree.GetSelectedItem()),
                  "General Thibault Lavault");
        std::string children;
        for (HTREEITEM e = main.m_tree.GetChildItem(corps); e;
             e = main.m_tree.GetNextSiblingItem(e)) {
            children += std::string(main.m_tree.GetItemText(e)) + ";";
        }
        EXPECT_EQ(children,
                  "1st Battery;General Thibault Lavault;1st Division;I Corps Train;1st Battery;1st "
                  "Division;2nd Division;");
        user.Command(ID_EDIT_UNDO);
        user.Command(ID_EDIT_UNDO);
        EXPECT_EQ(Labels(main.m_tree), loaded);
        ExpectStatus(user, " ", "*");

        Select(user, main, "1st Battery");
        user.Command(ID_ADD_CHILD_TEMPLATE);  // a unit: no chooser
        Select(user, main, "Brigadier Gaspard Pellois");
        AddTemplate(user, ID_ADD_NEXT_TEMPLATE, "Template : 1st Division");  // into a brigade
        Select(user, main, "Royal Army of Valdoria");
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        EXPECT_EQ(Labels(main.m_tree), loaded);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(main.m_session.Database()->m_Templates.Count(), 2);
    });
}

// A library that cannot be appended to leaves it and the records as they were, the target
// file written again without the record; beyond 256 templates the ordinals go on; a cost out
// of the field's range. A relative
// library path is taken from the target file's folder.
TEST_F(TemplateCommandsTest, AFailedAppendLeavesTheLibraryAndTheRecords) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        const std::string target = ReadBytes(folder / "valdoria.inf");
        CGameDatabase& database = *main.m_session.Database();
        std::filesystem::remove(folder / "valdoria.tpl");
        std::filesystem::create_directory(folder / "valdoria.tpl");
        Select(user, main, "1st Battery");
        ui.OnDialog(IDD_TEMPLATE_SAVE, [](CHeadlessUser& save) { save.Click(IDC_CHOICE_ACCEPT); });
        ui.AnswerMessage("Cannot write valdoria.tpl: Is a directory", IDOK);
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        EXPECT_EQ(ReadBytes(folder / "valdoria.inf"), target);
        EXPECT_EQ(database.m_Templates.Count(), 2);

        std::filesystem::remove(folder / "valdoria.tpl");
        while (database.m_Templates.Count() < 300) {
            database.m_Templates.PushBack(std::make_unique<CTemplateRecord>());
        }
        std::string blocks;
        for (int block = 0; block < 300; ++block) {
            blocks += "</T>\r\n";
        }
        WriteBytes(folder / "valdoria.tpl", blocks);
        ui.OnDialog(IDD_TEMPLATE_SAVE, [](CHeadlessUser& save) { save.Click(IDC_CHOICE_ACCEPT); });
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        const auto& last =
            static_cast<const CTemplateRecord&>(*database.m_Templates.Tail()->m_pPayload);
        EXPECT_EQ(last.m_nOrdinal, 300);
        Select(user, main, "I Corps");
        const HTREEITEM corps = main.m_tree.GetSelectedItem();
        AddTemplate(user, ID_ADD_CHILD_TEMPLATE, "Template : 1st Battery");
        EXPECT_EQ(main.m_tree.GetItemText(main.m_tree.GetChildItem(corps)), "1st Battery");
        // A cost beyond the field's range: reported, and Accept goes on with the cost and the
        // name held before (the name after it is not taken); the chooser reports it when the
        // selection moves off it.
        static_cast<CBaseTypeRecord&>(*database.m_BaseTypes.Head()->m_pPayload).m_dBaseCost = 1e9;
        Select(user, main, "1st Line Battalion");
        const std::string range = "Please enter a number from 0 to 10000000.";
        ui.OnDialog(IDD_TEMPLATE_SAVE, [&](CHeadlessUser& save) {
            save.Type(IDC_TPL_NAME, "typed");
            ui.AnswerMessage(range, IDOK);
            save.Click(IDC_CHOICE_ACCEPT);
        });
        user.Command(ID_EDIT_SAVE_AS_TEMPLATE);
        const auto& costly =
            static_cast<const CTemplateRecord&>(*database.m_Templates.Tail()->m_pPayload);
        EXPECT_EQ(std::string(costly.m_strName), "Template : 1st Line Battalion");
        EXPECT_GT(costly.m_dCost, 1e7);
        ui.OnDialog(IDD_TEMPLATE_SELECT, [&](CHeadlessUser& chooser) {
            chooser.Pick(IDC_CHOICE_LIST, "Template : 1st Line Battalion");
            ui.AnswerMessage(range, IDOK);
            chooser.Pick(IDC_CHOICE_LIST, "Template : 1st Battery");
            EXPECT_EQ(chooser.Text(IDC_TPL_COST), "1550.4");
            chooser.Escape();
        });
        Select(user, main, "I Corps");
        user.Command(ID_ADD_CHILD_TEMPLATE);
        database.m_strFilePath = "/games/valdoria.inf";
        EXPECT_EQ(TemplateFilePath(database), "/games/valdoria.tpl");
    });
}

}  // namespace
