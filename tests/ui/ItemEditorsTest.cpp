// The leader, supply and gunboat editors opened from the main window on the sample: their
// worked examples, the exchange stopping at the first refused field, Cancel leaving the item's
// line as it was, and an accepted edit being one step that Undo takes back.
#include <gtest/gtest.h>

#include "MainWindowFixture.h"
#include "dialogs/PictureDlg.h"
#include "model/Workspace.h"

namespace {

HTREEITEM Find(const CTreeStore& tree, std::string_view label) {
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        if (tree.GetItemText(walk.Current()) == label) {
            return walk.Current();
        }
    }
    ADD_FAILURE() << label;
    return nullptr;
}

std::string LineOf(const CTreeStore& tree, HTREEITEM entry) {
    std::string line;
    ItemOf(tree, entry)->ToText(line);
    return line;
}

// The cost modifier and the cost as the editor shows them.
std::string Figures(const CHeadlessUser& dlg) {
    return dlg.Text(IDC_ITEM_MODIFIER) + "| " + dlg.Text(IDC_ITEM_COST);
}

std::string Selected(const CHeadlessUser& dlg, int listId) {
    const CLineStore& lines = dlg.Lines(listId);
    return lines.GetText(lines.GetCurSel());
}

class ItemEditorsTest : public MainWindowTest {
protected:
    // Loads the sample and selects the entry labelled label.
    HTREEITEM Select(CHeadlessUser& user, CMainDlg& main, std::string_view label) {
        Load(user, folder / "harnwick.txt");
        const HTREEITEM entry = Find(main.m_tree, label);
        user.SelectEntry(IDC_TREE, entry);
        return entry;
    }
};

TEST_F(ItemEditorsTest, LeaderFiguresFollowEachFieldAndAcceptIsOneUndoableStep) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Brigadier Lucien Velault");
        const std::string before = LineOf(main.m_tree, entry);
        ui.OnDialog(IDD_LEADER, [&](CHeadlessUser& dlg) {
            EXPECT_EQ(dlg.Text(IDC_ITEM_POSITION), "1");  // the second leader in tree order
            EXPECT_EQ(dlg.Lines(IDC_ITEM_COMMAND).GetCount(), 7);
            EXPECT_EQ(Figures(dlg), "1.4 | 700 ");
            dlg.Type(IDC_ITEM_LEADERSHIP, "4");
            dlg.Enter();
            EXPECT_EQ(dlg.FocusId(), IDC_ITEM_ACCEPT);
            EXPECT_EQ(Figures(dlg), "1.2 | 600 ");
            dlg.Pick(IDC_ITEM_COMMAND, "Army commander");
            EXPECT_EQ(Figures(dlg), "1.6 | 800 ");
            dlg.Type(IDC_ITEM_THIRD, "40000");  // kept to what 16 bits hold
            dlg.Type(IDC_ITEM_NAME, "Lucien Velault");
            // Refused when the focus leaves it: the focus comes back, the copy keeps 4.
            ui.AnswerMessage("Please enter a whole number from 1 to 6.", IDOK);
            dlg.Type(IDC_ITEM_LEADERSHIP, "7");
            dlg.Click(IDC_ITEM_ACCEPT);
            EXPECT_EQ(dlg.FocusId(), IDC_ITEM_LEADERSHIP);
            EXPECT_EQ(dlg.Text(IDC_ITEM_LEADERSHIP), "4");
            dlg.Click(IDC_ITEM_ACCEPT);
        });
        user.Command(ID_EDIT_PROPERTIES);
        EXPECT_EQ(LineOf(main.m_tree, entry), "L 4 4 32767 Lucien Velault");
        EXPECT_EQ(main.m_tree.GetItemText(entry), "Lucien Velault");
        ExpectStatus(user, "*", "*");
        user.Command(ID_EDIT_UNDO);
        EXPECT_EQ(LineOf(main.m_tree, entry), before);
        EXPECT_EQ(main.m_tree.GetItemText(entry), "Brigadier Lucien Velault");
        ExpectStatus(user, " ", "*");
    });
}

