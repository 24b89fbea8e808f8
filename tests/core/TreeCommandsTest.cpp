// The tree commands on a session: the clipboard's states, the level rule, a cut subtree kept out
// of itself, the deletes and what they select, renaming, and the new items of each kind.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "SmallGameData.h"
#include "TempFolder.h"
#include "TestTrees.h"
#include "model/NewItems.h"
#include "model/OobDocument.h"
#include "model/TreeCommands.h"
#include "model/Workspace.h"

namespace {

// A corps inside a brigade: the file allows it, though a corps stands above a brigade.
const char* const kOob =
    "3\r\nA Army\r\n\tBegin\r\n\tL 4 6 0 Marshal\r\n\tB Brig\r\n\t\tBegin\r\n\t\tC Odd Corps\r\n"
    "\t\tU 40 9 Guards Breechloader 1 0 0 Foot\r\n\t\tEnd\r\n\tD Div\r\n\tEnd\r\n"
    "DEP 45 1 Depot\r\nGB 6 5 Gun24 14 Boat\r\n";

class TreeCommandsTest : public ::testing::Test {
protected:
    TreeCommandsTest() {
        WriteBytes(folder / "army.oob", kOob);
        auto workspace = std::make_unique<CWorkspace>();
        workspace->m_strOobFile = folder / "army.oob";
        session.Open(std::move(workspace), session.LoadDatabase(HW_SAMPLE_DIR "/valdoria.inf"));
    }
    HTREEITEM At(const char* label) const { return FindLabel(session.Tree(), label); }
    std::string Clip() const { return session.MarkedCaption() + ("/" + session.MarkedName()); }
    std::string Tree() const { return Shape(session.Tree()); }

