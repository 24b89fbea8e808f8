// The small choosers: "Find item" over the tree, "Add new list" over the types (rows in
// tests/data/ui/add-list.txt), "Attached Order of Battles" and "Select unit class".
#include <gtest/gtest.h>

#include <fstream>
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

// The texts of a list's lines, each followed by ";".
std::string LinesOf(const CLineStore& lines) {
    std::string texts;
    for (int i = 0; i < lines.GetCount(); ++i) {
        texts += lines.GetText(i) + ";";
    }
    return texts;
}

class ChoosersTest : public HeadlessTest {
protected:
    ChoosersTest() {
        const HTREEITEM army = tree.InsertItem("1st Army");
        const HTREEITEM corps = tree.InsertItem("I Corps", army);
        tree.InsertItem("Guard brigade", corps);
        guards = tree.InsertItem("Guards Cavalry", corps);
        tree.InsertItem("II Corps", army);
        tree.InsertItem("2nd Army Guards");
        const std::tuple<std::uint8_t, const char*, const char*> types[] = {
            {1, "Foot", "Line infantry"},      {4, "1", "Brigade commander"},
            {6, "C ", "Corps headquarters"},   {6, "D ", "Division headquarters"},
            {6, "B ", "Brigade headquarters"}, {2, "Horse", "Hussars"},
            {3, "Guns", "Field guns"}};
        for (const auto& [classCode, key, text] : types) {
            auto type = std::make_unique<CTypeRecord>();
            type->m_nCode = classCode;
            type->m_strType = key;
            type->m_strName = text;
            database.m_Types.PushBack(std::move(type));
        }
        for (const char* name : {"Border Skirmish", "Siege of Tarrow", "River Crossing"}) {
            auto record = std::make_unique<CAttachedOobRecord>();
            record->m_strName = name;
            database.m_AttachedOobs.PushBack(std::move(record));
        }
    }

    CTreeCtrl tree;
    HTREEITEM guards = nullptr;
    CGameDatabase database;
};

// Case-sensitive, in tree order (an entry, its children, then its next sibling), the first
// match selected; an empty search lists every entry, and Goto takes the picked line. Cancel,
// Escape and the close box then choose nothing.
TEST_F(ChoosersTest, FindsLabelsInTheSameCaseInTreeOrder) {
    CFindDlg dlg(tree);
    ui.OnDialog(IDD_FIND, [](CHeadlessUser& user) {
        EXPECT_FALSE(user.IsEnabled(IDC_FIND_GOTO));
        user.Click(IDC_FIND_SEARCH);
        EXPECT_EQ(user.Lines(IDC_CHOICE_LIST).GetCount(), 6);
        user.Type(IDC_FIND_TEXT, "Guard");
        user.Click(IDC_FIND_SEARCH);
        EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)),
                  "Guard brigade;Guards Cavalry;2nd Army Guards;");
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

// The types of the class range up to the stop name (compared exactly, never one outside the
// range); Accept on the first line gives it, and on an empty list gives none.
TEST_F(ChoosersTest, AddListOffersTheTypesOfTheClassRangeUpToTheStopName) {
    std::ifstream rows(HW_TEST_DATA "/ui/add-list.txt");
    ASSERT_TRUE(rows);
    std::string lowest, highest, stop, lines;
    while (std::getline(rows, lowest, '|')) {
        if (lowest.starts_with('#')) {
            std::getline(rows, lowest);
            continue;
        }
        std::getline(rows, highest, '|');
        std::getline(rows, stop, '|');
        std::getline(rows, lines);
        CAddListDlg dlg(database, static_cast<std::uint8_t>(std::stoi(lowest)),
                        static_cast<std::uint8_t>(std::stoi(highest)), stop != "-", stop);
        ui.OnDialog(IDD_ADD_LIST, [&](CHeadlessUser& user) {
            EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)), lines) << lowest << stop;
            user.Click(IDC_CHOICE_ACCEPT);
        });
        EXPECT_EQ(dlg.DoModal(), lines.empty() ? 0 : 1);
        EXPECT_EQ(dlg.ChosenType() ? std::string(dlg.ChosenType()->m_strName) + ";" : "",
                  lines.substr(0, lines.find(';') + 1));
    }
}

// "Add new list" gives the type picked with Accept or Enter; "Attached Order of Battles" gives
// the selected line's index however it closes (the first line is selected when it opens);
// "Select unit class" shows the whole line and gives infantry for Enter, Escape and the close box.
TEST_F(ChoosersTest, ChoosersGiveTheirChoiceHoweverTheyClose) {
    CAddListDlg addList(database, 1, 3);
    const std::pair<std::string, Script> types[] = {
        {"Guns",
         [](CHeadlessUser& u) {
             u.Pick(IDC_CHOICE_LIST, "Field guns"), u.Click(IDC_CHOICE_ACCEPT);
         }},
        {"Horse", [](CHeadlessUser& u) { u.Pick(IDC_CHOICE_LIST, 1), u.Enter(); }},
        {"", kCloseWithoutChoosing[0]},
        {"", kCloseWithoutChoosing[1]},
        {"", kCloseWithoutChoosing[2]},
    };
    for (const auto& [type, script] : types) {
        ui.OnDialog(IDD_ADD_LIST, script);
        EXPECT_EQ(addList.DoModal(), type.empty() ? 0 : 1);
        EXPECT_EQ(addList.ChosenType() ? std::string(addList.ChosenType()->m_strType) : "", type);
    }
    const std::pair<int, Script> attached[] = {
        {0, [](CHeadlessUser& u) { u.Click(IDC_CHOICE_ACCEPT); }},
        {2, [](CHeadlessUser& u) { u.Pick(IDC_CHOICE_LIST, 2), u.Click(IDC_CHOICE_ACCEPT); }},
        {1, [](CHeadlessUser& u) { u.Pick(IDC_CHOICE_LIST, 1), u.Enter(); }},
        {2, [](CHeadlessUser& u) { u.Pick(IDC_CHOICE_LIST, 2), u.Escape(); }},
        {1, [](CHeadlessUser& u) { u.Pick(IDC_CHOICE_LIST, 1), u.CloseBox(); }},
    };
    for (const auto& [line, leave] : attached) {
        CAttachedDlg dlg(database);
        ui.OnDialog(IDD_ATTACHED, [&](CHeadlessUser& user) {
            EXPECT_EQ(LinesOf(user.Lines(IDC_CHOICE_LIST)),
                      "Border Skirmish;Siege of Tarrow;River Crossing;");
            leave(user);
        });
        EXPECT_EQ(dlg.DoModal(), line);
    }
    const std::string line = "U 26 4 Zouaves Rifle 3 0 2 Aldmere Light Companies of the Hills";
    const std::pair<int, Script> unitClass[] = {
        {2, [](CHeadlessUser& u) { u.Click(IDC_CLASS_CAVALRY); }},
        {3, [](CHeadlessUser& u) { u.Click(IDC_CLASS_ARTILLERY); }},
        {1, [](CHeadlessUser& u) { u.Enter(); }},
        {1, [](CHeadlessUser& u) { u.Escape(); }},
        {1, [](CHeadlessUser& u) { u.CloseBox(); }},
    };
    for (const auto& [chosen, answer] : unitClass) {
        CUnitClassDlg dlg(line);
        ui.OnDialog(IDD_UNIT_CLASS, [&](CHeadlessUser& user) {
            EXPECT_EQ(user.Text(IDC_CLASS_LINE), line);  // longer than 40: shown whole
            answer(user);
        });
        EXPECT_EQ(dlg.DoModal(), chosen);
    }
}
}  // namespace
