// A small game database and trees built from order-of-battle lines, for the report and import
// tests.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "TestTrees.h"
#include "base/LineStore.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "model/GameImport.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"

// The database of tests/data/report.inf, a document on it and a tree built from order-of-battle
// lines. Infantry: 5 men a point, cost 2 a man, modifier 1.5 at quality 2 (15 a strength point).
// Cavalry: 4 men, cost 3. Artillery: 2 men, cost 4. Leaders cost 10 at leadership 3.
struct CReportWorld {
    CReportWorld() {
        std::ifstream in(HW_TEST_DATA "/report.inf", std::ios::binary);
        m_db.ReadFrom(in);
    }

    // Fills the tree from order-of-battle lines (no indentation needed: "Begin" and "End"
    // carry the nesting).
    void Build(const std::vector<std::string>& lines) {
        CLineStore list;
        for (const std::string& line : lines) {
            list.AddString(line);
        }
        m_doc.m_reader.PasteFromList(m_tree, TVI_ROOT, TVI_LAST, list);
    }

    HTREEITEM Find(const std::string& name) const { return FindLabel(m_tree, name); }
    std::string Shape(HTREEITEM parent = TVI_ROOT) const { return ::Shape(m_tree, parent); }

    CGameDatabase m_db;
    COobDocument m_doc{&m_db};
    CTreeStore m_tree;
};

class CReportTree : public ::testing::Test, public CReportWorld {};

// The lines of a report, without their CR LF.
inline std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
        lines.push_back(text.substr(start, end - start));
    }
    EXPECT_EQ(start, text.size()) << "every line ends with CR LF";
    return lines;
}
