// The game's reference data, held in the target platform file: the platform's parameters and
// the lists of kinds, base types, types with their weapons, attached orders of battle and
// templates. One database exists per open workspace; items and dialogs point into it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/DataList.h"
#include "base/DataObject.h"
#include "base/Result.h"
#include "gamedata/BaseTypeIndex.h"
#include "gamedata/KindIndex.h"

class CReaderPrompts;
class CRecordFields;

class CGameDatabase : public CDataObject {
public:
    static constexpr std::size_t kMaxCountries = 10;

    CGameDatabase();

    void WriteTo(std::ostream& out, std::uint8_t indent) override;
    void ReadFrom(std::istream& in) override;
    // Writes the target file at path, which then becomes m_strFilePath; a write that fails
    // leaves the old file and m_strFilePath as they were.
    CWriteResult Save(const std::string& path);
    // RESULT_DONE or RESULT_CANNOT_OPEN (the lists are then left as they were).
    int Load(const std::string& path);

    // The whole file as it is written to disk.
    std::string ToText();

    // Icon geometry of class c (1 to 3): offset of the first cell, trailing reserved cells.
    std::uint8_t IconOffset(int c) const { return m_nIconGeometry[2 * c - 2]; }
    std::uint8_t IconTrailing(int c) const { return m_nIconGeometry[2 * c - 1]; }

    std::string m_strFilePath;
    std::array<std::uint8_t, 6> m_nIconGeometry{};
    // Five (width, height) pairs: unit pictures, leader faces, class 1, 2 and 3 icons.
    std::array<std::int16_t, 10> m_nCellSizes{};
    std::uint8_t m_nOobHeader = 0;
    std::uint8_t m_nDefaultThird = 0;
    std::uint8_t m_nLeaderExtras = 0;
    std::uint8_t m_nDefaultReserved = 0;
    std::uint8_t m_nFormatVariant = 0;
    double m_dFanaticBonus = 0.0;
    std::int16_t m_nMinQuality = 0;
    std::int16_t m_nMaxQuality = 0;
    std::uint8_t m_nCountryCount = 0;
    std::array<std::string, kMaxCountries> m_strCountries;

    CDataList m_Kinds;
    CDataList m_BaseTypes;
    CDataList m_Types;
    CDataList m_AttachedOobs;
    std::string m_strTemplateFile;
    CDataList m_Templates;

    // The first kind, in the list's order, whose keyword begins the normalised line.
    CKindRecord* FindKindForLine(std::string_view line) { return m_KindIndex.Find(m_Kinds, line); }
    // The first base type, in the list's order, of class classCode.
    CBaseTypeRecord* FindBaseTypeOfClass(std::uint8_t classCode) {
        return m_BaseTypeIndex.Find(m_BaseTypes, classCode);
    }

    // Who answers the questions the item readers ask about unknown records (none: no message,
    // and new unit types are infantry). Not owned.
    CReaderPrompts* m_pPrompts = nullptr;

private:
    // The fields of the header's switches line, in the line's order, for its reader and writer.
    void VisitSwitches(CRecordFields& fields);

    CKindIndex m_KindIndex;
    CBaseTypeIndex m_BaseTypeIndex;
};
