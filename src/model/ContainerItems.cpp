#include "model/ContainerItems.h"

#include "base/TextLines.h"
#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"
#include "model/SupplyItem.h"

void CStructureItem::ReadFields(CItemLineReader& reader) {
    FindRecordsByKeyword(*this);
    m_strName = reader.Rest();
}

void CStructureItem::ToText(std::string& out) const {
    if (m_pKind) {
        out += m_pKind->m_strKeyword;
    }
    out += m_strName;
}

double CStructureItem::Cost() const {
    return CostByType(*this, 1);
}

double CStructureItem::Aggregate(const CTreeStore& tree, HTREEITEM entry, int category,
                                 int measure) const {
    return SumSubtree(tree, entry, category, measure);
}
