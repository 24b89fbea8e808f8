// "Edit structure" and "Structure summary": the rows of tests/data/ui/structure.txt on a small
// tree, the editor's name handling, and both dialogs from the main window on the sample.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "MainWindowFixture.h"
#include "TestTrees.h"
#include "dialogs/StructureDlg.h"
#include "dialogs/SummaryDlg.h"

namespace {
// The texts and bars a dialog shows, joined by "|" in the template's order; a shown bar must
// also keep its place, be as high as the summary's frame and lie below the other controls.
std::string Shown(CHeadlessUser& user) {
    std::string out;
    for (const auto& control : user.Dialog().Controls()) {
        const ControlKind kind = control->Kind();
        if (control->GetDlgCtrlID() == -1 || kind == ControlKind::Button ||
            kind == ControlKind::Frame) {
            continue;
        }
        out += "|";
        if (kind != ControlKind::Bar) {
            out += control->GetWindowText();
            continue;
        }
        const CRect at = control->GetWindowRect();
        const CRect frame = user.Dialog().GetDlgItem(IDC_SUM_FRAME)->GetWindowRect();
        out += control->IsWindowVisible() ? std::to_string(at.Width()) : "hidden";
        if (control->IsWindowVisible()) {
            EXPECT_EQ(at.left, frame.left);
            EXPECT_EQ(at.Height(), frame.Height());
            EXPECT_GT(control->LoweredCount(), 0u);
        }
    }
    return out.substr(1);
}

// summary.inf (without three of its base types for "three-bases") and summary.oob.
struct CSmallTree {
    explicit CSmallTree(const std::string& game) {
        std::string text = ReadBytes(HW_TEST_DATA "/ui/summary.inf");
        if (game == "three-bases") {
            for (const char* line : {"3|1|0.05|4|20|24|Guns|\n", "5|0|0|2|10|50|Supply|\n",
                                     "6|0|0|250|1|1|Headquarters|\n"}) {
                text = WithReplaced(text, line, "");
            }
        }
        std::istringstream in(text);
        database.ReadFrom(in);
        if (game != "empty") {
            EXPECT_EQ(document.LoadTree(HW_TEST_DATA "/ui/summary.oob", tree), RESULT_DONE);
        }
    }
    HTREEITEM Entry(const std::string& label) const { return FindLabel(tree, label); }
    const CStructureItem& Item(const std::string& label) const {
        return static_cast<const CStructureItem&>(*ItemOf(tree, Entry(label)));
    }