// Third value and position change only with the extras flag 1: with 0 they cannot be
// reached, with any other value what is typed goes back to the stored value.
TEST_F(ItemEditorsTest, LeaderExtrasOnlyWithTheFlagOne) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Brigadier Lucien Velault");
        const std::string before = LineOf(main.m_tree, entry);
        main.m_session.Database()->m_nLeaderExtras = 0;
        ui.OnDialog(IDD_LEADER, [](CHeadlessUser& dlg) {
            EXPECT_FALSE(dlg.IsEnabled(IDC_ITEM_THIRD));
            EXPECT_FALSE(dlg.IsEnabled(IDC_ITEM_POSITION));
            dlg.Escape();
        });
        user.Command(ID_EDIT_PROPERTIES);
        main.m_session.Database()->m_nLeaderExtras = 2;
        ui.OnDialog(IDD_LEADER, [](CHeadlessUser& dlg) {
            dlg.Type(IDC_ITEM_THIRD, "5");
            dlg.Type(IDC_ITEM_POSITION, "9");
            dlg.Enter();
            EXPECT_EQ(dlg.Text(IDC_ITEM_THIRD) + dlg.Text(IDC_ITEM_POSITION), "21");
            dlg.Enter();
        });
        user.DoubleClick(IDC_TREE, entry);
        EXPECT_EQ(LineOf(main.m_tree, entry), before);
    });
}

TEST_F(ItemEditorsTest, SupplyPointsCappedAndExchangeStopsAtTheFirstRefusedField) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "I Corps Train");
        ui.OnDialog(IDD_SUPPLY, [&](CHeadlessUser& dlg) {
            EXPECT_EQ(dlg.Text(IDC_ITEM_NAME) + dlg.Text(IDC_ITEM_PICTURE), "I Corps Train13");
            EXPECT_EQ(Figures(dlg), "1 | 560 ");
            dlg.Type(IDC_ITEM_SUPPLY, "60");  // the base type holds at most 50
            dlg.Enter();
            EXPECT_EQ(dlg.Text(IDC_ITEM_SUPPLY), "50");
            EXPECT_EQ(Figures(dlg), "1 | 1000 ");
            ui.AnswerMessage("Please enter a whole number from 1 to 80.", IDOK);
            dlg.Type(IDC_ITEM_SUPPLY, "0");
            dlg.Enter();
            EXPECT_EQ(dlg.FocusId(), IDC_ITEM_SUPPLY);
            // The refused picture comes first: the focus goes back to it (the points' edit,
            // losing it, asks again), and the points typed meanwhile are never taken.
            ui.AnswerMessage("Please enter a whole number from 0 to 100000.", IDOK);
            ui.AnswerMessage("Please enter a whole number from 0 to 100000.", IDOK);
            dlg.Type(IDC_ITEM_PICTURE, "200000");
            dlg.Type(IDC_ITEM_SUPPLY, "5");
            EXPECT_EQ(dlg.FocusId(), IDC_ITEM_PICTURE);
            EXPECT_EQ(dlg.Text(IDC_ITEM_PICTURE), "13");
            dlg.Click(IDC_ITEM_ACCEPT);
        });
        user.Enter(true);
        EXPECT_EQ(LineOf(main.m_tree, entry), "S 50 13 I Corps Train");
    });
}

TEST_F(ItemEditorsTest, DepotEditedAsSupplyKeepsItsKind) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Grand Depot at Corvenne");
        ui.OnDialog(IDD_SUPPLY, [](CHeadlessUser& dlg) {
            EXPECT_EQ(dlg.Text(IDC_ITEM_PICTURE), "1");
            dlg.Type(IDC_ITEM_PICTURE, "8");
            dlg.Type(IDC_ITEM_NAME, "Depot at Corvenne");
            dlg.Click(IDC_ITEM_ACCEPT);
        });
        user.DoubleClick(IDC_TREE, entry);
        EXPECT_EQ(LineOf(main.m_tree, entry), "DEP 45 8 Depot at Corvenne");
    });
}

