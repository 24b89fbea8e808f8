// make bench, the edit layer: removing a subtree of 10^5 entries against undoing that removal,
// the memory 100 steps of history hold on a tree of 10^5 entries, and the tree commands.
#pragma once

#include <string>

// Prints the figures and the targets; targetPath is the bench's target file, folder a scratch
// folder.
void MeasureHistory(const std::string& folder, const std::string& targetPath);
// Paste child of a copied subtree of 10^4 entries and Delete this item of one of 10^5, each
// against LoadTree of as many entries, and the undo of each against the command.
void MeasureTreeCommands(const std::string& folder, const std::string& targetPath);
