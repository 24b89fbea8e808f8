// A small target file for the item and document tests: one kind of every item class, two kinds
// whose type code names no class (X and Y) and a supply kind Q with no type record; one base type
// per class, chosen so that the costs come out as round numbers.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "gamedata/GameDatabase.h"
#include "gamedata/ReaderPrompts.h"

// OOB header 3, format variant 0, fanatic bonus 0.5.
inline const char* const kSmallGameData =
    "Test Marches|\n\n\n3|0|1|0|0|0.5|-9|9|1|\nNorland|\n</A>\n"
    "7|9|A |Army|\n6|6|B |Brigade|\n4|1|L |Leader|\n0|1|U |Unit|\n5|1|S |Supply|\n"
    "8|1|DEP |Depot|\n9|1|GB |Gunboat|\n5|1|Q |Quartermaster|\n2|1|X |Stray|\n12|1|Y |Other|\n"
    "</B>\n"
    "1|2|0.1|2|5|40|Foot|\n2|3|0.2|3|4|30|Horse|\n3|1|0.05|4|20|24|Guns|\n"
    "4|3|0.1|500|1|1|Leader|\n5|0|0|2|10|50|Supply|\n6|0|0|250|1|1|Headquarters|\n</C>\n"
    "1|Foot|0.2|Foot soldiers|\nMusket|0.3|Musket|\n</W>\n"
    "2|Dragoons|0|Dragoons|\nSabre|0|Sabre|\n</W>\n"
    "3|FieldGun|0.1|Field guns|\nGun6|0|Six-pounder|\n</W>\n"
    "4|4|0.5|Army commander|\n</W>\n4|1|0.1|Brigade commander|\n</W>\n"
    "5|S |0.25|Supply train|\n</W>\n5|DEP |-0.5|Supply depot|\n</W>\n"
    "6|A |1|Army headquarters|\n</W>\n6|B |0|Brigade headquarters|\n</W>\n"
    "3|GB |0.2|River gunboat|\nGun12|0.2|Twelve-pounder|\n</W>\n</D>\n</E>\ntest.tpl|\n</F>\n";

inline void LoadSmallGameData(CGameDatabase& database) {
    std::istringstream in(kSmallGameData);
    database.ReadFrom(in);
}

// Records every question the readers ask and answers the unit class question with m_nAnswer.
class CRecordingPrompts : public CReaderPrompts {
public:
    void Warning(const std::string& text) override { m_warnings.push_back(text); }
    int AskUnitClass(const std::string& line) override {
        m_questions.push_back(line);
        return m_nAnswer;
    }

    int m_nAnswer = 1;
    std::vector<std::string> m_warnings;
    std::vector<std::string> m_questions;
};