TEST_F(ItemEditorsTest, GunboatStrengthInMenQualityClampedAndFanatic) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Gunboat C\xE9lestine");
        ui.OnDialog(IDD_GUNBOAT, [&](CHeadlessUser& dlg) {
            EXPECT_EQ(dlg.Text(IDC_ITEM_STRENGTH), "120");  // 6 points of 20 men
            EXPECT_EQ(Figures(dlg), "1.55 | 744 ");
            dlg.Type(IDC_ITEM_STRENGTH, "250");
            dlg.Enter();
            EXPECT_EQ(dlg.Text(IDC_ITEM_STRENGTH), "240");
            EXPECT_EQ(Figures(dlg), "1.55 | 1488 ");
            dlg.Click(IDC_ITEM_SHOW_POINTS);
            EXPECT_EQ(dlg.Text(IDC_ITEM_STRENGTH), "12");
            dlg.Type(IDC_ITEM_STRENGTH, "30");  // above the base type's 24
            dlg.Type(IDC_ITEM_QUALITY, "10");   // above the game's 9
            dlg.Enter();
            EXPECT_EQ(dlg.Text(IDC_ITEM_STRENGTH) + dlg.Text(IDC_ITEM_QUALITY), "249");
            EXPECT_EQ(Figures(dlg), "1.87 | 3590.4 ");
            dlg.Click(IDC_ITEM_FANATIC);
            EXPECT_EQ(Figures(dlg), "2.37 | 4550.4 ");
            dlg.Pick(IDC_ITEM_WEAPON, "Swivel guns");
            dlg.Click(IDC_ITEM_ACCEPT);
        });
        user.DoubleClick(IDC_TREE, entry);
        EXPECT_EQ(LineOf(main.m_tree, entry), "GB 24 -9 Swivel 14 Gunboat C\xE9lestine");
    });
}

// A fanatic quality of 0 shows the bonus but cannot be stored; Cancel after any edits leaves
// the item, the history and the status fields as they were.
TEST_F(ItemEditorsTest, CancelAfterEditsLeavesTheItem) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Gunboat C\xE9lestine");
        const std::string before = LineOf(main.m_tree, entry);
        ui.OnDialog(IDD_GUNBOAT, [&](CHeadlessUser& dlg) {
            dlg.Type(IDC_ITEM_QUALITY, "0");
            dlg.Click(IDC_ITEM_FANATIC);
            EXPECT_EQ(Figures(dlg), "1.65 | 552 ");
            dlg.Type(IDC_ITEM_NAME, "Renamed");
            dlg.Type(IDC_ITEM_PICTURE, "3");
            dlg.Pick(IDC_ITEM_WEAPON, "Twelve-pounder");
            dlg.Click(IDC_ITEM_RESET);
            EXPECT_EQ(dlg.Text(IDC_ITEM_NAME) + dlg.Text(IDC_ITEM_QUALITY),
                      "Gunboat C\xE9lestine5");
            dlg.Type(IDC_ITEM_STRENGTH, "400");
            dlg.Escape();
        });
        user.Command(ID_EDIT_PROPERTIES);
        EXPECT_EQ(LineOf(main.m_tree, entry), before);
        EXPECT_FALSE(main.m_session.Edit().CanUndo());
        ExpectStatus(user, " ", "*");
    });
}

// Enter opens and closes a structure and leaves other entries alone; a double click on a
// structure opens no editor.
TEST_F(ItemEditorsTest, EnterTogglesStructuresOnly) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM corps = Select(user, main, "I Corps");
        const bool expanded = corps->Expanded();
        user.Enter();
        EXPECT_NE(corps->Expanded(), expanded);
        user.DoubleClick(IDC_TREE, corps);
        user.SelectEntry(IDC_TREE, Find(main.m_tree, "General Thibault Lavault"));
        user.Enter();
    });
}

}  // namespace

