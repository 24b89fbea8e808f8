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

// Cancel, Escape and the close box: each closes a chooser without a choice.
const Script kCloseWithoutChoosing[] = {[](CHeadlessUser& u) { u.Click(IDC_CHOICE_CANCEL); },
                                        [](CHeadlessUser& u) { u.Escape(); },
                                        [](CHeadlessUser& u) { u.CloseBox(); }};

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
// match selected; an empty search lists every entry, and Goto takes the picked line. Cancel,
// Escape and the close box then choose nothing.
TEST_F(FindDlgTest, FindsLabelsInTheSameCaseInTreeOrder) {
    CFindDlg dlg(tree);
    ui.OnDialog(IDD_FIND, [](CHeadlessUser& user) {
        EXPECT_FALSE(user.IsEnabled(IDC_FIND_GOTO));
        user.Click(IDC_FIND_SEARCH);
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCount(), 6);
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
        user.Type(IDC_FIND_TEXT, "Guard");
        user.Enter();
        user.Pick(IDC_CHOICE_LIST, "Guards Cavalry");
        user.Click(IDC_FIND_GOTO);
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    EXPECT_EQ(dlg.ChosenEntry(), guards);
    for (const Script& leave : kCloseWithoutChoosing) {
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
    void AddType(std::uint8_t classCode, const char* key, const char* text) {
        auto type = std::make_unique<CTypeRecord>();
        type->m_nCode = classCode;
        type->m_strType = key;
        type->m_strName = text;
        database.m_Types.PushBack(std::move(type));
    }

    CGameDatabase database;
};

// The types of the class range up to the stop name (compared exactly, never one outside the
// range): a child of a brigade may be a corps or a division.
TEST_F(AddListDlgTest, OffersTheTypesOfTheClassRangeUpToTheStopName) {
    const std::string all = "Corps headquarters;Division headquarters;Brigade headquarters;";
    const struct {
        std::uint8_t lowest, highest;
        bool stop;
        const char* stopName;
        std::string lines;
    } cases[] = {
        {1, 3, false, "", "Line infantry;Hussars;Field guns;"},
        {5, 5, false, "", ""},
        {6, 6, false, "B ", all},
        {6, 6, true, "B ", "Corps headquarters;Division headquarters;"},
        {6, 6, true, "C ", ""},
        {6, 6, true, "b ", all},
        {6, 6, true, "Foot", all},
    };
    for (const auto& c : cases) {
        CAddListDlg dlg(database, c.lowest, c.highest, c.stop, c.stopName);
        ui.OnDialog(IDD_ADD_LIST, [&c](CHeadlessUser& user) {
            std::string lines;
            for (const std::string& line : LinesOf(user.Lines(IDC_CHOICE_LIST))) {
                lines += line + ";";
            }
            EXPECT_EQ(lines, c.lines) << c.stopName;
            user.Click(IDC_CHOICE_ACCEPT);
        });
        EXPECT_EQ(dlg.DoModal(), c.lines.empty() ? 0 : 1);
        EXPECT_EQ(dlg.ChosenType() ? std::string(dlg.ChosenType()->m_strName) + ";" : "",
                  c.lines.substr(0, c.lines.find(';') + 1));
    }
}

TEST_F(AddListDlgTest, AcceptAndEnterGiveThePickedTypeAndCancelGivesNone) {
    CAddListDlg dlg(database, 1, 3);
    const std::pair<Script, std::string> cases[] = {
        {[](CHeadlessUser& u) {
             u.Pick(IDC_CHOICE_LIST, "Field guns");
             u.Click(IDC_CHOICE_ACCEPT);
         },
         "Guns"},
        {[](CHeadlessUser& u) {
             u.Pick(IDC_CHOICE_LIST, 1);
             u.Enter();
         },
         "Horse"},
        {kCloseWithoutChoosing[0], ""},
        {kCloseWithoutChoosing[1], ""},
        {kCloseWithoutChoosing[2], ""},
    };
    for (const auto& [script, type] : cases) {
        ui.OnDialog(IDD_ADD_LIST, script);
        EXPECT_EQ(dlg.DoModal(), type.empty() ? 0 : 1);
        EXPECT_EQ(dlg.ChosenType() ? std::string(dlg.ChosenType()->m_strType) : "", type);
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

using UnitClassDlgTest = HeadlessTest;

TEST_F(UnitClassDlgTest, ShowsTheLineAndGivesTheClassWithInfantryForEscape) {
    const std::string line = "U 26 4 Zouaves Rifle 3 0 2 Aldmere Light Companies of the Hills";
    const std::pair<Script, int> cases[] = {
        {[](CHeadlessUser& u) { u.Click(IDC_CLASS_CAVALRY); }, 2},
        {[](CHeadlessUser& u) { u.Click(IDC_CLASS_ARTILLERY); }, 3},
        {[](CHeadlessUser& u) { u.Enter(); }, 1},
        {[](CHeadlessUser& u) { u.Escape(); }, 1},
        {[](CHeadlessUser& u) { u.CloseBox(); }, 1},
    };
    for (const auto& [answer, unitClass] : cases) {
        CUnitClassDlg dlg(line);
        ui.OnDialog(IDD_UNIT_CLASS, [&](CHeadlessUser& user) {
            EXPECT_EQ(user.Text(IDC_CLASS_LINE), line);  // longer than 40: shown whole
            answer(user);
        });
        EXPECT_EQ(dlg.DoModal(), unitClass);
    }
}
}  // namespace
