// The small choosers: "Find item" over the tree, "Add new list" over the types, "Attached Order
// of Battles" and "Select unit class".
#include <gtest/gtest.h>

#include <memory>

#include "HeadlessTest.h"
#include "dialogs/AddListDlg.h"
#include "dialogs/AttachedDlg.h"
#include "dialogs/FindDlg.h"
#include "dialogs/UnitClassDlg.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "resources/ResourceIds.h"

namespace {
using Script = std::function<void(CHeadlessUser&)>;

// The texts of a list's lines, in order.
std::vector<std::string> LinesOf(const CLineStore& lines) {
    std::vector<std::string> texts;
    for (int i = 0; i < lines.GetCount(); ++i) {
        texts.push_back(lines.GetText(i));
    }
    return texts;
}

class FindDlgTest : public HeadlessTest {
protected:
    FindDlgTest() {
        const HTREEITEM army = tree.InsertItem("1st Army");
        const HTREEITEM corps = tree.InsertItem("I Corps", army);
        tree.InsertItem("Guard brigade", corps);
        guards = tree.InsertItem("Guards Cavalry", corps);
        tree.InsertItem("II Corps", army);
        tree.InsertItem("2nd Army Guards");
    }

    CTreeCtrl tree;
    HTREEITEM guards = nullptr;
};

// Case-sensitive, in tree order (an entry, its children, then its next sibling), the first
// match selected, so Goto at once gives the first match in the tree.
TEST_F(FindDlgTest, FindsLabelsInTheSameCaseInTreeOrder) {
    CFindDlg dlg(tree);
    ui.OnDialog(IDD_FIND, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().Resource().caption, "Find item");
        EXPECT_FALSE(user.IsEnabled(IDC_FIND_GOTO));
        EXPECT_EQ(user.Text(IDC_FIND_TEXT), "");
        user.Type(IDC_FIND_TEXT, "Guard");
        user.Click(IDC_FIND_SEARCH);
        EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)),
                  (std::vector<std::string>{"Guard brigade", "Guards Cavalry", "2nd Army Guards"}));
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCurSel(), 0);
        EXPECT_TRUE(user.IsEnabled(IDC_FIND_GOTO));
        user.Type(IDC_FIND_TEXT, "GUARD");
        user.Enter();  // Search is the default button
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCount(), 0);
        EXPECT_FALSE(user.IsEnabled(IDC_FIND_GOTO));
        user.Type(IDC_FIND_TEXT, "Guards");
        user.Enter();
        user.Click(IDC_FIND_GOTO);
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    EXPECT_EQ(dlg.ChosenEntry(), guards);
}

TEST_F(FindDlgTest, AnEmptySearchListsEveryEntryAndGotoTakesThePickedLine) {
    CFindDlg dlg(tree);
    ui.OnDialog(IDD_FIND, [](CHeadlessUser& user) {
        user.Click(IDC_FIND_SEARCH);
        EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)),
                  (std::vector<std::string>{"1st Army", "I Corps", "Guard brigade",
                                            "Guards Cavalry", "II Corps", "2nd Army Guards"}));
        user.Pick(IDC_CHOICE_LIST, "Guards Cavalry");
        user.Click(IDC_FIND_GOTO);
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    EXPECT_EQ(dlg.ChosenEntry(), guards);
}

TEST_F(FindDlgTest, CancelEscapeAndTheCloseBoxChooseNothing) {
    CFindDlg dlg(tree);
    for (Script leave : {Script([](CHeadlessUser& u) { u.Click(IDC_CHOICE_CANCEL); }),
                         Script([](CHeadlessUser& u) { u.Escape(); }),
                         Script([](CHeadlessUser& u) { u.CloseBox(); })}) {
        ui.OnDialog(IDD_FIND, [leave](CHeadlessUser& user) {
            user.Click(IDC_FIND_SEARCH);
            leave(user);
        });
        EXPECT_EQ(dlg.DoModal(), 0);
        EXPECT_EQ(dlg.ChosenEntry(), nullptr);
    }
}

