#include "model/GunboatItem.h"

#include "base/LineWriter.h"
#include "base/TextLines.h"
#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

void CGunboatItem::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_nStrength = reader.Number<std::int16_t>();
    m_nQuality = reader.Number<std::int16_t>();
    const std::string_view weaponName = reader.Word();
    m_pWeapon = FindWeapon(weaponName, m_pType);
    m_strMissingWeapon = m_pWeapon ? std::string_view() : weaponName;
    m_nPicture = reader.Number<std::int16_t>();
    m_strName = reader.Rest();
}

void CGunboatItem::ToText(std::string& out) const {
    const std::string_view keyword = m_pKind ? m_pKind->m_strKeyword : std::string_view();
    const std::string_view weapon = m_pWeapon ? m_pWeapon->m_strWeapon : m_strMissingWeapon;
    CLineWriter line(out, keyword.size() + weapon.size() + m_strName.size() +
                              3 * (CLineWriter::kNumberRoom + 1) + 1);
    line.Text(keyword).Number(m_nStrength).Char(' ').Number(m_nQuality).Char(' ');
    line.Text(weapon).Char(' ').Number(m_nPicture).Char(' ').Text(m_strName);
}

double CGunboatItem::CostModifier() const {
    return FightingCostModifier(*this, m_nQuality);
}

double CGunboatItem::Cost() const {
    if (!m_pBaseType) {
        return 0.0;
    }
    return m_nStrength * m_pBaseType->m_nMenPerPoint * m_pBaseType->m_dBaseCost * CostModifier();
}
