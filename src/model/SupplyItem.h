// A supply train, and the depot, which costs and counts like one.
#pragma once

#include "model/OobItem.h"

class CSupplyItem : public COobItem {
public:
    CSupplyItem() { m_nType = TYPE_SUPPLY; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    double Cost() const override;
    double Men() const override;
    std::unique_ptr<COobItem> Clone() const override {
        return std::make_unique<CSupplyItem>(*this);
    }

    std::int16_t m_nSupply = 0;
    std::int16_t m_nPicture = 0;
};

class CDepotItem : public COobItem {
public:
    CDepotItem() { m_nType = TYPE_DEPOT; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    double Cost() const override;
    double Men() const override;
    std::unique_ptr<COobItem> Clone() const override { return std::make_unique<CDepotItem>(*this); }

    std::int16_t m_nSupply = 0;
    std::int32_t m_nNumber = 0;
};

// The type record named like the item's kind keyword, and its base type: how supplies, depots,
// structures, armies and gunboats find their records.
void FindRecordsByKeyword(COobItem& item);

// (type modifier + 1) × men per strength point × count × base cost: the cost of count supply
// points, or of a container itself with count 1; 0 when a record is missing.
double CostByType(const COobItem& item, int count);
