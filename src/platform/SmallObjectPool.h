// Allocation for the many small objects an order of battle is made of (tree entries and items):
// blocks of a few sizes cut from large slabs, freed blocks kept for reuse. It saves the general
// allocator's per-block header and most of its work on a tree of a million entries. Built with
// AddressSanitizer, it hands every request to the general allocator so that misuse is caught.
#pragma once

#include <cstddef>

void* PoolAllocate(std::size_t size);
void PoolFree(void* block, std::size_t size);
// Bytes of the blocks handed out and not yet freed (for the benchmarks' memory figures).
std::size_t PoolBytesInUse();
// Bytes of the slabs the pool took from the general allocator.
std::size_t PoolSlabBytes();

// Gives a class (and the classes derived from it) pool allocation.
#define HARNWICK_POOL_ALLOCATED                                  \
    static void* operator new(std::size_t size) {                \
        return PoolAllocate(size);                               \
    }                                                            \
    static void operator delete(void* block, std::size_t size) { \
        PoolFree(block, size);                                   \
    }
