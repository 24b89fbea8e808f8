// make bench, the recovery copy: writing the copy of a tree of 10^5 entries (its text and its
// header, both through the safe writer) against Save of the same tree, and the time the window
// waits while it is written.
#pragma once

#include <string>

// Prints the figures and the target; targetPath is the bench's target file, folder a scratch
// folder.
void MeasureRecovery(const std::string& folder, const std::string& targetPath);
