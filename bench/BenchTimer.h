// Timing and memory readings for the benchmarks.
#pragma once

#include <cstddef>
#include <functional>

// The fastest of runs timings of work, in seconds. setup runs before each timing, untimed.
double BestSeconds(
    int runs, const std::function<void()>& work, const std::function<void()>& setup = [] {});

// Seconds for entries entries, in nanoseconds per entry.
double PerEntry(double seconds, std::size_t entries);

// Bytes the allocator has handed out and not yet taken back.
std::size_t HeapInUse();
