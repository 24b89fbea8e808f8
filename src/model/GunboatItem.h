// A gunboat: costed like a unit, with the weapon named in its line and the type named like its
// kind keyword.
#pragma once

#include "model/OobItem.h"

class CGunboatItem : public COobItem {
public:
    CGunboatItem() { m_nType = TYPE_GUNBOAT; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    double Cost() const override;
    std::unique_ptr<COobItem> Clone() const override {
        return std::make_unique<CGunboatItem>(*this);
    }

    double CostModifier() const;

    std::int16_t m_nStrength = 0;
    std::int16_t m_nQuality = 0;  // negative: fanatic
    std::int16_t m_nPicture = 0;
    // The weapon the line named when the game data lacks it, written back in its place.
    std::string m_strMissingWeapon;
};
