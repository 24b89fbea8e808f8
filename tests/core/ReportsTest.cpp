#include <gtest/gtest.h>

#include "ReportTree.h"
#include "TempFolder.h"
#include "base/HtmlText.h"
#include "base/LineWriter.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "model/ContainerItems.h"

namespace {

using Reports = CReportTree;

// The counters of the levels below start again under each new parent: the second corps's unit is
// 1.2.1.
TEST_F(Reports, KeysCountSiblingsPerLevel) {
    Build({"A North", "Begin", "C First", "Begin", "U 8 2 Fus Musket 0 0 One",
           "U 8 2 Fus Musket 0 0 Two", "End", "C Second", "Begin", "U 8 2 Fus Musket 0 0 Three",
           "End", "End", "A South"});
    EXPECT_EQ(ReportText(m_tree, ReportKind::kKey), ReadBytes(HW_TEST_DATA "/reports/key.txt"));
}

TEST_F(Reports, CostReportLinesAndTheDepotCut) {
    Build({"A North", "Begin", "C First", "Begin", "U 8 2 Fus Musket 0 0 Line", "End", "End",
           "DEP 6 0 Stores", "A South", "Begin", "L 4 3 0 Late", "End"});
    const std::vector<std::string> lines = Lines(ReportText(m_tree, ReportKind::kCost));
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_EQ(lines[3], "       Cost : Type        : Name");
    // The army's and corps' figures are their subtrees' totals (each echelon costs 1 itself).
    EXPECT_EQ(lines[5], "     122.00 : Army        : North");
    EXPECT_EQ(lines[6], "     121.00 : Corps       :     First");
    EXPECT_EQ(lines[7], "     120.00 : Infantry    :         Line");
    // The depot ends the cost and leader reports, but not the key and HTML reports.
    EXPECT_EQ(Lines(ReportText(m_tree, ReportKind::kLeader)).size(), 6u);
    EXPECT_NE(ReportText(m_tree, ReportKind::kKey).find("South"), std::string::npos);
    EXPECT_NE(ReportText(m_tree, ReportKind::kHtml, 0).find("South"), std::string::npos);
}

TEST_F(Reports, LeaderReportNumbersPlacesAndGrades) {
    std::vector<std::string> lines = {"L 4 6 0 Alone", "A North", "Begin", "C First", "Begin"};
    for (int i = 0; i < 12; ++i) {
        lines.push_back("L 4 " + std::to_string(i % 8) + " 0 Leader" + std::to_string(i));
    }
    lines.push_back("L x 3 0 Odd");
    Build(lines);
    const std::vector<std::string> report = Lines(ReportText(m_tree, ReportKind::kLeader));
    ASSERT_EQ(report.size(), 20u);
    // A leader at the top level commands no echelon: the column is blank.
    EXPECT_EQ(report[1], " 0   : (1 ,1 ) : C  : A  :             : Alone");
    EXPECT_EQ(report[3], "Army : North");
    EXPECT_EQ(report[7], " 1   : (2 ,1 ) : C  : G  : Corps       :         Leader0");
    // Leadership 7 has no letter.
    EXPECT_EQ(report[14], " 8   : (9 ,1 ) : C  : ?  : Corps       :         Leader7");
    // The thirteenth leader (n = 12) is placed at (1,2); a command type that is no digit has
    // no letter.
    EXPECT_EQ(report[19], " 13  : (2 ,2 ) : ?  : D  : Corps       :         Odd");
    EXPECT_EQ(report[18], " 12  : (1 ,2 ) : C  : D  : Corps       :         Leader11");
}

TEST_F(Reports, HtmlListsNestAndShowTotals) {
    Build({"A North & <South>", "Begin", "C First", "Begin", "U 8 2 Fus Musket 0 0 Line",
           "U 3 -2 Gun Cannon 0 0 Battery", "End", "C Empty", "Begin", "End", "S 6 0 Wagons", "End",
           "DEP 6 1 Stores", "GB 2 3 Cannon 0 River boat", "A Quiet", "Begin", "C Last", "Begin",
           "L 4 3 0 Chief"});
    // The lists still open at the end of the tree are not closed one by one.
    EXPECT_EQ(ReportText(m_tree, ReportKind::kHtml, 0),
              ReadBytes(HW_TEST_DATA "/reports/nested.html"));
    const std::string full = ReportText(m_tree, ReportKind::kHtml, HTML_COSTS | HTML_IMAGES);
    EXPECT_NE(full.find("<DD><IMG SRC=symbol_army.jpg> <BIG>"), std::string::npos);
    EXPECT_NE(full.find("<DD><IMG SRC=symbol_unit.jpg> Line <SMALL>(Line foot <B>40</B>, Q "
                        "<B>2</B>, Cost <B>120</B>)</SMALL>"),
              std::string::npos);
    EXPECT_NE(full.find("<DD><IMG SRC=symbol_leader.jpg> <I>Chief</I>"), std::string::npos);
    EXPECT_NE(full.find("<DD>Stores <SMALL>(Depot <B>6</B>)</SMALL>"), std::string::npos)
        << "a depot has no image and no cost";
    EXPECT_EQ(ReportText(m_tree, ReportKind::kHtml, HTML_IMAGES).find("Cost"), std::string::npos);
    EXPECT_EQ(ReportText(m_tree, ReportKind::kHtml, HTML_COSTS).find("<IMG"), std::string::npos);
}

// Each escaped character at every place of texts up to past two search widths, after text
// already written: the runs around it are copied whole and nothing else changes.
TEST(HtmlText, EscapesAtAnyPlaceOfAnyLength) {
    const std::pair<char, const char*> escapes[] = {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}};
    for (std::size_t length = 1; length <= 40; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            for (const auto& [c, escaped] : escapes) {
                std::string text(length, 'x');
                text[at] = c;
                std::string out = "<P>";
                CLineWriter(out, kEscapedRoom * text.size()).Escaped(text);
                EXPECT_EQ(
                    out, "<P>" + std::string(at, 'x') + escaped + std::string(length - at - 1, 'x'))
                    << length << " " << at;
            }
        }
    }
    std::string out;
    CLineWriter(out, 0).Escaped("");
    EXPECT_EQ(out, "");
}

// The report sums every container's totals in one pass; each line must be what the item's own
// ToHtml, which asks Aggregate, gives.
TEST(ReportsOnTheSample, OnePassTotalsAgreeWithAggregate) {
    CGameDatabase db;
    ASSERT_EQ(db.Load(std::string(HW_SAMPLE_DIR) + "/valdoria.inf"), RESULT_DONE);
    COobDocument doc(&db);
    CTreeStore tree;
    ASSERT_EQ(doc.LoadTree(std::string(HW_SAMPLE_DIR) + "/valdoria.oob", tree), RESULT_DONE);
    const int flags = HTML_COSTS | HTML_IMAGES;
    const std::string report = ReportText(tree, ReportKind::kHtml, flags);
    std::size_t checked = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        std::string line;
        ItemOf(tree, walk.Current())->ToHtml(line, tree, walk.Current(), flags);
        EXPECT_NE(report.find(line + "\r\n"), std::string::npos) << line;
        ++checked;
    }
    EXPECT_EQ(checked, tree.GetCount());
    const std::string cost = ReportText(tree, ReportKind::kCost);
    const HTREEITEM army = tree.GetRootItem();
    const double total = ItemOf(tree, army)->Aggregate(tree, army, CATEGORY_ALL, MEASURE_COST);
    EXPECT_NE(cost.find(Format(" %10.2f : ", total)), std::string::npos);
}
}  // namespace
