// A small game database and trees built from order-of-battle lines, for the report and import
// tests.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
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

// Infantry: 5 men a point, cost 2 a man, modifier 1.5 at quality 2 (15 a strength point).
// Cavalry: 4 men, cost 3. Artillery: 2 men, cost 4. Leaders cost 10 at leadership 3.
inline const char* const kReportTarget =
    "\tReport Game|\n\t0|0|0|0|0|0|\n\t1|1|1|1|1|1|1|1|1|1|\n\t3|0|1|0|0|0.5|-9|9|1|\n\tNorth|\n"
    "</A>\n"
    "\t7|9|A |Army|\n\t6|8|C |Corps|\n\t4|1|L |Leader|\n\t0|1|U |Infantry|\n\t5|1|S |Supply|\n"
    "\t8|2|DEP |Depot|\n\t9|1|GB |Gunboat|\n</B>\n"
    "\t1|2|0.1|2|5|50|Line foot|\n\t2|2|0.1|3|4|40|Horse|\n\t3|2|0.1|4|2|12|Guns|\n"
    "\t4|3|0.2|10|1|1|Staff|\n\t5|0|0|1|10|20|Train|\n\t6|0|0|1|1|1|Echelon|\n</C>\n"
    "\t1|Fus|0.2|Fusilier|\n\t\tMusket|0.3|Musket|\n\t\t</W>\n"
    "\t2|Hus|0|Hussar|\n\t\tSabre|0|Sabre|\n\t\t</W>\n"
    "\t3|Gun|0|Gun|\n\t\tCannon|0|Cannon|\n\t\t</W>\n"
    "\t4|4|0|Command four|\n\t\t</W>\n\t4|x|0|Odd command|\n\t\t</W>\n"
    "\t6|A |0|Army type|\n\t\t</W>\n\t6|C |0|Corps type|\n\t\t</W>\n"
    "\t5|S |0|Supply type|\n\t\t</W>\n\t5|DEP |0|Depot type|\n\t\t</W>\n"
    "\t3|GB |0|Gunboat type|\n\t\tCannon|0.5|Cannon|\n\t\t</W>\n</D>\n</E>\n\tnone|\n</F>";

// The small database, a document on it and a tree built from order-of-battle lines.
struct CReportWorld {
    CReportWorld() {
        std::istringstream in(kReportTarget);
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
