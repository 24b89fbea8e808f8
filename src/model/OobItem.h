// The base of every entry of the order-of-battle tree. An item knows its line in an
// order-of-battle file, its HTML fragment, its cost and its number of men, and points to the
// game-data records that define it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/DataObject.h"
#include "platform/TreeStore.h"

class CGameDatabase;
class CKindRecord;
class CBaseTypeRecord;
class CTypeRecord;
class CWeaponRecord;

// ToHtml flags.
enum : int { HTML_COSTS = 1, HTML_IMAGES = 2 };

// Aggregate categories and measures.
enum : int {
    CATEGORY_ALL = 0,
    CATEGORY_INFANTRY = 1,
    CATEGORY_CAVALRY = 2,
    CATEGORY_ARTILLERY = 3,
    CATEGORY_SUPPLY = 4,
    CATEGORY_LEADERS = 5,
};
enum : int { MEASURE_COST = 0, MEASURE_COUNT = 1, MEASURE_MEN = 2 };

class COobItem : public CDataObject, public CTreeItemData {
public:
    COobItem() { m_nType = TYPE_ITEM; }

    virtual void Read(const std::string& line);
    virtual void ToText(std::string& out) const;
    virtual void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry, int flags) const;
    virtual double Cost() const;
    virtual double Men() const;
    virtual double Aggregate(const CTreeStore& tree, HTREEITEM entry, int category,
                             int measure) const;
    virtual CKindRecord* FindKindByKeyword(const std::string& text);
    virtual CKindRecord* FindKindByType(std::uint8_t code);
    virtual CBaseTypeRecord* FindBaseType(const CTypeRecord* type);
    virtual CTypeRecord* FindType(const std::string& name);
    virtual CWeaponRecord* FindWeapon(const std::string& name, CTypeRecord* type);

    // The first kind, in the database's order, whose keyword begins line.
    CKindRecord* FindKindForLine(const std::string& line);

    // A copy of the item with the same records (the editors work on one).
    virtual std::unique_ptr<COobItem> Clone() const;

    CKindRecord* m_pKind = nullptr;
    CBaseTypeRecord* m_pBaseType = nullptr;
    CTypeRecord* m_pType = nullptr;
    CWeaponRecord* m_pWeapon = nullptr;
    CGameDatabase* m_pDatabase = nullptr;
    std::int16_t m_nSeen = 0;

protected:
    // Sums measure over the items of category in the subtree of entry, the entry's own item
    // included; over the whole tree when entry is none.
    static double SumSubtree(const CTreeStore& tree, HTREEITEM entry, int category, int measure);
};

// The item an entry of the order-of-battle tree holds.
inline COobItem* ItemOf(const CTreeStore& tree, HTREEITEM entry) {
    return static_cast<COobItem*>(tree.GetItemData(entry));
}
