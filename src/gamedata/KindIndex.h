// The kinds of a database grouped by the first byte of their keyword, each group in the list's
// order, so that finding the kind of an order-of-battle line looks only at the few kinds that can
// claim it and still finds the first match of the whole list.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/DataList.h"
#include "base/LineTokenizer.h"
#include "gamedata/GameRecords.h"

class CKindIndex {
public:
    // The first kind of kinds, in its order, whose keyword begins line (the two agree over the
    // shorter of their lengths). Inline: it runs for every line of an order of battle.
    CKindRecord* Find(const CDataList& kinds, std::string_view line) {
        if (m_nRevision != kinds.Revision()) {
            Rebuild(kinds);
        }
        if (line.empty()) {
            return m_pFirst;
        }
        for (CKindRecord* kind : m_groups[static_cast<unsigned char>(line.front())]) {
            if (CLineTokenizer::PrefixMatches(line, kind->m_strKeyword)) {
                return kind;
            }
        }
        return nullptr;
    }

private:
    void Rebuild(const CDataList& kinds);

    // The list's revision the groups were built from: any change to the list rebuilds them.
    std::uint64_t m_nRevision = ~std::uint64_t{0};
    CKindRecord* m_pFirst = nullptr;  // what an empty line matches
    std::array<std::vector<CKindRecord*>, 256> m_groups;
};
