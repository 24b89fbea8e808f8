// Deterministic, realistic inputs for the benchmarks: a target file with several hundred unit
// types and orders of battle of any size with deep command structures. The text is made here,
// independently of the program's writers, in the format the game uses.
#pragma once

#include <cstddef>
#include <string>

#include "base/TreeStore.h"

// The target file's bytes.
std::string MakeBenchTarget();

// The bytes of an order of battle of about entries entries (exactly entries, or a few more to
// finish the last brigade).
std::string MakeBenchOob(std::size_t entries);

// Writes bytes to path as they are.
void WriteBytes(const std::string& path, const std::string& bytes);

// A game file that names every unit and supply of tree by its key (record 1) and lists every
// leader (record 2).
std::string MakeBenchGameFile(const CTreeStore& tree);
