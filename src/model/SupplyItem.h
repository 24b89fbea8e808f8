// A supply train, and the depot, which costs and counts like one.
#pragma once

#include "model/OobItem.h"

// What supply trains and depots share: supply points, costed and counted as men, then one more
// number on the line, as wide as Number (a train's picture, a depot's own number), then the name.
template <typename Number>
class CSupplyPoints : public COobItem {
public:
    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    double Cost() const override;
    double Men() const override;

    std::int16_t m_nSupply = 0;
    Number m_nNumber = 0;
};

class CSupplyItem : public CSupplyPoints<std::int16_t> {
public:
    CSupplyItem() { m_nType = TYPE_SUPPLY; }

    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    std::unique_ptr<COobItem> Clone() const override {
        return std::make_unique<CSupplyItem>(*this);
    }
};

class CDepotItem : public CSupplyPoints<std::int32_t> {
public:
    CDepotItem() { m_nType = TYPE_DEPOT; }

    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    std::unique_ptr<COobItem> Clone() const override { return std::make_unique<CDepotItem>(*this); }
};

// The type record named like the item's kind keyword, and its base type: how supplies, depots,
// structures, armies and gunboats find their records.
void FindRecordsByKeyword(COobItem& item);

// (type modifier + 1) × men per strength point × count × base cost: the cost of count supply
// points, or of a container itself with count 1; 0 when a record is missing.
double CostByType(const COobItem& item, int count);
