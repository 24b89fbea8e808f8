#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

namespace {

void AddKind(CGameDatabase& db, std::uint8_t code, const char* keyword, const char* text) {
    auto kind = std::make_unique<CKindRecord>();
    kind->m_nCode = code;
    kind->m_strKeyword = keyword;
    kind->m_strName = text;
    db.m_Kinds.PushBack(std::move(kind));
}

void AddBaseType(CGameDatabase& db, std::uint8_t code, const char* text) {
    auto base = std::make_unique<CBaseTypeRecord>();
    base->m_nCode = code;
    base->m_strName = text;
    db.m_BaseTypes.PushBack(std::move(base));
}

CTypeRecord* AddType(CGameDatabase& db, std::uint8_t code, const char* name,
                     std::initializer_list<const char*> weapons) {
    auto type = std::make_unique<CTypeRecord>();
    type->m_nCode = code;
    type->m_strType = name;
    type->m_strName = name;
    for (const char* w : weapons) {
        auto weapon = std::make_unique<CWeaponRecord>();
        weapon->m_strWeapon = w;
        weapon->m_strName = w;
        type->m_Weapons.PushBack(std::move(weapon));
    }
    CTypeRecord* raw = type.get();
    db.m_Types.PushBack(std::move(type));
    return raw;
}

// A short keyword listed before a longer one that begins with it; two leader kinds; a keyword
// with a trailing blank; two base types and two types of one class.
class OobItemLookup : public ::testing::Test {
protected:
    void SetUp() override {
        AddKind(m_db, TYPE_STRUCTURE, "Div", "Division");
        AddKind(m_db, TYPE_ARMY, "Division", "Long division");
        AddKind(m_db, TYPE_LEADER, "L ", "Leader");
        AddKind(m_db, TYPE_LEADER, "Lancer", "Second leader kind");
        AddKind(m_db, TYPE_UNIT, "U ", "Unit");
        AddKind(m_db, TYPE_STRUCTURE, "Div", "Second Div");
        AddBaseType(m_db, 1, "Line foot");
        AddBaseType(m_db, 2, "Horse");
        AddBaseType(m_db, 1, "Second foot");
        m_pFusilier = AddType(m_db, 1, "Fusilier", {"Musket", "Rifle", "Musket"});
        m_pHussar = AddType(m_db, 2, "Hussar", {"Sabre"});
        m_pSecond = AddType(m_db, 1, "Fusilier", {});
        m_item.m_pDatabase = &m_db;
    }

    std::string KindText(CKindRecord* kind) { return kind ? kind->m_strName : "none"; }

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
        EXPECT_EQ(KindText(m_item.FindKindForLine(line)), kind) << line;
    }
}

TEST_F(OobItemLookup, KindByKeywordIsExactAndCaseSensitive) {
    const std::pair<const char*, const char*> cases[] = {
        {"Div", "Division"}, {"Division", "Long division"},
        {"L ", "Leader"},    {"L", "none"},
        {"div", "none"},     {"Divi", "none"},
    };
    for (const auto& [keyword, kind] : cases) {
        EXPECT_EQ(KindText(m_item.FindKindByKeyword(keyword)), kind) << keyword;
    }
}

TEST_F(OobItemLookup, KindByTypeTakesTheFirstOfThatCode) {
    EXPECT_EQ(KindText(m_item.FindKindByType(TYPE_LEADER)), "Leader");
    EXPECT_EQ(KindText(m_item.FindKindByType(TYPE_STRUCTURE)), "Division");
    EXPECT_EQ(KindText(m_item.FindKindByType(TYPE_GUNBOAT)), "none");
}

TEST_F(OobItemLookup, BaseTypeByTheTypesClassCode) {
    EXPECT_EQ(m_item.FindBaseType(m_pFusilier)->m_strName, "Line foot");
    EXPECT_EQ(m_item.FindBaseType(m_pHussar)->m_strName, "Horse");
    CTypeRecord leader;
    leader.m_nCode = 4;
    EXPECT_EQ(m_item.FindBaseType(&leader), nullptr);
    EXPECT_EQ(m_item.FindBaseType(nullptr), nullptr);
}

TEST_F(OobItemLookup, TypeAndWeaponByExactName) {
    EXPECT_EQ(m_item.FindType("Fusilier"), m_pFusilier);
    EXPECT_EQ(m_item.FindType("Hussar"), m_pHussar);
    EXPECT_EQ(m_item.FindType("fusilier"), nullptr);
    EXPECT_EQ(m_item.FindType("Fusil"), nullptr);
    EXPECT_EQ(m_item.FindWeapon("Musket", m_pFusilier),
              m_pFusilier->m_Weapons.Head()->m_pPayload.get());
    EXPECT_EQ(m_item.FindWeapon("Rifle", m_pFusilier)->m_strName, "Rifle");
    EXPECT_EQ(m_item.FindWeapon("musket", m_pFusilier), nullptr);
    EXPECT_EQ(m_item.FindWeapon("Sabre", m_pFusilier), nullptr);  // another type's weapon
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
