// A leader; its type record is its command type.
#pragma once

#include "model/OobItem.h"

class CLeaderItem : public COobItem {
public:
    CLeaderItem() { m_nType = TYPE_LEADER; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    double Cost() const override;
    double Men() const override { return 1.0; }
    std::unique_ptr<COobItem> Clone() const override {
        return std::make_unique<CLeaderItem>(*this);
    }

    // The bracketed factor of the cost; 0 when the command type or base type is missing.
    double CostModifier() const;

    std::int16_t m_nLeadership = 0;
    std::int16_t m_nThird = 0;
    std::int32_t m_nLeaderNumber = 0;  // not in the line: set in tree order by NumberLeaders
    // The command type the line named when the game data lacks it: the leader cannot be costed,
    // but its line is written back as it was read rather than without the name.
    std::string m_strMissingType;
};

// Numbers the leaders of the tree from 0 in tree order.
void NumberLeaders(const CTreeStore& tree);
