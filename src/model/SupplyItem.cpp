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

namespace {

void AppendLine(std::string& out, const COobItem& item, std::int32_t first, std::int32_t second) {
    const std::string_view keyword = item.m_pKind ? item.m_pKind->m_strKeyword : std::string_view();
    CLineWriter line(out,
                     keyword.size() + item.m_strName.size() + 2 * (CLineWriter::kNumberRoom + 1));
    line.Text(keyword).Number(first).Char(' ').Number(second).Char(' ').Text(item.m_strName);
}

double SupplyMen(const COobItem& item, std::int16_t supply) {
    return item.m_pBaseType ? static_cast<double>(item.m_pBaseType->m_nMenPerPoint) * supply : 0.0;
}

}  // namespace

void CSupplyItem::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_nSupply = reader.Number<std::int16_t>();
    m_nPicture = reader.Number<std::int16_t>();
    m_strName = reader.Rest();
}

void CSupplyItem::ToText(std::string& out) const {
    AppendLine(out, *this, m_nSupply, m_nPicture);
}

double CSupplyItem::Cost() const {
    return CostByType(*this, m_nSupply);
}

double CSupplyItem::Men() const {
    return SupplyMen(*this, m_nSupply);
}

void CDepotItem::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_nSupply = reader.Number<std::int16_t>();
    m_nNumber = reader.Number<std::int32_t>();
    m_strName = reader.Rest();
}

void CDepotItem::ToText(std::string& out) const {
    AppendLine(out, *this, m_nSupply, m_nNumber);
}

double CDepotItem::Cost() const {
    return CostByType(*this, m_nSupply);
}

double CDepotItem::Men() const {
    return SupplyMen(*this, m_nSupply);
}
