// An infantry, cavalry or artillery unit; its class is its base type's class code.
#pragma once

#include "model/OobItem.h"

class CUnitItem : public COobItem {
public:
    CUnitItem() { m_nType = TYPE_UNIT; }

    void ReadFields(CItemLineReader& reader) override;
    void ToText(std::string& out) const override;
    void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                int flags) const override;
    double Cost() const override;
    double Men() const override;
    std::unique_ptr<COobItem> Clone() const override { return std::make_unique<CUnitItem>(*this); }

    // The bracketed factor of the cost, shown by the editor as the cost modifier; 0 when a
    // record the cost needs is missing.
    double CostModifier() const;

    // The three short fields first, where they fill the end of the item's base: a unit then
    // takes 112 bytes rather than 120, and an order of battle is mostly units.
    std::int16_t m_nStrength = 0;
    std::int16_t m_nQuality = 0;  // a negative quality marks a fanatic unit
    std::int16_t m_nReserved = 0;
    std::int32_t m_nPicture = 0;
    std::int32_t m_nIcon = 0;

private:
    void SettleUnknownType(std::string_view typeName, std::string_view line);
    void SettleUnknownWeapon(std::string_view weaponName, std::string_view line);
};

// The cost modifier of a unit or gunboat: quality above the base, weapon, type, and the
// fanatic bonus for a negative quality. 0 when a record is missing.
double FightingCostModifier(const COobItem& item, std::int16_t quality);
