// What changed from one order of battle to another. Entries are matched by their path of names
// from the top ("Army of Norland/Iron Brigade/Old Guard"), not by position, since one insertion
// moves the position of every entry after it. The second and later siblings of the same name
// take their occurrence ("Old Guard#2"); a '/', '#' or '\' in a name is escaped with a '\', so
// every path names one entry. An entry whose path is in both trees is changed when its item's
// order-of-battle line differs. An entry moved under another parent is removed and added; of
// the siblings under one parent in both trees, the fewest that account for their new order are
// moved (an insertion or removal moves nothing).
#pragma once

#include <string>
#include <vector>

#include "base/TreeStore.h"

// In the order they are listed in.
enum class OobChange { kRemoved, kAdded, kMoved, kChanged };

struct COobDifference {
    OobChange change;
    std::string path;
    std::string before;  // the item's line in the first tree (empty when added or moved)
    // Its line in the second (empty when removed); when moved, the path of the sibling it now
    // follows (empty when it now comes first).
    std::string after;
};

// The removed entries in the first tree's order, then the added, moved and changed ones in the
// second's (a moved entry whose line changed is both). Time and memory grow with the entries
// and the length of their paths, times the logarithm of the number of siblings.
std::vector<COobDifference> DiffOob(const CTreeStore& before, const CTreeStore& after);
