#include "BenchTimer.h"

#include <malloc.h>

#include "base/SmallObjectPool.h"

#include <algorithm>
#include <chrono>
#include <limits>

double BestSeconds(int runs, const std::function<void()>& work,
                   const std::function<void()>& setup) {
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < runs; ++i) {
        setup();
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, elapsed.count());
    }
    return best;
}

double PerEntry(double seconds, std::size_t entries) {
    return seconds * 1e9 / static_cast<double>(entries);
}

// The general allocator's blocks in use (mapped ones too: the pool's slabs are among them), less
// the pool's free blocks: what the program holds.
std::size_t HeapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd - PoolSlabBytes() + PoolBytesInUse();
}