    CTempFolder folder;
    CRecordingPrompts prompts;
    CSession session{prompts};
};

const char* const kShape = "Army(Marshal Brig(Odd Corps Foot) Div) Depot Boat";

TEST_F(TreeCommandsTest, CopyPastesUnderHigherLevelsAndKeepsItsMark) {
    EXPECT_EQ(Clip(), "Marked item/empty");
    for (const char* label : {"Army", "Depot", "Boat"}) {
        EXPECT_FALSE(MarkEntry(session, At(label), ClipMode::Copy)) << label;
    }
    ASSERT_TRUE(MarkEntry(session, At("Brig"), ClipMode::Copy));
    EXPECT_EQ(Clip(), "Marked item [Copy]/Brig");
    EXPECT_EQ(PasteChild(session, At("Foot")), nullptr);  // a unit is below a brigade
    EXPECT_EQ(PasteChild(session, At("Brig")), nullptr);  // and a brigade not above one
    EXPECT_EQ(PasteNext(session, At("Army")), nullptr);   // no parent to paste under
    EXPECT_FALSE(session.Edit().CanUndo());
    PasteNext(session, At("Div"));
    const HTREEITEM second = PasteNext(session, At("Div"));
    EXPECT_EQ(session.Tree().GetSelectedItem(), second);
    EXPECT_EQ(second->Row(), 3u);
    EXPECT_EQ(Tree(),
              "Army(Marshal Brig(Odd Corps Foot) Div Brig(Odd Corps Foot) "
              "Brig(Odd Corps Foot)) Depot Boat");
    EXPECT_EQ(Clip(), "Marked item [Copy]/Brig");
    EXPECT_STREQ(session.OobStatus(), "*");
    // Deleting any entry ends the mark, and the parent takes the selection.
    EXPECT_TRUE(DeleteEntry(session, second));
    EXPECT_EQ(Clip(), "Marked item/empty");
    EXPECT_EQ(session.Tree().GetSelectedItem(), At("Army"));
    EXPECT_EQ(session.Edit().UndoCount(), 3u);
}

TEST_F(TreeCommandsTest, CutMovesInOneStepButNeverIntoItself) {
    const HTREEITEM brig = At("Brig");
    ASSERT_TRUE(MarkEntry(session, brig, ClipMode::Cut));
    EXPECT_EQ(Clip(), "Marked item [Cut]/Brig");
    // The corps' level is above the brigade's, but it would go with the cut brigade.
    EXPECT_EQ(PasteChild(session, At("Odd Corps")), nullptr);
    const HTREEITEM beside = PasteNext(session, brig);  // beside itself: the copy takes its place
    EXPECT_EQ(session.Tree().GetSelectedItem(), beside);
    EXPECT_EQ(Tree(), kShape);
    EXPECT_EQ(Clip(), "Marked item/empty");
    session.Edit().Undo();
    EXPECT_EQ(Clip(), "Marked item [Cut]/Brig");
    EXPECT_EQ(At("Brig"), brig);
    const HTREEITEM pasted = PasteChild(session, At("Div"));
    EXPECT_EQ(Tree(), "Army(Marshal Div(Brig(Odd Corps Foot))) Depot Boat");
    EXPECT_EQ(session.Tree().GetSelectedItem(), pasted);
    EXPECT_EQ(session.Edit().UndoCount(), 1u);
}

TEST_F(TreeCommandsTest, DeletesRenamesAndTheMarkAfterANewTree) {
    EXPECT_FALSE(DeleteChildren(session, At("Marshal")));
    ASSERT_TRUE(DeleteChildren(session, At("Army")));
    EXPECT_EQ(Tree(), "Army Depot Boat");
    session.Edit().Undo();
    EXPECT_EQ(Tree(), kShape);
    DeleteEntry(session, At("Depot"));
    EXPECT_EQ(session.Tree().GetSelectedItem(), nullptr);
    // A name of blanks only would not survive the file; an unchanged one is no step.
    for (const char* refused : {"", " \t "}) {
        EXPECT_FALSE(RenameEntry(session, At("Div"), refused));
    }
    EXPECT_TRUE(RenameEntry(session, At("Div"), "Div"));
    EXPECT_EQ(session.Edit().UndoCount(), 1u);
    EXPECT_TRUE(RenameEntry(session, At("Div"), " 2nd Div"));
    EXPECT_EQ(Tree(), "Army(Marshal Brig(Odd Corps Foot)  2nd Div) Boat");
    // A restore ends the mark, as does opening a workspace.
    MarkEntry(session, At("Foot"), ClipMode::Copy);
    session.Edit().ReplaceTree(
        [&](CTreeStore& tree) { return session.Document()->LoadTree(folder / "army.oob", tree); });
    EXPECT_EQ(Clip(), "Marked item/empty");
    MarkEntry(session, At("Foot"), ClipMode::Cut);
    session.Open(std::make_unique<CWorkspace>(), session.LoadDatabase(""));
    EXPECT_EQ(Clip(), "Marked item/empty");
}

NewKind KindNamed(const std::string& name) {
    return name == "Unit"     ? NewKind::Unit
           : name == "Leader" ? NewKind::Leader
           : name == "Supply" ? NewKind::Supply
                              : NewKind::Structure;
}

TEST_F(TreeCommandsTest, NewItemsOfEachKind) {
    CGameDatabase& database = *session.Database();
    std::ifstream rows(HW_TEST_DATA "/tree/new-items.txt");
    std::string row;
    while (std::getline(rows, row)) {
        std::istringstream cells(row);
        std::string kind, typeName, maximum, expected;
        if (row[0] == '#' || !std::getline(cells, kind, '|') ||
            !std::getline(cells, typeName, '|') || !std::getline(cells, maximum, '|') ||
            !std::getline(cells, expected)) {
            continue;
        }
        auto* type = static_cast<CTypeRecord*>(database.m_Types.FindByKey(typeName));
        ASSERT_NE(type, nullptr) << row;
        CBaseTypeRecord* base = database.FindBaseTypeOfClass(type->ClassCode());
        const std::int16_t kept = base->m_nMaxStrength;
        base->m_nMaxStrength =
            maximum == "-" ? kept : static_cast<std::int16_t>(std::stoi(maximum));
        std::string line;
        NewItem(database, KindNamed(kind), *type)->ToText(line);
        EXPECT_EQ(line, expected);
        base->m_nMaxStrength = kept;
    }
    // A unit must name a weapon and its class need not have a base type; a structure needs a
    // kind of its type's name.
    CTypeRecord odd;
    odd.m_nCode = 7;
    odd.m_strType = "Z ";
    odd.m_strName = "Odd";
    EXPECT_EQ(NewItem(database, NewKind::Unit, odd), nullptr);
    EXPECT_EQ(NewItem(database, NewKind::Structure, odd), nullptr);
    auto pike = std::make_unique<CWeaponRecord>();
    pike->m_strWeapon = "Pike";
    odd.m_Weapons.PushBack(std::move(pike));
    std::string line;
    NewItem(database, NewKind::Unit, odd)->ToText(line);
    EXPECT_EQ(line, "U 0 0 Z  Pike 0 0 0 New Odd");
}

}  // namespace
