// The seven item kinds: their lines read into fields and written back, their costs and men, what
// the unit reader does about records the game data lacks, and the containers' totals.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>

#include "CaseFile.h"
#include "SmallGameData.h"
#include "TestTrees.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/GunboatItem.h"
#include "model/ItemFactory.h"
#include "model/LeaderItem.h"
#include "model/OobDocument.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

std::string Text(const COobItem& item) {
    std::string line;
    item.ToText(line);
    return line;
}

const char* RecordName(const std::string* name) {
    return name ? name->c_str() : "-";
}

// The fields of an item in line order, with the record names it resolved ("-" for none) and its
// name after a bar, so that a reader and a writer that agree on a wrong place for a field fail.
std::string Fields(const COobItem& item) {
    const char* type = RecordName(item.m_pType ? &item.m_pType->m_strType : nullptr);
    const char* weapon = RecordName(item.m_pWeapon ? &item.m_pWeapon->m_strWeapon : nullptr);
    const std::string name = "|" + std::string(item.m_strName);
    if (const auto* u = dynamic_cast<const CUnitItem*>(&item)) {
        return Format("%d %d %s %s %d %d %d", u->m_nStrength, u->m_nQuality, type, weapon,
                      u->m_nPicture, u->m_nReserved, u->m_nIcon) +
               name;
    }
    if (const auto* l = dynamic_cast<const CLeaderItem*>(&item)) {
        return Format("%s %d %d %d", type, l->m_nLeadership, l->m_nThird, l->m_nLeaderNumber) +
               name;
    }
    if (const auto* d = dynamic_cast<const CDepotItem*>(&item)) {
        return Format("%s %d %d", type, d->m_nSupply, d->m_nNumber) + name;
    }
    if (const auto* s = dynamic_cast<const CSupplyItem*>(&item)) {
        return Format("%s %d %d", type, s->m_nSupply, s->m_nNumber) + name;
    }
    if (const auto* g = dynamic_cast<const CGunboatItem*>(&item)) {
        return Format("%s %d %d %s %d", type, g->m_nStrength, g->m_nQuality, weapon,
                      g->m_nPicture) +
               name;
    }
    return type + name;
}

class ItemKinds : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_db.Load(HW_TEST_DATA "/small.inf"), RESULT_DONE);
        m_db.m_pPrompts = &m_prompts;
    }

    // An item of the kind the line's keyword names, read from the line.
    std::unique_ptr<COobItem> Read(const std::string& line) {
        COobItem probe;
        probe.m_pDatabase = &m_db;
        const CKindRecord* kind = probe.FindKindForLine(line);
        EXPECT_NE(kind, nullptr) << line;
        std::unique_ptr<COobItem> item =
            CreateItem(kind ? kind->TypeCode() : std::uint8_t{TYPE_ITEM});
        if (!item) {
            ADD_FAILURE() << "no item class for " << line;
            return std::make_unique<COobItem>();
        }
        item->m_pDatabase = &m_db;
        item->Read(line);
        return item;
    }

    CTypeRecord* TypeAt(int index) {
        return static_cast<CTypeRecord*>(m_db.m_Types.SeekIndex(index)->m_pPayload.get());
    }

    CGameDatabase m_db;
    CRecordingPrompts m_prompts;
};

// Each case of tests/data/items: a line read as an item of the kind its keyword names (under the
// format variant of the option), its type code, fields, cost and men, and the line written back.
TEST_F(ItemKinds, LinesReadIntoFieldsCostAndWriteBack) {
    int cases = 0;
    for (const auto& file : std::filesystem::directory_iterator(HW_TEST_DATA "/items")) {
        if (file.path().extension() != ".case") {
            continue;
        }
        SCOPED_TRACE(file.path().string());
        const CCase c = ReadCase(file.path().string());
        m_db.m_nFormatVariant =
            static_cast<std::uint8_t>(c.option.empty() ? 0 : std::stoi(c.option));
        const auto item = Read(c.input);
        EXPECT_EQ(Format("type %d, fields ", item->m_nType) + Fields(*item) + ", cost " +
                      FormatNumber(item->Cost()) + ", men " + FormatNumber(item->Men()),
                  c.result);
        EXPECT_EQ(Text(*item), c.written);
        ++cases;
    }
    EXPECT_GT(cases, 0);
    EXPECT_TRUE(m_prompts.m_warnings.empty());
    EXPECT_TRUE(m_prompts.m_questions.empty());
}

TEST_F(ItemKinds, UnitReadWithoutReservedValueGainsItWhenWrittenWithIt) {
    const auto unit = Read("U 12 5 Foot Musket 3 7 Left Wing");
    m_db.m_nFormatVariant = 1;
    EXPECT_EQ(Text(*unit), "U 12 5 Foot Musket 3 0 7 Left Wing");
}

