// make bench, the edit layer: removing a subtree of 10^5 entries against undoing that removal,
// and the memory 100 steps of history hold on a tree of 10^5 entries.
#pragma once

#include <string>

// Prints the figures and the targets; targetPath is the bench's target file, folder a scratch
// folder.
void MeasureHistory(const std::string& folder, const std::string& targetPath);