TEST_F(ItemEditorsTest, UnitFanaticStrengthInMenAndBaseTypeOfAnotherClass) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const HTREEITEM entry = Select(user, main, "Queen's Own Chasseurs");
        ui.OnDialog(IDD_UNIT, [&](CHeadlessUser& dlg) {
            EXPECT_FALSE(dlg.IsVisible(IDC_ITEM_RESERVED));  // format variant 1
            EXPECT_EQ(dlg.Text(IDC_ITEM_QUALITY) + dlg.Text(IDC_ITEM_STRENGTH), "82800");
            EXPECT_EQ(dlg.Check(IDC_ITEM_FANATIC), 1);
            EXPECT_EQ(dlg.Lines(IDC_ITEM_BASE_TYPE).GetCount(), 3);
            EXPECT_EQ(Figures(dlg), "2 | 8400 ");
            dlg.Click(IDC_ITEM_FANATIC);
            EXPECT_EQ(Figures(dlg), "1.5 | 6300 ");
            dlg.Type(IDC_ITEM_STRENGTH, "1250");  // men: 12 strength points
            dlg.Enter();
            EXPECT_EQ(dlg.Text(IDC_ITEM_STRENGTH), "1200");
            EXPECT_EQ(Figures(dlg), "1.5 | 2700 ");
            dlg.Pick(IDC_ITEM_BASE_TYPE, "Cavalry");
            EXPECT_EQ(Selected(dlg, IDC_ITEM_TYPE) + "/" + Selected(dlg, IDC_ITEM_WEAPON),
                      "Dragoons/Short carbine");
            EXPECT_EQ(Figures(dlg), "1.23 | 2214 ");
            dlg.Click(IDC_ITEM_ACCEPT);
        });
        user.DoubleClick(IDC_TREE, entry);
        EXPECT_EQ(LineOf(main.m_tree, entry),
                  "U 12 8 Dragoons Carbine 3 0 4 Queen's Own Chasseurs");
        main.m_session.Database()->m_nFormatVariant = 2;
        ui.OnDialog(IDD_UNIT, [](CHeadlessUser& dlg) {
            EXPECT_TRUE(dlg.IsVisible(IDC_ITEM_RESERVED));
            EXPECT_FALSE(dlg.IsEnabled(IDC_ITEM_RESERVED));
            dlg.Escape();
        });
        user.Command(ID_EDIT_PROPERTIES);
    });
}

// A "..." button opens the selector only on a strip switched on, with its file and the game
// data's geometry for the unit's class; the number chosen lands in the field.
TEST_F(ItemEditorsTest, PickersOpenOnlyAStripSwitchedOn) {
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Select(user, main, "Queen's Own Chasseurs");
        CWorkspace& workspace = *main.m_session.Workspace();
        workspace.m_strPicturePaths[CWorkspace::CAVALRY_ICONS] = HW_SAMPLE_DIR "/icons3d1.bmp";
        workspace.m_nPictureFlags[CWorkspace::UNIT_PICTURES] = 0;
        main.m_session.Database()->m_nIconGeometry = {9, 9, 1, 2, 9, 9};
        ui.OnDialog(IDD_UNIT, [&](CHeadlessUser& dlg) {
            dlg.Click(IDC_ITEM_PICTURE_PICK);  // switched off: no selector opens
            dlg.Pick(IDC_ITEM_BASE_TYPE, "Cavalry");
            ui.OnDialog(IDD_PICTURE, [](CHeadlessUser& pick) {
                const auto& s = static_cast<const CPictureDlg&>(pick.Dialog());
                EXPECT_EQ(s.m_strBitmapFile, HW_SAMPLE_DIR "/icons3d1.bmp");
                EXPECT_EQ(
                    std::vector({s.m_nCellWidth, s.m_nCellHeight, s.m_nOffset, s.m_nTrailing}),
                    std::vector({32u, 32u, 1u, 2u}));
                pick.Click(IDC_PIC_NEXT);
                pick.Click(IDC_PIC_ACCEPT);
            });
            dlg.Click(IDC_ITEM_ICON_PICK);
            EXPECT_EQ(dlg.Text(IDC_ITEM_ICON), "5");
            dlg.Escape();
        });
        user.Command(ID_EDIT_PROPERTIES);
    });
}
