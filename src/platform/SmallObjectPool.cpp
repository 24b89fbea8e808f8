#include "platform/SmallObjectPool.h"

#include <array>
#include <memory>
#include <new>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define HARNWICK_POOL_BYPASS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define HARNWICK_POOL_BYPASS 1
#endif
#endif

namespace {

constexpr std::size_t kGranule = 16;
constexpr std::size_t kLargestPooled = 512;
constexpr std::size_t kSlabSize = 256 * 1024;

struct FreeBlock {
    FreeBlock* next;
};

class CPool {
public:
    void* Allocate(std::size_t size) {
        const std::size_t sizeClass = (size + kGranule - 1) / kGranule;
        if (FreeBlock* block = m_free[sizeClass]) {
            m_free[sizeClass] = block->next;
            m_nInUse += sizeClass * kGranule;
            return block;
        }
        const std::size_t bytes = sizeClass * kGranule;
        m_nInUse += bytes;
        if (m_nLeft < bytes) {
            m_slabs.push_back(std::make_unique_for_overwrite<std::byte[]>(kSlabSize));
            m_pNext = m_slabs.back().get();
            m_nLeft = kSlabSize;
        }
        void* block = m_pNext;
        m_pNext += bytes;
        m_nLeft -= bytes;
        return block;
    }

    void Free(void* block, std::size_t size) {
        const std::size_t sizeClass = (size + kGranule - 1) / kGranule;
        m_nInUse -= sizeClass * kGranule;
        auto* freed = static_cast<FreeBlock*>(block);
        freed->next = m_free[sizeClass];
        m_free[sizeClass] = freed;
    }

private:
    std::array<FreeBlock*, kLargestPooled / kGranule + 1> m_free{};
    std::vector<std::unique_ptr<std::byte[]>> m_slabs;
    std::byte* m_pNext = nullptr;
    std::size_t m_nLeft = 0;

public:
    std::size_t SlabCount() const { return m_slabs.size(); }
    std::size_t m_nInUse = 0;
};

// Never destroyed: objects may still be freed while static objects are being torn down.
CPool& Pool() {
    static CPool* pool = new CPool;
    return *pool;
}

}  // namespace

void* PoolAllocate(std::size_t size) {
#ifndef HARNWICK_POOL_BYPASS
    if (size <= kLargestPooled) {
        return Pool().Allocate(size);
    }
#endif
    return ::operator new(size);
}

std::size_t PoolBytesInUse() {
    return Pool().m_nInUse;
}

std::size_t PoolSlabBytes() {
    return Pool().SlabCount() * kSlabSize;
}

void PoolFree(void* block, [[maybe_unused]] std::size_t size) {
    if (block == nullptr) {
        return;
    }
#ifndef HARNWICK_POOL_BYPASS
    if (size <= kLargestPooled) {
        Pool().Free(block, size);
        return;
    }
#endif
    // The unsized form: clang declares the sized one only with -fsized-deallocation.
    ::operator delete(block);
}
