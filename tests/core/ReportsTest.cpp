#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "TempFolder.h"
#include "base/HtmlText.h"
#include "base/LineWriter.h"
#include "base/Result.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/Reports.h"

namespace {

// Each line of tests/data/reports/cases.txt: an order of battle (on tests/data/report.inf:
// infantry 5 men a point, cost 2 a man, modifier 1.5 at quality 2; cavalry 4 men, cost 3;
// artillery 2 men, cost 4; leaders cost 10 at leadership 3), a report kind and HTML flags,
// and the file the report must equal. The key counters of deeper levels start again under each
// new parent; the depot ends the cost and leader reports but not the key and HTML reports.
TEST(Reports, EachReportEqualsItsGoldenFile) {
    const std::map<std::string, ReportKind> kinds = {{"key", ReportKind::kKey},
                                                     {"cost", ReportKind::kCost},
                                                     {"leader", ReportKind::kLeader},
                                                     {"html", ReportKind::kHtml}};
    const std::string folder = HW_TEST_DATA "/reports/";
    CGameDatabase database;
    ASSERT_EQ(database.Load(HW_TEST_DATA "/report.inf"), RESULT_DONE);
    std::istringstream cases(ReadBytes(folder + "cases.txt"));
    int checked = 0;
    for (std::string tree, kind, golden; cases >> std::ws && std::getline(cases, tree, ' ');) {
        if (tree[0] == '#') {
            std::getline(cases, tree);
            continue;
        }
        int flags = 0;
        cases >> kind >> flags >> golden;
        SCOPED_TRACE(golden);
        COobDocument document(&database);
        CTreeStore loaded;
        ASSERT_EQ(document.LoadTree(folder + tree, loaded), RESULT_DONE);
        EXPECT_EQ(ReportText(loaded, kinds.at(kind), flags), ReadBytes(folder + golden));
        ++checked;
    }
    EXPECT_GT(checked, 0);
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

}  // namespace
