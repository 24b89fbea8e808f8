// Allocation for the many small objects an order of battle is made of (tree entries, items and
// their names): blocks of a few sizes cut from large slabs, freed blocks kept for reuse. It saves
// the general allocator's per-block header and most of its work on a tree of a million entries.
// Built with AddressSanitizer, it hands every request to the general allocator so that misuse is
// caught.
#pragma once

#include <cstddef>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define HARNWICK_POOL_BYPASS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define HARNWICK_POOL_BYPASS 1
#endif
#endif

namespace pool_detail {

// Blocks come in steps of eight bytes, the alignment of everything the pool serves (pointers,
// 64-bit integers and doubles; CPoolAllocator checks its element type): in steps of sixteen, a
// tree entry of 56 bytes would take 64, and a name of 20 characters 32 rather than 24.
inline constexpr std::size_t kGranule = 8;
inline constexpr std::size_t kLargestPooled = 512;

struct FreeBlock {
    FreeBlock* next;
};

// Plain data with constant initialisation and no destructor: objects may still be allocated
// before main and freed while static objects are being torn down.
struct PoolState {
    FreeBlock* free[kLargestPooled / kGranule + 1];
    std::byte* next;
    std::size_t left;
    std::size_t inUse;
    void* slabs;  // the slabs taken, linked through their first bytes
    std::size_t slabCount;
};
extern constinit PoolState g_pool;

// A block of bytes (a whole number of granules) from a new slab.
void* AllocateFromNewSlab(std::size_t bytes);

}  // namespace pool_detail

// Inline: the size is known where an object is created, and the common case is a few
// instructions.
inline void* PoolAllocate(std::size_t size) {
#ifndef HARNWICK_POOL_BYPASS
    using namespace pool_detail;
    if (size <= kLargestPooled) {
        const std::size_t sizeClass = (size + kGranule - 1) / kGranule;
        const std::size_t bytes = sizeClass * kGranule;
        g_pool.inUse += bytes;
        if (FreeBlock* block = g_pool.free[sizeClass]) {
            g_pool.free[sizeClass] = block->next;
            return block;
        }
        if (g_pool.left < bytes) {
            return AllocateFromNewSlab(bytes);
        }
        void* block = g_pool.next;
        g_pool.next += bytes;
        g_pool.left -= bytes;
        return block;
    }
#endif
    return ::operator new(size);
}

inline void PoolFree(void* block, [[maybe_unused]] std::size_t size) {
    if (block == nullptr) {
        return;
    }
#ifndef HARNWICK_POOL_BYPASS
    using namespace pool_detail;
    if (size <= kLargestPooled) {
        const std::size_t sizeClass = (size + kGranule - 1) / kGranule;
        g_pool.inUse -= sizeClass * kGranule;
        auto* freed = static_cast<FreeBlock*>(block);
        freed->next = g_pool.free[sizeClass];
        g_pool.free[sizeClass] = freed;
        return;
    }
#endif
    // The unsized form: clang declares the sized one only with -fsized-deallocation.
    ::operator delete(block);
}

// Bytes of the blocks handed out and not yet freed (for the benchmarks' memory figures).
std::size_t PoolBytesInUse();
// Bytes of the slabs the pool took from the general allocator.
std::size_t PoolSlabBytes();

// Pool allocation for a container's elements (a tree entry's children).
template <typename T>
struct CPoolAllocator {
    using value_type = T;
    static_assert(alignof(T) <= pool_detail::kGranule);
    CPoolAllocator() = default;
    template <typename U>
    CPoolAllocator(const CPoolAllocator<U>&) {}
    T* allocate(std::size_t n) { return static_cast<T*>(PoolAllocate(n * sizeof(T))); }
    void deallocate(T* p, std::size_t n) { PoolFree(p, n * sizeof(T)); }
    template <typename U>
    bool operator==(const CPoolAllocator<U>&) const {
        return true;
    }
};

// Gives a class (and the classes derived from it) pool allocation. Only for classes aligned to
// at most kGranule bytes: each checks that beside its definition.
#define HARNWICK_POOL_ALLOCATED                                  \
    static void* operator new(std::size_t size) {                \
        return PoolAllocate(size);                               \
    }                                                            \
    static void operator delete(void* block, std::size_t size) { \
        PoolFree(block, size);                                   \
    }
