#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

namespace {

// A short keyword listed before a longer one that begins with it, two leader kinds, a keyword
// with a trailing blank and a repeated keyword; two base types of one class; two types of one
// name, and a weapon name repeated within a type.
const char* const kTarget =
    "\n\n\n\n\n\n"
    "6|1|Div|Division|\n7|2|Division|Long division|\n4|1|L |Leader|\n"
    "4|1|Lancer|Second leader kind|\n0|0|U |Unit|\n6|1|Div|Second Div|\n</B>\n"
    "1|0|0|0|0|0|Line foot|\n2|0|0|0|0|0|Horse|\n1|0|0|0|0|0|Second foot|\n</C>\n"
    "1|Fusilier|0|Fusilier|\nMusket|0|Musket|\nRifle|0|Rifle|\nMusket|0|Second musket|\n</W>\n"
    "2|Hussar|0|Hussar|\nSabre|0|Sabre|\n</W>\n"
    "1|Fusilier|0|Second fusilier|\n</W>\n</D>\n</E>\n\n</F>";

std::string Text(const CDataObject* record) {
    return record ? std::string(record->m_strName) : "none";
}

TEST(OobItemLookup, EveryLookupTakesTheFirstExactMatch) {
    CGameDatabase db;
    std::istringstream in(kTarget);
    db.ReadFrom(in);
    COobItem item;
    item.m_pDatabase = &db;
    auto* fusilier = static_cast<CTypeRecord*>(db.m_Types.SeekIndex(0)->m_pPayload.get());
    auto* second = static_cast<CTypeRecord*>(db.m_Types.SeekIndex(2)->m_pPayload.get());
    const std::pair<const char*, const char*> lines[] = {
        {"Division 3rd Division", "Division"},    // the short keyword listed first wins
        {"\t\tL 4 4 0 General Umber", "Leader"},  // indentation is no part of the line
        {"Lancer 2", "Second leader kind"},       // "L " does not begin it
        {"Di", "Division"},                       // a line shorter than a keyword still matches it
        {"division", "none"},
    };
    for (const auto& [line, kind] : lines) {
        EXPECT_EQ(Text(item.FindKindForLine(line)), kind) << line;
    }
    const std::pair<const char*, const char*> keywords[] = {
        {"Division", "Long division"}, {"L ", "Leader"}, {"L", "none"}, {"Divi", "none"}};
    for (const auto& [keyword, kind] : keywords) {
        EXPECT_EQ(Text(item.FindKindByKeyword(keyword)), kind) << keyword;
    }
    EXPECT_EQ(Text(item.FindKindByType(TYPE_STRUCTURE)), "Division");
    EXPECT_EQ(Text(item.FindKindByType(TYPE_GUNBOAT)), "none");
    EXPECT_EQ(Text(item.FindBaseType(fusilier)), "Line foot");
    EXPECT_EQ(item.FindBaseType(nullptr), nullptr);
    EXPECT_EQ(item.FindType("Fusilier"), fusilier);
    EXPECT_EQ(item.FindType("fusilier"), nullptr);
    EXPECT_EQ(Text(item.FindWeapon("Musket", fusilier)), "Musket");
    EXPECT_EQ(item.FindWeapon("Sabre", fusilier), nullptr);
    EXPECT_EQ(item.FindWeapon("Musket", second), nullptr);
    EXPECT_EQ(item.FindWeapon("Musket", nullptr), nullptr);

    // Kinds added after lines were looked up take part in the next lookup, in list order; a kind
    // without a keyword claims any line no kind before it claims, whatever its first byte.
    const auto kind = [](const char* keyword, const char* name) {
        auto record = std::make_unique<CKindRecord>();
        record->m_strKeyword = keyword;
        record->m_strName = name;
        return record;
    };
    db.m_Kinds.PushFront(kind("Divisio", "Pushed first"));
    db.m_Kinds.PushBack(kind("Zed ", "Pushed last"));
    db.m_Kinds.PushBack(kind("", "No keyword"));
    const std::pair<const char*, const char*> afterPush[] = {
        {"Division 3rd Division", "Pushed first"},
        {"Zed 1", "Pushed last"},
        {"division", "No keyword"},
        {"Lancer 2", "Second leader kind"},
        {"", "Pushed first"},  // an empty line agrees with the first keyword over no characters
    };
    for (const auto& [line, name] : afterPush) {
        EXPECT_EQ(Text(item.FindKindForLine(line)), name) << line;
    }

    // Base types likewise: one pushed to the front is now its class's first; one of a class
    // no base type had is found at once.
    const auto base = [](std::uint8_t code, const char* name) {
        auto record = std::make_unique<CBaseTypeRecord>();
        record->m_nCode = code;
        record->m_strName = name;
        return record;
    };
    auto hussar = std::make_unique<CTypeRecord>();
    hussar->m_nCode = 3;
    db.m_BaseTypes.PushFront(base(1, "Front foot"));
    db.m_BaseTypes.PushBack(base(3, "Guns"));
    EXPECT_EQ(Text(item.FindBaseType(fusilier)), "Front foot");
    EXPECT_EQ(Text(item.FindBaseType(hussar.get())), "Guns");

    CGameDatabase empty;
    for (CGameDatabase* none : {static_cast<CGameDatabase*>(nullptr), &empty}) {
        item.m_pDatabase = none;
        EXPECT_EQ(item.FindKindForLine("Div 1st"), nullptr);
        EXPECT_EQ(item.FindKindByType(TYPE_STRUCTURE), nullptr);
        EXPECT_EQ(item.FindBaseType(fusilier), nullptr);
        EXPECT_EQ(item.FindType("Fusilier"), nullptr);
    }
}

}  // namespace
