#include <gtest/gtest.h>

#include "ReportTree.h"
#include "TempFolder.h"
#include "model/Result.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

const char* const kFullShape =
    "North(Chief First(Line Guns Wagons) Outer(Inner)) South(Staff(Aide Foot))";

class GameImport : public CReportTree {
protected:
    void SetUp() override {
        CReportTree::SetUp();
        // 1. North: 1.1 Chief, 1.2 First (1.2.1 Line, 1.2.2 Guns, 1.2.3 Wagons),
        //    1.3 Outer (1.3.1 Inner). 2. South: 2.1 Staff (2.1.1 Aide, 2.1.2 Foot).
        Build({"A North", "Begin", "L 4 3 0 Chief", "C First", "Begin", "U 8 2 Fus Musket 0 0 Line",
               "U 6 2 Gun Cannon 0 0 Guns", "S 9 0 Wagons", "End", "C Outer", "Begin", "C Inner"});
        Build(
            {"A South", "Begin", "C Staff", "Begin", "L 4 3 0 Aide", "U 5 2 Fus Musket 0 0 Foot"});
    }

    // Imports a game file made of nine header lines (the first looking like a record) and the
    // given record lines.
    int Import(const std::string& records, int flags) {
        WriteBytes(m_folder / "game.btl", "1 9.9 0 0 9\n2\n3\n4\n5\n6\n7\n8\n9\n" + records);
        return m_doc.GetData(m_folder / "game.btl", m_tree, flags);
    }

    std::int16_t Strength(const std::string& name) const {
        COobItem* item = ItemOf(m_tree, Find(name));
        return item->m_nType == TYPE_SUPPLY ? static_cast<CSupplyItem*>(item)->m_nSupply
                                            : static_cast<CUnitItem*>(item)->m_nStrength;
    }

    CTempFolder m_folder;
};

TEST_F(GameImport, KeysNameEntriesByPosition) {
    const std::pair<const char*, const char*> cases[] = {
        {"1", "North"},
        {"2.", "South"},
        {"1.2.3.", "Wagons"},
        {"2.1.2.", "Foot"},
        {"", "North"},
        {"3.", "none"},
        {"1.9", "none"},
        {"1.2.9.4", "none"},
        // A 0 moves nowhere and enters no child; the number after it enters the level below.
        {"1.0.2", "First"},
    };
    for (const auto& [key, name] : cases) {
        const HTREEITEM entry = m_doc.FindItemByKey(key, m_tree);
        EXPECT_EQ(entry ? m_tree.GetItemText(entry) : "none", name) << key;
    }
}

TEST_F(GameImport, UnmentionedEntriesUnderEachChoice) {
    const std::string records = "1 1.2.1. 0 0 5\n2 0 0 0 0 0 0 0 0 0 1\n2.1.1.\n1 2.1.2 0 0 3\n";
    struct Case {
        int flags;
        const char* shape;
        std::int16_t wagons;
    } cases[] = {
        {0, kFullShape, 9},
        {IMPORT_ZERO_MISSING, kFullShape, 0},
        {IMPORT_REMOVE_MISSING, "North(First(Line) Outer(Inner)) South(Staff(Aide Foot))", -1},
        // Empty structures go, and an empty structure holding only an empty one goes with it.
        {IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY, "North(First(Line)) South(Staff(Aide Foot))",
         -1},
    };
    for (const Case& c : cases) {
        m_tree.DeleteAllItems();
        SetUp();
        ASSERT_EQ(Import(records, c.flags), RESULT_DONE);
        EXPECT_EQ(Shape(), c.shape) << c.flags;
        if (c.wagons >= 0) {
            EXPECT_EQ(Strength("Wagons"), c.wagons) << c.flags;
            EXPECT_EQ(Strength("Guns"), c.flags & IMPORT_ZERO_MISSING ? 0 : 6);
        }
    }
}

TEST_F(GameImport, StructureKeptByItsLeaderAlone) {
    // Only the leader of Staff is listed: its units go, and one man (the leader) keeps it.
    ASSERT_EQ(Import("2 0 0 0 0 0 0 0 0 0 1\n2.1.1\n", IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY),
              RESULT_DONE);
    EXPECT_EQ(Shape(), "North South(Staff(Aide))");
}

// Men two levels down keep every structure above them; a structure beside them with none goes,
// and so does one whose only men are gone.
TEST_F(GameImport, MenDeepDownKeepTheStructuresAboveThem) {
    Build({"A East", "Begin", "C Corps", "Begin", "C Division", "Begin", "C Brigade", "Begin",
           "U 5 2 Fus Musket 0 0 Deep", "End", "C Empty", "End", "C Gone", "Begin",
           "U 5 2 Fus Musket 0 0 Lost"});
    ASSERT_EQ(Import("1 3.1.1.1.1 0 0 4\n1 3.1.2.1 0 0 0\n", IMPORT_REMOVE_EMPTY), RESULT_DONE);
    EXPECT_EQ(Shape(Find("East")), "Corps(Division(Brigade(Deep)))");
}

}  // namespace
