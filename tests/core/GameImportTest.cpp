#include <gtest/gtest.h>

#include "ReportTree.h"
#include "TempFolder.h"
#include "base/Result.h"

namespace {

class GameImport : public CReportTree {
protected:
    void SetUp() override {
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
        return ImportGameData(m_folder / "game.btl", m_tree, flags);
    }

    CTempFolder m_folder;
};

// A 0 moves nowhere and enters no child; the number after it enters the level below.
TEST_F(GameImport, KeysNameEntriesByPosition) {
    const std::pair<const char*, const char*> cases[] = {
        {"1", "North"}, {"2.", "South"}, {"1.2.3.", "Wagons"}, {"2.1.2.", "Foot"}, {"", "North"},
        {"3.", "none"}, {"1.9", "none"}, {"1.2.9.4", "none"},  {"1.0.2", "First"}};
    for (const auto& [key, name] : cases) {
        const HTREEITEM entry = FindItemByKey(key, m_tree);
        EXPECT_EQ(entry ? m_tree.GetItemText(entry) : "none", name) << key;
    }
}

// "Remove" with "Remove empty structures" (the other choices are rows of the hostile game-file
// table).
TEST_F(GameImport, EmptyStructuresGoWithTheEntriesTheFileLacks) {
    const std::pair<const char*, const char*> cases[] = {
        // An empty structure holding only an empty one goes with it.
        {"1 1.2.1. 0 0 5\n2 0 0 0 0 0 0 0 0 0 1\n2.1.1.\n1 2.1.2 0 0 3\n",
         "North(First(Line)) South(Staff(Aide Foot))"},
        // Only the leader of Staff is listed: its units go, and one man (the leader) keeps it.
        {"2 0 0 0 0 0 0 0 0 0 1\n2.1.1\n", "North South(Staff(Aide))"},
    };
    for (const auto& [records, shape] : cases) {
        m_tree.DeleteAllItems();
        SetUp();
        ASSERT_EQ(Import(records, IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY), RESULT_DONE);
        EXPECT_EQ(Shape(), shape) << records;
    }
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
