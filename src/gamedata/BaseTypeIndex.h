// The first base type of each class code, in the list's order, so that finding an item's base
// type looks at one slot rather than walking the list for every line read.
#pragma once

#include <array>
#include <cstdint>

#include "base/DataList.h"
#include "gamedata/GameRecords.h"

class CBaseTypeIndex {
public:
    // The first base type of baseTypes, in its order, of class classCode (none when none is).
    CBaseTypeRecord* Find(const CDataList& baseTypes, std::uint8_t classCode) {
        if (m_nRevision != baseTypes.Revision()) {
            Rebuild(baseTypes);
        }
        return m_first[classCode];
    }

private:
    void Rebuild(const CDataList& baseTypes);

    // The list's revision the slots were filled from: any change to the list fills them again.
    // A record's class code is set only as it is read or made, before it joins the list.
    std::uint64_t m_nRevision = ~std::uint64_t{0};
    std::array<CBaseTypeRecord*, 256> m_first{};
};
