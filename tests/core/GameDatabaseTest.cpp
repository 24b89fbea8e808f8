#include "gamedata/GameDatabase.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <sstream>
#include <string>

#include "TempFolder.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "gamedata/GameRecords.h"

namespace {

// A small target file exactly as the writer lays it out.
const std::string kGolden = ReadBytes(HW_TEST_DATA "/golden.inf");

std::unique_ptr<CGameDatabase> Parse(const std::string& text) {
    auto db = std::make_unique<CGameDatabase>();
    std::istringstream in(text);
    db->ReadFrom(in);
    return db;
}

template <typename Record>
Record& At(CDataList& list, int index) {
    return static_cast<Record&>(*list.SeekIndex(index)->m_pPayload);
}

// Every line ends in CR LF but the last, "</F>"; a section without records is its end tag.
TEST(GameDatabase, ReadsEveryFieldAndWritesTheSameBytes) {
    auto db = Parse(kGolden);
    EXPECT_EQ(db->ToText(), kGolden);
    // Fields checked one by one, so that a reader and writer that agree on a wrong place for
    // a field do not pass.
    EXPECT_EQ(db->m_strName, "Northern Marches");
    EXPECT_EQ(db->m_nIconGeometry, (std::array<std::uint8_t, 6>{0, 2, 1, 3, 2, 0}));
    EXPECT_EQ(db->m_nCellSizes,
              (std::array<std::int16_t, 10>{48, 64, 32, 40, 16, 16, 16, 18, 20, 16}));
    EXPECT_EQ(
        Format("%d %d %d %d %d %g %d %d %d", db->m_nOobHeader, db->m_nDefaultThird,
               db->m_nLeaderExtras, db->m_nDefaultReserved, db->m_nFormatVariant,
               db->m_dFanaticBonus, db->m_nMinQuality, db->m_nMaxQuality, db->m_nCountryCount),
        "7 2 1 0 2 0.5 -3 9 2");
    EXPECT_EQ(db->m_strCountries[1], "Sudmark");
    const auto& kind = At<CKindRecord>(db->m_Kinds, 2);
    EXPECT_EQ(Format("%d %d [%s] %s", kind.TypeCode(), kind.m_nLevel, kind.m_strKeyword.c_str(),
                     kind.m_strName.c_str()),
              "4 2 [L ] Leader");
    const auto& base = At<CBaseTypeRecord>(db->m_BaseTypes, 1);
    EXPECT_EQ(
        Format("%d %d %g %g %d %d %s", base.ClassCode(), base.m_nBaseQuality, base.m_dQualityFactor,
               base.m_dBaseCost, base.m_nMenPerPoint, base.m_nMaxStrength, base.m_strName.c_str()),
        "2 3 0.5 3.5 50 20 Horse");
    auto& type = At<CTypeRecord>(db->m_Types, 0);
    const auto& weapon = At<CWeaponRecord>(type.m_Weapons, 1);
    EXPECT_EQ(Format("%d %s %g %s / %s %g %s", type.ClassCode(), type.m_strType.c_str(),
                     type.m_dCostModifier, type.m_strName.c_str(), weapon.m_strWeapon.c_str(),
                     weapon.m_dCostModifier, weapon.m_strName.c_str()),
              "1 Fusilier 0.1 Fusilier type / Rifle 0.2 Rifled musket");
    EXPECT_EQ(At<CTypeRecord>(db->m_Types, 1).m_Weapons.Count(), 0);
    const auto& oob = At<CAttachedOobRecord>(db->m_AttachedOobs, 0);
    EXPECT_EQ(oob.m_strFile + " " + std::string(oob.m_strName), "north.oob North");
    EXPECT_EQ(db->m_strTemplateFile, "templates.tpl");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(At<CTemplateRecord>(db->m_Templates, i).m_nOrdinal, i);
    }
    const auto& battery = At<CTemplateRecord>(db->m_Templates, 1);
    EXPECT_EQ(Format("%d %d %d %g %s", battery.TypeCode(), battery.m_nLevel, battery.m_nCountry,
                     battery.m_dCost, battery.m_strName.c_str()),
              "0 1 0 250.5 Battery");
    EXPECT_EQ(Parse("")->ToText(),
              "\t|\r\n\t0|0|0|0|0|0|\r\n\t0|0|0|0|0|0|0|0|0|0|\r\n\t0|0|0|0|0|0|0|0|0|\r\n\t\r\n"
              "</A>\r\n</B>\r\n</C>\r\n</D>\r\n</E>\r\n\t|\r\n</F>");
}

// Six significant digits written out in full, as the number reader cannot read an exponent (what
// is not finite is 0), and stable once rounded.
TEST(GameDatabase, RoundTripRoundsDoublesToSixDigitsAndIsStable) {
    auto db = Parse(kGolden);
    At<CBaseTypeRecord>(db->m_BaseTypes, 0).m_dQualityFactor = 0.123456789;
    At<CTypeRecord>(db->m_Types, 1).m_dCostModifier = -0.00001234;
    At<CTypeRecord>(db->m_Types, 0).m_dCostModifier = std::numeric_limits<double>::infinity();
    db->m_dFanaticBonus = 1e20;
    const std::string text = db->ToText();
    for (const char* written :
         {"|100000000000000000000|", "|0.123457|", "|-0.00001234|", "|Fusilier|0|Fusilier type|"}) {
        EXPECT_NE(text.find(written), std::string::npos) << written;
    }
    auto back = Parse(text);
    EXPECT_DOUBLE_EQ(back->m_dFanaticBonus, 1e20);
    EXPECT_EQ(back->ToText(), text);
}

// A path that names no file, or a folder, is refused and the lists stay as they were; the path
// changes only with a write that succeeded.
TEST(GameDatabase, LoadAndSaveKeepThePath) {
    CTempFolder folder;
    auto db = Parse(kGolden);
    for (const std::string& bad : {folder.Path(), folder / "missing.inf"}) {
        EXPECT_EQ(db->Load(bad), RESULT_CANNOT_OPEN);
        EXPECT_EQ(db->m_strFilePath, bad);
    }
    EXPECT_EQ(db->ToText(), kGolden);
    EXPECT_EQ(db->Save(folder / "target.inf"), RESULT_DONE);
    EXPECT_EQ(db->Save(folder / "no/such/folder.inf"), RESULT_CANNOT_WRITE);
    EXPECT_EQ(db->m_strFilePath, folder / "target.inf");
}

}  // namespace
