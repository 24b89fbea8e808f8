// Bringing the order of battle up to date from the game's own files: the strengths the units
// still have after a battle, and which entries the game no longer mentions.
#pragma once

#include <string>
#include <string_view>

#include "base/Result.h"
#include "base/TreeStore.h"

class COobWriter;

// Import flags.
enum : int {
    IMPORT_REMOVE_MISSING = 1,  // remove units, leaders and supplies the file does not mention
    IMPORT_ZERO_MISSING = 2,    // set their strength or supply points to 0
    IMPORT_REMOVE_EMPTY = 4,    // remove structures whose subtree holds no men
};

// Brings the tree up to date from the game file at path (IMPORT_* flags); RESULT_DONE, or
// RESULT_CANNOT_OPEN with the tree untouched.
int ImportGameData(const std::string& path, CTreeStore& tree, int flags);
// The entry a position key (2.1.3. or 2.1.3) names; none when it names no entry.
HTREEITEM FindItemByKey(std::string_view key, const CTreeStore& tree);
// Imports the game file into a copy of tree and writes the copy to path with writer; tree stays
// as it is. RESULT_CANNOT_OPEN naming gameFile, or the write's result.
CWriteResult ImportToFile(const CTreeStore& tree, const std::string& gameFile, int flags,
                          COobWriter& writer, const std::string& path);
