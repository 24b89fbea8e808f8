// What the fuzz targets share: a scratch file for the readers that take a path, the sample game
// data that every order-of-battle reader needs, and checks that stop the run loudly.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/TreeStore.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"

// A broken invariant is a finding like a crash: the message names it, and abort() makes the
// fuzzer keep the input.
void Require(bool condition, const char* what);

// Writes bytes to the file name in this process's own scratch folder (made once, removed at
// exit) and returns its path.
std::string WriteScratchFile(const char* name, std::string_view bytes);
inline std::string WriteScratchFile(const char* name, const std::uint8_t* data, std::size_t size) {
    return WriteScratchFile(name, std::string_view(reinterpret_cast<const char*>(data), size));
}

// The bytes of a file of the sample folder, read from disk once.
const std::string& SampleText(const char* name);

// A document on its own copy of the sample game data, with an empty tree. Reading an order of
// battle may add unit types and weapons to the game data, so a copy is used again only when the
// session that had it left it as read from the file (reading the file anew costs most of a run).
struct COobSession {
    COobSession();
    ~COobSession();
    COobSession(const COobSession&) = delete;
    COobSession& operator=(const COobSession&) = delete;

    std::unique_ptr<CGameDatabase> database;
    COobDocument document;
    CTreeStore tree;
};

// The tree's links agree with each other: every child names its parent and its row, the count
// is the number of entries, every entry holds an item, and the caret is an entry of the tree.
void RequireConsistentTree(const CTreeStore& tree);

// The tree's shape with every entry's item as its line: depth, type code, line and label, one
// entry per line. Two trees with the same outline hold the same items in the same places.
std::string TreeOutline(const CTreeStore& tree);

// True when an entry whose item is not an army or a structure has children. The writer puts
// "Begin" and "End" only around the children of containers, so such a tree does not come back
// the same from its own text.
bool HasChildrenOutsideContainers(const CTreeStore& tree);

// True when the writer cuts the line of an entry of tree: its indentation and its item's text are
// longer than the readers take. That happens only with what was read from a long line of a
// damaged file (an item read at the top level and written deeper); what was cut off does not
// come back, so the text does not read back as the same tree.
bool HasCutLine(const CTreeStore& tree);

// The order-of-battle reader's fixed point: text is what the writer made of some tree. Reading
// it again (on fresh game data) and writing must give the same bytes. When the writer cut a line
// of that tree (cut), the cut may have reached a unit's type or weapon, and the reader passes
// such a line over, as the game cannot read it either: then the text one round later must be
// the fixed point. Returns the last session, for callers that compare its tree.
std::unique_ptr<COobSession> RequireOobFixedPoint(const std::string& text, bool cut);
