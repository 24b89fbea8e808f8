#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

namespace {

// Six empty header lines; a short keyword listed before a longer one that begins with it, two
// leader kinds, a keyword with a trailing blank and a repeated keyword; two base types of one
// class; two types of one name, and a weapon name repeated within a type.
const char* const kTarget =
    "\n\n\n\n\n\n"
    "6|1|Div|Division|\n7|2|Division|Long division|\n4|1|L |Leader|\n"
    "4|1|Lancer|Second leader kind|\n0|0|U |Unit|\n6|1|Div|Second Div|\n</B>\n"
    "1|0|0|0|0|0|Line foot|\n2|0|0|0|0|0|Horse|\n1|0|0|0|0|0|Second foot|\n</C>\n"
    "1|Fusilier|0|Fusilier|\nMusket|0|Musket|\nRifle|0|Rifle|\nMusket|0|Second musket|\n</W>\n"
    "2|Hussar|0|Hussar|\nSabre|0|Sabre|\n</W>\n"
    "1|Fusilier|0|Second fusilier|\n</W>\n</D>\n</E>\n\n</F>";

class OobItemLookup : public ::testing::Test {
protected:
    void SetUp() override {
        std::istringstream in(kTarget);
        m_db.ReadFrom(in);
        m_item.m_pDatabase = &m_db;
        ASSERT_EQ(m_db.m_Types.Count(), 3);
        m_pFusilier = static_cast<CTypeRecord*>(m_db.m_Types.SeekIndex(0)->m_pPayload.get());
        m_pHussar = static_cast<CTypeRecord*>(m_db.m_Types.SeekIndex(1)->m_pPayload.get());
        m_pSecond = static_cast<CTypeRecord*>(m_db.m_Types.SeekIndex(2)->m_pPayload.get());
    }

    static std::string Text(const CDataObject* record) {
        return record ? record->m_strName : "none";
    }

    CGameDatabase m_db;
    COobItem m_item;
    CTypeRecord* m_pFusilier = nullptr;
    CTypeRecord* m_pHussar = nullptr;
    CTypeRecord* m_pSecond = nullptr;
};

TEST_F(OobItemLookup, KindForLineTakesTheFirstKeywordThatBeginsTheLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"Division 3rd Division", "Division"},  // the short keyword listed first wins
        {"Div 1st", "Division"},
        {"\t\tL 4 4 0 General Umber", "Leader"},  // indentation is no part of the line
        {"Lancer 2", "Second leader kind"},       // "L " does not begin it
        {"U 1 Fusilier", "Unit"},
        {"Di", "Division"},  // a line shorter than a keyword still matches it
        {"Corps North", "none"},
        {"division", "none"},
    };
    for (const auto& [line, kind] : cases) {
        EXPECT_EQ(Text(m_item.FindKindForLine(line)), kind) << line;
    }
}

TEST_F(OobItemLookup, KindByKeywordIsExactAndCaseSensitive) {
    const std::pair<const char*, const char*> cases[] = {
        {"Div", "Division"}, {"Division", "Long division"},
        {"L ", "Leader"},    {"L", "none"},
        {"div", "none"},     {"Divi", "none"},
    };
    for (const auto& [keyword, kind] : cases) {
        EXPECT_EQ(Text(m_item.FindKindByKeyword(keyword)), kind) << keyword;
    }
}

TEST_F(OobItemLookup, KindByTypeTakesTheFirstOfThatCode) {
    EXPECT_EQ(Text(m_item.FindKindByType(TYPE_LEADER)), "Leader");
    EXPECT_EQ(Text(m_item.FindKindByType(TYPE_STRUCTURE)), "Division");
    EXPECT_EQ(Text(m_item.FindKindByType(TYPE_GUNBOAT)), "none");
}

TEST_F(OobItemLookup, BaseTypeTypeAndWeaponByFirstExactMatch) {
    EXPECT_EQ(Text(m_item.FindBaseType(m_pFusilier)), "Line foot");
    EXPECT_EQ(Text(m_item.FindBaseType(m_pHussar)), "Horse");
    CTypeRecord leader;
    leader.m_nCode = 4;
    EXPECT_EQ(m_item.FindBaseType(&leader), nullptr);
    EXPECT_EQ(m_item.FindBaseType(nullptr), nullptr);
    EXPECT_EQ(m_item.FindType("Fusilier"), m_pFusilier);
    EXPECT_EQ(m_item.FindType("Hussar"), m_pHussar);
    const std::pair<const char*, const char*> weapons[] = {
        {"Musket", "Musket"}, {"Rifle", "Rifle"}, {"musket", "none"}, {"Sabre", "none"}};
    for (const auto& [name, text] : weapons) {
        EXPECT_EQ(Text(m_item.FindWeapon(name, m_pFusilier)), text) << name;
    }
    EXPECT_EQ(m_item.FindType("fusilier"), nullptr);
    EXPECT_EQ(m_item.FindWeapon("Musket", m_pSecond), nullptr);
    EXPECT_EQ(m_item.FindWeapon("Musket", nullptr), nullptr);
}

TEST_F(OobItemLookup, NoDatabaseOrNoRecordsFindNothing) {
    CGameDatabase empty;
    for (CGameDatabase* db : {static_cast<CGameDatabase*>(nullptr), &empty}) {
        COobItem item;
        item.m_pDatabase = db;
        EXPECT_EQ(item.FindKindForLine("Div 1st"), nullptr);
        EXPECT_EQ(item.FindKindForLine(""), nullptr);
        EXPECT_EQ(item.FindKindByKeyword("Div"), nullptr);
        EXPECT_EQ(item.FindKindByType(TYPE_STRUCTURE), nullptr);
        EXPECT_EQ(item.FindBaseType(m_pFusilier), nullptr);
        EXPECT_EQ(item.FindType("Fusilier"), nullptr);
    }
}

// The bare item's Aggregate is its own cost, whatever is asked for.
class CPricedItem : public COobItem {
public:
    double Cost() const override { return 7.5; }
};

TEST(OobItem, AggregateOfTheBareItemIsItsCost) {
    CTreeStore tree;
    HTREEITEM entry = tree.InsertItem("bare");
    COobItem bare;
    CPricedItem priced;
    for (int category = 0; category <= 6; ++category) {
        for (int measure = 0; measure <= 3; ++measure) {
            EXPECT_EQ(bare.Aggregate(tree, entry, category, measure), 0.0);
            EXPECT_EQ(priced.Aggregate(tree, nullptr, category, measure), 7.5);
        }
    }
    EXPECT_EQ(bare.m_nType, TYPE_ITEM);
}

}  // namespace
