#include "model/SupplyItem.h"

#include "base/LineWriter.h"
#include "base/TextLines.h"
#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"

void FindRecordsByKeyword(COobItem& item) {
    item.m_pType = item.m_pKind ? item.FindType(item.m_pKind->m_strKeyword) : nullptr;
    item.m_pBaseType = item.FindBaseType(item.m_pType);
}

double CostByType(const COobItem& item, int count) {
    if (!item.m_pType || !item.m_pBaseType) {
        return 0.0;
    }
    return (item.m_pType->m_dCostModifier + 1.0) * item.m_pBaseType->m_nMenPerPoint * count *
           item.m_pBaseType->m_dBaseCost;
}

template <typename Number>
void CSupplyPoints<Number>::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_nSupply = reader.Number<std::int16_t>();
    m_nNumber = reader.Number<Number>();
    m_strName = reader.Rest();
}

template <typename Number>
void CSupplyPoints<Number>::ToText(std::string& out) const {
    const std::string_view keyword = m_pKind ? m_pKind->m_strKeyword : std::string_view();
    CLineWriter line(out, keyword.size() + m_strName.size() + 2 * (CLineWriter::kNumberRoom + 1));
    line.Text(keyword).Number(m_nSupply).Char(' ').Number(m_nNumber).Char(' ').Text(m_strName);
}

template <typename Number>
double CSupplyPoints<Number>::Cost() const {
    return CostByType(*this, m_nSupply);
}

template <typename Number>
double CSupplyPoints<Number>::Men() const {
    return m_pBaseType ? static_cast<double>(m_pBaseType->m_nMenPerPoint) * m_nSupply : 0.0;
}

template class CSupplyPoints<std::int16_t>;
template class CSupplyPoints<std::int32_t>;
