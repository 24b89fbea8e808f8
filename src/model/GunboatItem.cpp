#include "model/GunboatItem.h"

#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"
#include "model/SupplyItem.h"
#include "model/TextLines.h"
#include "model/UnitItem.h"

void CGunboatItem::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_nStrength = reader.Number<std::int16_t>();
    m_nQuality = reader.Number<std::int16_t>();
    m_pWeapon = FindWeapon(reader.Word(), m_pType);
    m_nPicture = reader.Number<std::int16_t>();
    m_strName = reader.Rest();
}

void CGunboatItem::ToText(std::string& out) const {
    if (m_pKind) {
        out += m_pKind->m_strKeyword;
    }
    AppendNumber(out, m_nStrength);
    out += ' ';
    AppendNumber(out, m_nQuality);
    out += ' ';
    if (m_pWeapon) {
        out += m_pWeapon->m_strWeapon;
    }
    out += ' ';
    AppendNumber(out, m_nPicture);
    out += ' ';
    out += m_strName;
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