// An unknown type is warned, asked for once and added at the head of the types with the class
// answered; an unknown weapon is warned and added at the head of its type's weapons.
TEST_F(ItemKinds, UnknownTypesAndWeaponsAreWarnedAndAddedOnce) {
    m_prompts.m_nAnswer = 2;
    const int types = m_db.m_Types.Count();
    const std::string line = "U 12 5 Jaeger Rifle 3 7 Light Company";
    const auto first = Read("  U 12  5 Jaeger\tRifle 3 7 Light Company");
    const auto second = Read("U 4 4 Jaeger Rifle 0 0 Second Company");
    const auto pike = Read("U 10 3 Foot  Pike 1 2 Pikemen");
    EXPECT_EQ(m_prompts.m_warnings,
              (std::vector<std::string>{
                  "Entry : " + line + "\nUknown unit type : [Jaeger]",
                  "Entry : " + line + "\nUknown weapon type : [Rifle] for unit type [Jaeger]",
                  "Entry : U 10 3 Foot Pike 1 2 Pikemen\nUknown weapon type : [Pike] for unit "
                  "type [Foot]"}));
    EXPECT_EQ(m_prompts.m_questions, std::vector<std::string>{line});
    const CTypeRecord* type = TypeAt(0);
    EXPECT_EQ(type->m_strType + "/" + std::string(type->m_strName) + "/" +
                  std::to_string(type->ClassCode()) +
                  std::to_string(first->m_pBaseType->ClassCode()),
              "Jaeger/Unit type Jaeger/22");  // class 2 and the cavalry base type
    EXPECT_TRUE(first->m_pType == type && second->m_pType == type);
    EXPECT_EQ(second->m_pWeapon, first->m_pWeapon);
    EXPECT_EQ(m_db.m_Types.Count(), types + 1);
    EXPECT_EQ(Text(*first), line);
    const auto* weapon =
        static_cast<CWeaponRecord*>(pike->m_pType->m_Weapons.Head()->m_pPayload.get());
    EXPECT_EQ(pike->m_pWeapon, weapon);
    EXPECT_EQ(weapon->m_strWeapon + "/" + std::string(weapon->m_strName), "Pike/Weapon type Pike");
    // Quality 3 on the base 2 and the type's 0.2, the new weapon adding nothing.
    EXPECT_NEAR(pike->Cost(), 10 * 5 * 2 * 1.3, 1e-9);
}

// The answer is the new type's class; one outside the unit classes, or no one to ask, means
// infantry.
TEST_F(ItemKinds, UnitClassAnswerOutsideTheUnitClassesMeansInfantry) {
    for (const auto& [answer, unitClass] : {std::pair{3, 3}, {0, 1}, {4, 1}, {-1, 1}, {9, 0}}) {
        m_prompts.m_nAnswer = answer;
        m_db.m_pPrompts = unitClass == 0 ? nullptr : &m_prompts;
        const auto unit = Read("U 1 1 New" + std::to_string(answer + 1) + " Musket 0 0 Someone");
        EXPECT_EQ(unit->m_pType->ClassCode(), std::max(unitClass, 1)) << answer;
    }
}

// The name is the rest of the line from the first character after the keyword as the game data
// writes it: without the keyword's trailing blank the name begins with one.
TEST_F(ItemKinds, StructureNameStartsRightAfterTheKeyword) {
    auto* brigade = static_cast<CKindRecord*>(m_db.m_Kinds.SeekIndex(1)->m_pPayload.get());
    ASSERT_EQ(brigade->m_strKeyword, "B ");
    EXPECT_EQ(Read("B Iron Brigade")->m_strName, "Iron Brigade");
    brigade->m_strKeyword = "B";
    const auto item = Read("B Iron Brigade");
    EXPECT_EQ(item->m_strName, " Iron Brigade");
    EXPECT_EQ(item->m_pType, nullptr);  // no type is named "B"
    EXPECT_EQ(Text(*item), "B Iron Brigade");
}

// Each line of tests/data/items/aggregates.txt: what an entry of aggregates.oob totals in a
// category, for each measure.
TEST_F(ItemKinds, AggregatesOverSubtrees) {
    COobDocument document(&m_db);
    CTreeStore tree;
    ASSERT_EQ(document.LoadTree(HW_TEST_DATA "/items/aggregates.oob", tree), RESULT_DONE);
    std::istringstream rows(ReadBytes(HW_TEST_DATA "/items/aggregates.txt"));
    int checked = 0;
    for (std::string line; std::getline(rows, line);) {
        std::istringstream row(line);
        int category = 0;
        double values[4] = {};
        std::string label;
        if (line[0] != '#' &&
            row >> category >> values[0] >> values[1] >> values[2] >> values[3] >> std::ws &&
            std::getline(row, label)) {
            const HTREEITEM entry = label == "*" ? nullptr : FindLabel(tree, label);
            const COobItem& item = *ItemOf(tree, entry ? entry : tree.GetRootItem());
            for (int measure = 0; measure < 4; ++measure) {
                EXPECT_NEAR(item.Aggregate(tree, entry, category, measure), values[measure],
                            1e-9 * values[measure])
                    << line << ", measure " << measure;
            }
            ++checked;
        }
    }
    EXPECT_EQ(checked, 11);
}

}  // namespace
