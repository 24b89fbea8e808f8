// The kinds of a database grouped by the first byte of their keyword, each group in the list's
// order, so that finding the kind of an order-of-battle line looks only at the few kinds that can
// claim it and still finds the first match of the whole list.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

class CDataList;
class CKindRecord;

class CKindIndex {
public:
    // The first kind of kinds, in its order, whose keyword begins line (the two agree over the
    // shorter of their lengths).
    CKindRecord* Find(const CDataList& kinds, std::string_view line);

private:
    void Rebuild(const CDataList& kinds);

    // The list's revision the groups were built from: any change to the list rebuilds them.
    std::uint64_t m_nRevision = ~std::uint64_t{0};
    CKindRecord* m_pFirst = nullptr;  // what an empty line matches
    std::array<std::vector<CKindRecord*>, 256> m_groups;
};
