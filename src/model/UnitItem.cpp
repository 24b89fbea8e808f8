#include "model/UnitItem.h"

#include <cstdlib>

#include "base/LineWriter.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "gamedata/ReaderPrompts.h"
#include "model/ItemLineReader.h"

void CUnitItem::ReadFields(CItemLineReader& reader) {
    m_nStrength = reader.Number<std::int16_t>();
    m_nQuality = reader.Number<std::int16_t>();
    const std::string_view typeName = reader.Word();
    m_pType = FindType(typeName);
    if (!m_pType) {
        SettleUnknownType(typeName, reader.Line());
    }
    const std::string_view weaponName = reader.Word();
    m_pWeapon = FindWeapon(weaponName, m_pType);
    if (!m_pWeapon) {
        SettleUnknownWeapon(weaponName, reader.Line());
    }
    m_pBaseType = FindBaseType(m_pType);
    m_nPicture = reader.Number<std::int32_t>();
    const bool hasReserved = m_pDatabase && m_pDatabase->m_nFormatVariant != 0;
    m_nReserved = hasReserved ? reader.Number<std::int16_t>() : std::int16_t{0};
    m_nIcon = reader.Number<std::int32_t>();
    m_strName = reader.Rest();
}

// A type the game data lacks becomes a new type record at the head of the types, with the
// class the user gives it, so that later lines of the same type find it and ask nothing.
void CUnitItem::SettleUnknownType(std::string_view typeName, std::string_view line) {
    // No name, no record: the line ended before it, and the document passes such a line over.
    if (!m_pDatabase || typeName.empty()) {
        return;
    }
    CReaderPrompts* prompts = m_pDatabase->m_pPrompts;
    int unitClass = 1;
    if (prompts) {
        prompts->Warning("Entry : " + std::string(line) + "\nUknown unit type : [" +
                         std::string(typeName) + "]");
        unitClass = prompts->AskUnitClass(std::string(line));
        if (unitClass < 1 || unitClass > 3) {
            unitClass = 1;
        }
    }
    auto type = std::make_unique<CTypeRecord>();
    type->m_nCode = static_cast<std::uint8_t>(unitClass);
    type->m_strType = std::string(typeName);
    type->m_dCostModifier = 0.0;
    type->m_strName = "Unit type " + type->m_strType;
    m_pType = type.get();
    m_pDatabase->m_Types.PushFront(std::move(type));
}

void CUnitItem::SettleUnknownWeapon(std::string_view weaponName, std::string_view line) {
    if (!m_pType || weaponName.empty()) {
        return;
    }
    if (m_pDatabase && m_pDatabase->m_pPrompts) {
        m_pDatabase->m_pPrompts->Warning("Entry : " + std::string(line) +
                                         "\nUknown weapon type : [" + std::string(weaponName) +
                                         "] for unit type [" + m_pType->m_strType + "]");
    }
    auto weapon = std::make_unique<CWeaponRecord>();
    weapon->m_strWeapon = std::string(weaponName);
    weapon->m_dCostModifier = 0.0;
    weapon->m_strName = "Weapon type " + weapon->m_strWeapon;
    m_pWeapon = weapon.get();
    m_pType->m_Weapons.PushFront(std::move(weapon));
}

void CUnitItem::ToText(std::string& out) const {
    const std::string_view keyword = m_pKind ? m_pKind->m_strKeyword : std::string_view();
    const std::string_view type = m_pType ? m_pType->m_strType : std::string_view();
    const std::string_view weapon = m_pWeapon ? m_pWeapon->m_strWeapon : std::string_view();
    const bool hasReserved = m_pDatabase && m_pDatabase->m_nFormatVariant != 0;
    CLineWriter line(out, keyword.size() + type.size() + weapon.size() + m_strName.size() +
                              6 * (CLineWriter::kNumberRoom + 1));
    line.Text(keyword).Number(m_nStrength).Char(' ').Number(m_nQuality).Char(' ');
    line.Text(type).Char(' ').Text(weapon).Char(' ').Number(m_nPicture).Char(' ');
    if (hasReserved) {
        line.Number(m_nReserved).Char(' ');
    }
    line.Number(m_nIcon).Char(' ').Text(m_strName);
}

double FightingCostModifier(const COobItem& item, std::int16_t quality) {
    const CBaseTypeRecord* base = item.m_pBaseType;
    if (!base || !item.m_pType || !item.m_pWeapon) {
        return 0.0;
    }
    const int qualityAboveBase = std::abs(static_cast<int>(quality)) - base->m_nBaseQuality;
    double modifier = qualityAboveBase * base->m_dQualityFactor + item.m_pWeapon->m_dCostModifier +
                      item.m_pType->m_dCostModifier + 1.0;
    if (quality < 0 && item.m_pDatabase) {
        modifier += item.m_pDatabase->m_dFanaticBonus;
    }
    return modifier;
}

double CUnitItem::CostModifier() const {
    return FightingCostModifier(*this, m_nQuality);
}

double CUnitItem::Cost() const {
    if (!m_pBaseType) {
        return 0.0;
    }
    return m_nStrength * m_pBaseType->m_nMenPerPoint * m_pBaseType->m_dBaseCost * CostModifier();
}

double CUnitItem::Men() const {
    return m_pBaseType ? m_pBaseType->m_nMenPerPoint * m_nStrength : 0.0;
}
