// The strength and quality fields the unit and gunboat editors share: strength shown in
// strength points or men, quality shown as its magnitude with the fanatic mark in a check box,
// and the cost modifier taken from those fields.
#pragma once

#include <cstdint>

class CBaseTypeRecord;
class CGameDatabase;
class COobItem;

// The Strength field for points strength points: the points, or the men they hold.
unsigned ShownStrength(int points, const CBaseTypeRecord* base, int showPoints);
// The strength points the Strength field holds, at most the base type's maximum.
std::int16_t TakenStrength(unsigned field, const CBaseTypeRecord* base, int showPoints);
// The quality the Quality field gives, clamped to the game's bounds and negative for a fanatic;
// the field becomes the clamped magnitude.
std::int16_t TakenQuality(unsigned& field, const CGameDatabase& database, int fanatic);
// The cost modifier of item with the Quality and Fanatic fields, so that a fanatic quality of 0,
// which the item cannot hold, still shows the bonus; 0 when a record is missing.
double FieldModifier(const COobItem& item, unsigned quality, int fanatic,
                     const CGameDatabase& database);
