// A small game database and trees built from order-of-battle lines, for the report and import
// tests.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "base/LineStore.h"
#include "base/TreeStore.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"

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

    CGameDatabase m_db;
    COobDocument m_doc{&m_db};
    CTreeStore m_tree;
};
