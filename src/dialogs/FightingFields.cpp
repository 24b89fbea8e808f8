#include "dialogs/FightingFields.h"

#include <algorithm>

#include "dialogs/ItemEditorDlg.h"
#include "gamedata/GameDatabase.h"
#include "model/OobItem.h"

namespace {
// A base type without men per strength point counts the field as strength points.
int MenPerPoint(const CBaseTypeRecord* base) {
    const int men = base ? base->m_nMenPerPoint : 1;
    return men > 0 ? men : 1;
}
}  // namespace

unsigned ShownStrength(int points, const CBaseTypeRecord* base, int showPoints) {
    return ShownNumber(showPoints == 1 ? points : points * MenPerPoint(base));
}

std::int16_t TakenStrength(unsigned field, const CBaseTypeRecord* base, int showPoints) {
    int points = static_cast<std::int16_t>(field);
    if (showPoints == 0) {
        points /= MenPerPoint(base);
    }
    if (base) {
        points = std::min(points, static_cast<int>(base->m_nMaxStrength));
    }
    return static_cast<std::int16_t>(points);
}

std::int16_t TakenQuality(unsigned& field, const CGameDatabase& database, int fanatic) {
    int quality = static_cast<std::int16_t>(field);
    quality = std::min(std::max(quality, static_cast<int>(database.m_nMinQuality)),
                       static_cast<int>(database.m_nMaxQuality));
    field = ShownNumber(quality);
    return static_cast<std::int16_t>(fanatic == 1 ? -quality : quality);
}

double FieldModifier(const COobItem& item, unsigned quality, int fanatic,
                     const CGameDatabase& database) {
    const CBaseTypeRecord* base = item.m_pBaseType;
    if (!base || !item.m_pType || !item.m_pWeapon) {
        return 0.0;
    }
    double modifier =
        (static_cast<double>(quality) - base->m_nBaseQuality) * base->m_dQualityFactor +
        item.m_pWeapon->m_dCostModifier + item.m_pType->m_dCostModifier + 1.0;
    if (fanatic == 1) {
        modifier += database.m_dFanaticBonus;
    }
    return modifier;
}