// Types in file order: two unit types, a leader command, three structure types and a
// cavalry type after them.
class AddListDlgTest : public HeadlessTest {
protected:
    AddListDlgTest() {
        AddType(1, "Foot", "Line infantry");
        AddType(4, "1", "Brigade commander");
        AddType(6, "C ", "Corps headquarters");
        AddType(6, "D ", "Division headquarters");
        AddType(6, "B ", "Brigade headquarters");
        AddType(2, "Horse", "Hussars");
        AddType(3, "Guns", "Field guns");
    }
    CTypeRecord* AddType(std::uint8_t classCode, const char* key, const char* text) {
        auto type = std::make_unique<CTypeRecord>();
        type->m_nCode = classCode;
        type->m_strType = key;
        type->m_strName = text;
        CTypeRecord* added = type.get();
        database.m_Types.PushBack(std::move(type));
        return added;
    }

    CGameDatabase database;
};

struct AddListCase {
    std::uint8_t lowest;
    std::uint8_t highest;
    bool stop;
    const char* stopName;
    std::vector<std::string> lines;
};

class AddListOfferTest : public AddListDlgTest,
                         public ::testing::WithParamInterface<AddListCase> {};

TEST_P(AddListOfferTest, OffersTheTypesOfTheClassRangeUpToTheStopName) {
    const AddListCase& c = GetParam();
    CAddListDlg dlg(database, c.lowest, c.highest, c.stop, c.stopName);
    ui.OnDialog(IDD_ADD_LIST, [&c](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().Resource().caption, "Add new list");
        EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)), c.lines);
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCurSel(), c.lines.empty() ? LB_ERR : 0);
        user.Click(IDC_CHOICE_ACCEPT);
    });
    EXPECT_EQ(dlg.DoModal(), c.lines.empty() ? 0 : 1);
    if (c.lines.empty()) {
        EXPECT_EQ(dlg.ChosenType(), nullptr);
    } else {
        ASSERT_NE(dlg.ChosenType(), nullptr);
        EXPECT_EQ(dlg.ChosenType()->m_strName, c.lines[0]);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Offers, AddListOfferTest,
    ::testing::Values(
        AddListCase{1, 3, false, "", {"Line infantry", "Hussars", "Field guns"}},
        AddListCase{4, 4, false, "", {"Brigade commander"}}, AddListCase{5, 5, false, "", {}},
        AddListCase{6,
                    6,
                    false,
                    "B ",
                    {"Corps headquarters", "Division headquarters", "Brigade headquarters"}},
        // A child of a brigade may be a corps or a division; the stop name is not listed.
        AddListCase{6, 6, true, "B ", {"Corps headquarters", "Division headquarters"}},
        // Under the first structure type of the game data: nothing to offer.
        AddListCase{6, 6, true, "C ", {}},
        // The name is compared exactly: "b " is no stop, and types outside the range never are.
        AddListCase{6,
                    6,
                    true,
                    "b ",
                    {"Corps headquarters", "Division headquarters", "Brigade headquarters"}},
        AddListCase{6,
                    6,
                    true,
                    "Foot",
                    {"Corps headquarters", "Division headquarters", "Brigade headquarters"}}));

