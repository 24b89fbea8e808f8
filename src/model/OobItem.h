// The base of every entry of the order-of-battle tree. An item knows its line in an
// order-of-battle file, its HTML fragment, its cost and its number of men, and points to the
// game-data records that define it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/DataObject.h"
#include "base/SmallObjectPool.h"
#include "base/TreeStore.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"

class CItemLineReader;

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
    HARNWICK_POOL_ALLOCATED

    COobItem() { m_nType = TYPE_ITEM; }

    // Fills the item from its line. Each kind reads its own fields (ReadFields) after the
    // common start: the kind found by the line's keyword, the fields read from just after it.
    virtual void Read(const std::string& line);
    // Appends the item's line, without indentation or line end, to out.
    virtual void ToText(std::string& out) const;
    virtual void ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry, int flags) const;
    virtual double Cost() const;
    virtual double Men() const;
    virtual double Aggregate(const CTreeStore& tree, HTREEITEM entry, int category,
                             int measure) const;
    virtual CKindRecord* FindKindByKeyword(std::string_view text);
    virtual CKindRecord* FindKindByType(std::uint8_t code);
    // The first base type of the database of type's class; the first type of the database, and
    // the first weapon of type, named name. Inline: every unit line read looks up all three.
    CBaseTypeRecord* FindBaseType(const CTypeRecord* type) {
        return m_pDatabase && type ? m_pDatabase->FindBaseTypeOfClass(type->ClassCode()) : nullptr;
    }
    CTypeRecord* FindType(std::string_view name) {
        return m_pDatabase ? static_cast<CTypeRecord*>(m_pDatabase->m_Types.FindByKey(name))
                           : nullptr;
    }
    CWeaponRecord* FindWeapon(std::string_view name, CTypeRecord* type) {
        return type ? static_cast<CWeaponRecord*>(type->m_Weapons.FindByKey(name)) : nullptr;
    }

    // The first kind, in the database's order, whose keyword begins line.
    CKindRecord* FindKindForLine(const std::string& line);
    // The same for a line the tokenizer has already normalised.
    CKindRecord* FindKindForNormalisedLine(std::string_view line);

    // The kind's own part of Read: its fields, in line order, from the reader.
    virtual void ReadFields(CItemLineReader& reader);

    // An entry shows the item's name unless it was given a label of its own.
    std::string_view Label() const override { return m_strName; }

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

static_assert(alignof(COobItem) <= pool_detail::kGranule);

// The first kind of database, in its order, whose keyword begins the normalised line.
inline CKindRecord* FindKindInLine(CGameDatabase* database, std::string_view line) {
    return database ? database->FindKindForLine(line) : nullptr;
}

// The item an entry of the order-of-battle tree holds.
inline COobItem* ItemOf(const CTreeStore& tree, HTREEITEM entry) {
    return static_cast<COobItem*>(tree.GetItemData(entry));
}
