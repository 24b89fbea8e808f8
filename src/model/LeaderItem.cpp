#include "model/LeaderItem.h"

#include <cstdlib>

#include "base/LineWriter.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"

void CLeaderItem::ReadFields(CItemLineReader& reader) {
    const std::string_view typeName = reader.Word();
    m_pType = FindType(typeName);
    m_strMissingType = m_pType ? std::string_view() : typeName;
    m_pBaseType = FindBaseType(m_pType);
    m_nLeadership = reader.Number<std::int16_t>();
    m_nThird = reader.Number<std::int16_t>();
    m_strName = reader.Rest();
    m_nLeaderNumber = 0;
}

void CLeaderItem::ToText(std::string& out) const {
    const std::string_view keyword = m_pKind ? m_pKind->m_strKeyword : std::string_view();
    const std::string_view type = m_pType ? m_pType->m_strType : m_strMissingType;
    CLineWriter line(
        out, keyword.size() + type.size() + m_strName.size() + 3 * (CLineWriter::kNumberRoom + 1));
    line.Text(keyword).Text(type).Char(' ').Number(m_nLeadership).Char(' ').Number(m_nThird);
    line.Char(' ').Text(m_strName);
}

double CLeaderItem::CostModifier() const {
    if (!m_pBaseType || !m_pType) {
        return 0.0;
    }
    const int aboveBase = std::abs(static_cast<int>(m_nLeadership)) - m_pBaseType->m_nBaseQuality;
    return aboveBase * m_pBaseType->m_dQualityFactor + m_pType->m_dCostModifier + 1.0;
}

double CLeaderItem::Cost() const {
    if (!m_pBaseType || !m_pType) {
        return 0.0;
    }
    return CostModifier() * m_pBaseType->m_nMenPerPoint * m_pBaseType->m_dBaseCost;
}

void NumberLeaders(const CTreeStore& tree) {
    std::int32_t number = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        COobItem* item = ItemOf(tree, walk.Current());
        if (item && item->m_nType == TYPE_LEADER) {
            static_cast<CLeaderItem*>(item)->m_nLeaderNumber = number++;
        }
    }
}
