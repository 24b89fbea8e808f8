#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "base/Result.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

namespace {

std::string Text(const CDataObject* record) {
    return record ? std::string(record->m_strName) : "none";
}

template <typename Record>
std::unique_ptr<Record> Named(const char* name, std::uint8_t code = CGameRecord::kNotRead,
                              const char* keyword = "") {
    auto record = std::make_unique<Record>();
    record->m_strName = name;
    record->m_nCode = code;
    if constexpr (std::is_same_v<Record, CKindRecord>) {
        record->m_strKeyword = keyword;
    }
    return record;
}

// tests/data/lookup.inf: a short keyword listed before a longer one that begins with it, two
// leader kinds, a keyword with a trailing blank and a repeated keyword; two base types of one
// class; two types of one name, and a weapon name repeated within a type.
TEST(OobItemLookup, EveryLookupTakesTheFirstExactMatch) {
    CGameDatabase db;
    ASSERT_EQ(db.Load(HW_TEST_DATA "/lookup.inf"), RESULT_DONE);
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
    db.m_Kinds.PushFront(Named<CKindRecord>("Pushed first", CGameRecord::kNotRead, "Divisio"));
    db.m_Kinds.PushBack(Named<CKindRecord>("Pushed last", CGameRecord::kNotRead, "Zed "));
    db.m_Kinds.PushBack(Named<CKindRecord>("No keyword"));
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
    const auto hussar = Named<CTypeRecord>("", 3);
    db.m_BaseTypes.PushFront(Named<CBaseTypeRecord>("Front foot", 1));
    db.m_BaseTypes.PushBack(Named<CBaseTypeRecord>("Guns", 3));
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
