// The containers: structures (command echelons) and armies (the top of a side). Only they are
// followed by a nested block in the file.
#pragma once

#include "model/OobItem.h"

struct CContainerTotals;

class CStructureItem : public COobItem {
public:
    CStructureItem() { m_nType = TYPE_STRUCTURE; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    // The fragment with the subtree's totals already known (the report sums them in one pass).
    void AppendHtml(std::string& out, const CContainerTotals& totals, int flags) const;
    double Cost() const override;
    double Aggregate(const CTreeStore& tree, HTREEITEM entry, int category,
                     int measure) const override;
    std::unique_ptr<COobItem> Clone() const override {
        return std::make_unique<CStructureItem>(*this);
    }
};

class CArmyItem : public CStructureItem {
public:
    CArmyItem() { m_nType = TYPE_ARMY; }
    std::unique_ptr<COobItem> Clone() const override { return std::make_unique<CArmyItem>(*this); }
};

// Armies and structures hold children.
inline bool IsContainer(const COobItem& item) {
    return item.m_nType == TYPE_STRUCTURE || item.m_nType == TYPE_ARMY;
}
