// The items Add child and Add next make: a unit, leader, supply train or structure of a type the
// user chose from the game data, with the fields a new item of its kind starts with.
#pragma once

#include <cstdint>
#include <memory>

#include "model/OobItem.h"

enum class NewKind : std::uint8_t { Unit, Leader, Supply, Structure };

// The class codes of the types offered for a new item of kind (both ends included).
struct CClassRange {
    std::uint8_t lowest = 0;
    std::uint8_t highest = 0;
};
CClassRange ClassRangeOf(NewKind kind);

// A new item of kind and type, named "New " and the type's text, pointing into database; none
// when its line could not be read back from the saved file: the game data has no kind for it,
// or (a unit) the type has no weapon to name.
std::unique_ptr<COobItem> NewItem(CGameDatabase& database, NewKind kind, CTypeRecord& type);