TEST_F(AddListDlgTest, AcceptAndEnterGiveThePickedTypeAndCancelGivesNone) {
    CAddListDlg dlg(database, 1, 3);
    ui.OnDialog(IDD_ADD_LIST, [](CHeadlessUser& user) {
        user.Pick(IDC_CHOICE_LIST, "Field guns");
        user.Click(IDC_CHOICE_ACCEPT);
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    ASSERT_NE(dlg.ChosenType(), nullptr);
    EXPECT_EQ(dlg.ChosenType()->m_strType, "Guns");

    ui.OnDialog(IDD_ADD_LIST, [](CHeadlessUser& user) {
        user.Pick(IDC_CHOICE_LIST, 1);
        user.Enter();
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    EXPECT_EQ(dlg.ChosenType()->m_strType, "Horse");

    for (Script leave : {Script([](CHeadlessUser& u) { u.Click(IDC_CHOICE_CANCEL); }),
                         Script([](CHeadlessUser& u) { u.Escape(); }),
                         Script([](CHeadlessUser& u) { u.CloseBox(); })}) {
        ui.OnDialog(IDD_ADD_LIST, leave);
        EXPECT_EQ(dlg.DoModal(), 0);
        EXPECT_EQ(dlg.ChosenType(), nullptr);
    }
}

class AttachedDlgTest : public HeadlessTest {
protected:
    void AddAttached(const char* file, const char* text) {
        auto record = std::make_unique<CAttachedOobRecord>();
        record->m_strFile = file;
        record->m_strName = text;
        database.m_AttachedOobs.PushBack(std::move(record));
    }

    CGameDatabase database;
};

// Every way of closing gives the selected line's index: Accept, Enter, Escape, the close box.
TEST_F(AttachedDlgTest, GivesTheSelectedLineHoweverItCloses) {
    AddAttached("border.oob", "Border Skirmish");
    AddAttached("siege.oob", "Siege of Tarrow");
    AddAttached("river.oob", "River Crossing");
    CAttachedDlg dlg(database);
    ui.OnDialog(IDD_ATTACHED, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().Resource().caption, "Attached Order of Battles");
        EXPECT_EQ(
            LinesOf(user.Lines(IDC_CHOICE_LIST)),
            (std::vector<std::string>{"Border Skirmish", "Siege of Tarrow", "River Crossing"}));
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCurSel(), 0);
        user.Click(IDC_CHOICE_ACCEPT);
    });
    EXPECT_EQ(dlg.DoModal(), 0);
    const std::vector<std::pair<int, Script>> cases = {
        {2, [](CHeadlessUser& u) { u.Click(IDC_CHOICE_ACCEPT); }},
        {1, [](CHeadlessUser& u) { u.Enter(); }},
        {2, [](CHeadlessUser& u) { u.Escape(); }},
        {1, [](CHeadlessUser& u) { u.CloseBox(); }},
    };
    for (const auto& [line, leave] : cases) {
        ui.OnDialog(IDD_ATTACHED, [line, leave](CHeadlessUser& user) {
            user.Pick(IDC_CHOICE_LIST, line);
            leave(user);
        });
        EXPECT_EQ(dlg.DoModal(), line);
    }
}

TEST_F(AttachedDlgTest, WithNoAttachedOrderOfBattleItGivesMinusOne) {
    CAttachedDlg dlg(database);
    ui.OnDialog(IDD_ATTACHED, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCount(), 0);
        user.Click(IDC_CHOICE_ACCEPT);
    });
    EXPECT_EQ(dlg.DoModal(), -1);
}

struct UnitClassCase {
    Script answer;
    int unitClass;
};

TEST(UnitClassDlg, ShowsTheLineAndGivesTheClassWithInfantryForEscape) {
    const std::string line = "U 26 4 Zouaves Rifle 3 0 2 Aldmere Light Companies of the Hills";
    const std::vector<UnitClassCase> cases = {
        {[](CHeadlessUser& u) { u.Click(IDC_CLASS_INFANTRY); }, 1},
        {[](CHeadlessUser& u) { u.Click(IDC_CLASS_CAVALRY); }, 2},
        {[](CHeadlessUser& u) { u.Click(IDC_CLASS_ARTILLERY); }, 3},
        {[](CHeadlessUser& u) { u.Enter(); }, 1},
        {[](CHeadlessUser& u) { u.Escape(); }, 1},
        {[](CHeadlessUser& u) { u.CloseBox(); }, 1},
    };
    for (const UnitClassCase& c : cases) {
        CHeadlessBackend ui;
        ui.SetFailureHandler([](const std::string& problem) { ADD_FAILURE() << problem; });
        CUnitClassDlg dlg(line);
        ui.OnDialog(IDD_UNIT_CLASS, [&](CHeadlessUser& user) {
            EXPECT_EQ(user.Dialog().Resource().caption, "Select unit class");
            EXPECT_EQ(user.Dialog().Resource().controls[0].text,
                      "Please select unit class for the new type of unit");
            EXPECT_EQ(user.Dialog().Resource().Find(IDC_CLASS_LINE)->text, ".");
            EXPECT_EQ(user.Text(IDC_CLASS_LINE), line);  // longer than 40: shown whole
            c.answer(user);
        });
        EXPECT_EQ(dlg.DoModal(), c.unitClass);
        ui.CheckAllUsed();
    }
}
}  // namespace
