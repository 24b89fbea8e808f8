#include "model/NewItems.h"

#include "model/ItemFactory.h"
#include "model/LeaderItem.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {
constexpr std::int16_t kNewSupplyPoints = 6;

std::uint8_t TypeCodeOf(NewKind kind) {
    switch (kind) {
        case NewKind::Unit:
            return TYPE_UNIT;
        case NewKind::Leader:
            return TYPE_LEADER;
        case NewKind::Supply:
            return TYPE_SUPPLY;
        default:
            return TYPE_STRUCTURE;
    }
}

// A unit starts with a quarter of the strength its class may hold, at the class's base quality.
// A type whose class has no base type gives a unit that cannot be costed, as such a unit read
// from a file is: it starts at strength and quality 0 rather than being refused.
bool SetUpUnit(CUnitItem& unit, const CGameDatabase& database, const CTypeRecord& type) {
    // A line that names no weapon is passed over when the file is read again: such a unit
    // would be lost at the next load.
    if (!type.m_Weapons.Head()) {
        return false;
    }
    unit.m_pWeapon = static_cast<CWeaponRecord*>(type.m_Weapons.Head()->m_pPayload.get());
    unit.m_nReserved = database.m_nDefaultReserved;
    if (unit.m_pBaseType) {
        unit.m_nQuality = unit.m_pBaseType->m_nBaseQuality;
        unit.m_nStrength = static_cast<std::int16_t>(unit.m_pBaseType->m_nMaxStrength / 4);
    }
    return true;
}
}  // namespace

CClassRange ClassRangeOf(NewKind kind) {
    switch (kind) {
        case NewKind::Unit:
            return {1, 3};
        case NewKind::Leader:
            return {4, 4};
        case NewKind::Supply:
            return {5, 5};
        default:
            return {6, 6};
    }
}

std::unique_ptr<COobItem> NewItem(CGameDatabase& database, NewKind kind, CTypeRecord& type) {
    std::unique_ptr<COobItem> item = CreateItem(TypeCodeOf(kind));
    item->m_pDatabase = &database;
    item->m_strName = "New " + type.m_strName;
    item->m_pType = &type;
    item->m_pBaseType = item->FindBaseType(&type);
    // Supply trains and structures take the kind their type names; units and leaders the first
    // kind of their class.
    item->m_pKind = kind == NewKind::Unit     ? item->FindKindByType(TYPE_UNIT)
                    : kind == NewKind::Leader ? item->FindKindByType(TYPE_LEADER)
                                              : item->FindKindByKeyword(type.m_strType);
    // Without a kind the line would begin with no keyword, and no reader would take it back.
    if (!item->m_pKind) {
        return nullptr;
    }
    switch (kind) {
        case NewKind::Unit:
            return SetUpUnit(static_cast<CUnitItem&>(*item), database, type) ? std::move(item)
                                                                             : nullptr;
        case NewKind::Leader: {
            auto& leader = static_cast<CLeaderItem&>(*item);
            leader.m_nLeadership = leader.m_pBaseType ? leader.m_pBaseType->m_nBaseQuality : 0;
            leader.m_nThird = database.m_nDefaultThird;
            return item;
        }
        case NewKind::Supply:
            static_cast<CSupplyItem&>(*item).m_nSupply = kNewSupplyPoints;
            return item;
        default:
            return item;
    }
}
