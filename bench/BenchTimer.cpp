#include "BenchTimer.h"

#include <malloc.h>

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

std::size_t HeapInUse() {
    return mallinfo2().uordblks;
}