    CGameDatabase database;
    COobDocument document{&database};
    CTreeStore tree;
};

TEST_F(HeadlessTest, StructureRows) {
    std::ifstream rows(HW_TEST_DATA "/ui/structure.txt");
    ASSERT_TRUE(rows);
    for (std::string row; std::getline(rows, row);) {
        if (row.empty() || row[0] == '#') {
            continue;
        }
        SCOPED_TRACE(row);
        std::istringstream fields(row);
        std::string game, opening, steps, expected;
        for (std::string* field : {&game, &opening, &steps}) {
            std::getline(fields, *field, '|');
        }
        std::getline(fields, expected);
        CSmallTree small(game);
        if (opening.starts_with("edit ")) {
            const std::string label = opening.substr(5);
            CStructureDlg editor(small.database, small.tree, small.Entry(label), &small.document,
                                 small.Item(label));
            ui.OnDialog(IDD_STRUCTURE, [&](CHeadlessUser& user) {
                EXPECT_EQ(Shown(user), expected);
                user.Click(IDC_ITEM_CANCEL);
            });
            EXPECT_EQ(editor.DoModal(), 0);
            continue;
        }
        const bool armies = opening == "armies";
        CSummaryDlg summary(armies ? CSummaryDlg::MODE_ARMIES : CSummaryDlg::MODE_STRUCTURE,
                            armies ? nullptr : small.Entry(opening), &small.document, small.tree);
        ui.OnDialog(IDD_SUMMARY, [&](CHeadlessUser& user) {
            std::istringstream words(steps);
            std::string step;
            while (words >> step && (step == ">" || step == "<")) {
                user.Click(step == ">" ? IDC_SUM_NEXT : IDC_SUM_PREV);
            }
            EXPECT_EQ(Shown(user), expected);
            step == "enter" ? user.Enter() : user.Escape();
        });
        EXPECT_EQ(summary.DoModal(), 0);
    }
}

// The item is never touched: Cancel leaves nothing, Accept a clone with the name typed (at most
// 40 characters); the summary opened from the editor cannot step.
TEST_F(HeadlessTest, StructureEditorName) {
    CSmallTree small("full");
    const CStructureItem& brigade = small.Item("Foot Brigade");
    CStructureDlg editor(small.database, small.tree, small.Entry("Foot Brigade"), &small.document,
                         brigade);
    ui.OnDialog(IDD_STRUCTURE, [](CHeadlessUser& user) {
        user.Type(IDC_ITEM_NAME, "Rifle Brigade");
        user.Escape();
    });
    EXPECT_EQ(editor.DoModal(), 0);
    EXPECT_EQ(editor.TakeEdited(), nullptr);
    ui.OnDialog(IDD_STRUCTURE, [&](CHeadlessUser& user) {
        user.Type(IDC_ITEM_NAME, std::string(41, 'x'));
        EXPECT_EQ(user.Text(IDC_ITEM_NAME), std::string(40, 'x'));
        user.Click(IDC_ITEM_RESET);
        EXPECT_EQ(user.Text(IDC_ITEM_NAME), "Foot Brigade");
        user.Type(IDC_ITEM_NAME, "Rifle Brigade");
        user.Enter();
        EXPECT_EQ(user.FocusId(), IDC_ITEM_ACCEPT);
        ui.OnDialog(IDD_SUMMARY, [](CHeadlessUser& summary) {
            EXPECT_EQ(summary.Text(IDC_SUM_NAME), "Foot Brigade");
            EXPECT_FALSE(summary.IsEnabled(IDC_SUM_PREV) || summary.IsEnabled(IDC_SUM_NEXT));
            summary.CloseBox();
        });
        user.Click(IDC_STRUCT_SUMMARY);
        user.Click(IDC_ITEM_ACCEPT);
    });
    EXPECT_EQ(editor.DoModal(), 1);
    const std::unique_ptr<COobItem> edited = editor.TakeEdited();
    ASSERT_NE(edited, nullptr);
    EXPECT_EQ(edited->m_strName + "/" + brigade.m_strName, "Rifle Brigade/Foot Brigade");
    EXPECT_EQ(edited->m_nType, TYPE_STRUCTURE);
}

using StructureMainTest = MainWindowTest;

// An army is edited through a structure item and stays an army; each accepted edit is one step.
TEST_F(StructureMainTest, PropertiesRenameStructureAndArmyAsOneUndoableStepEach) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        for (const char* label : {"Royal Guard Brigade", "Royal Army of Valdoria"}) {
            const HTREEITEM entry = FindLabel(main.m_tree, label);
            const int type = ItemOf(main.m_tree, entry)->m_nType;
            user.SelectEntry(IDC_TREE, entry);
            ui.OnDialog(IDD_STRUCTURE, [](CHeadlessUser& dlg) {
                dlg.Type(IDC_ITEM_NAME, "Renamed");
                dlg.Click(IDC_ITEM_ACCEPT);
            });
            user.Command(ID_EDIT_PROPERTIES);
            EXPECT_EQ(ItemOf(main.m_tree, entry)->m_strName, "Renamed");
            EXPECT_EQ(ItemOf(main.m_tree, entry)->m_nType, type);
            EXPECT_EQ(main.m_tree.GetItemText(entry), "Renamed");
            ExpectStatus(user, "*", "*");
            user.Command(ID_EDIT_UNDO);
            EXPECT_EQ(main.m_tree.GetItemText(entry), label);
            ExpectStatus(user, " ", "*");
        }
    });
}

// Without a workspace nothing opens; on the sample -> stops before the depot after the armies.
TEST_F(StructureMainTest, ArmiesSummaryStepsOverTheSampleArmies) {
    Run([&](CHeadlessUser& user, CMainDlg&) {
        user.Command(ID_OPTIONS_ARMIES_SUMMARY);
        Load(user, folder / "harnwick.txt");
        ui.OnDialog(IDD_SUMMARY, [](CHeadlessUser& dlg) {
            std::string names = dlg.Text(IDC_SUM_NAME);
            for (int arrow : {IDC_SUM_NEXT, IDC_SUM_NEXT, IDC_SUM_PREV}) {
                dlg.Click(arrow);
                names += "/" + dlg.Text(IDC_SUM_NAME);
            }
            EXPECT_EQ(names,
                      "Royal Army of Valdoria/Army of the Serelian Confederacy/Army of the "
                      "Serelian Confederacy/Royal Army of Valdoria");
            dlg.Click(IDC_SUM_ACCEPT);
        });
        user.Command(ID_OPTIONS_ARMIES_SUMMARY);
    });
}
}  // namespace
