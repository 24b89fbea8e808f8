#include "base/SmallObjectPool.h"

#include <cstring>

namespace pool_detail {

constinit PoolState g_pool{};

namespace {

constexpr std::size_t kSlabSize = 256 * 1024;
// The slab's first granule holds the link to the slab taken before it, so that every slab stays
// reachable (leak checkers see no lost blocks) although the pool never gives one back.
constexpr std::size_t kSlabHeader = kGranule;

}  // namespace

void* AllocateFromNewSlab(std::size_t bytes) {
    auto* slab = static_cast<std::byte*>(::operator new(kSlabSize));
    std::memcpy(slab, &g_pool.slabs, sizeof g_pool.slabs);
    g_pool.slabs = slab;
    ++g_pool.slabCount;
    g_pool.next = slab + kSlabHeader + bytes;
    g_pool.left = kSlabSize - kSlabHeader - bytes;
    return slab + kSlabHeader;
}

}  // namespace pool_detail

std::size_t PoolBytesInUse() {
    return pool_detail::g_pool.inUse;
}

std::size_t PoolSlabBytes() {
    return pool_detail::g_pool.slabCount * pool_detail::kSlabSize;
}
