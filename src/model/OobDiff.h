// What changed from one order of battle to another. Entries are matched by their path of names
// from the top ("Army of Norland/Iron Brigade/Old Guard"), not by position, since one insertion
// moves the position of every entry after it. The second and later siblings of the same name
// take their occurrence ("Old Guard#2"); a '/', '#' or '\' in a name is escaped with a '\', so
// every path names one entry. An entry whose path is in both trees is changed when its item's
// order-of-battle line differs; an entry moved under another parent is removed and added.
#pragma once

#include <string>
#include <vector>

#include "base/TreeStore.h"

enum class OobChange { kRemoved, kAdded, kChanged };

struct COobDifference {
    OobChange change;
    std::string path;
    std::string before;  // the item's line in the first tree (empty when added)
    std::string after;   // its line in the second (empty when removed)
};

// The removed entries in the first tree's order, then the added and changed ones in the
// second's. Time and memory grow with the entries and the length of their paths.
std::vector<COobDifference> DiffOob(const CTreeStore& before, const CTreeStore& after);
