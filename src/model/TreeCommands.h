// The main window's commands that change the tree of the order of battle, without the questions
// and lists the window asks first: Copy and Cut, Paste next and Paste child, Delete this item
// and Delete child items, Add and Rename. Each change is one step of the session's edit layer;
// a command whose conditions are not met changes nothing and gives none or false.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "model/Session.h"

class COobItem;

// Copy (ClipMode::Copy) and Cut: units, leaders, supply trains and structures only; armies,
// depots and gunboats stay where they are.
bool MarkEntry(CSession& session, HTREEITEM entry, ClipMode mode);

// Whether the marked subtree may be pasted under parent: parent's kind lies above the marked
// item's kind in the hierarchy.
bool CanPasteUnder(const CSession& session, HTREEITEM parent);
// Paste next: the marked lines under entry's parent right after entry. Paste child: as entry's
// first child. In Cut mode the marked entry goes in the same step and the mark with it. The
// pasted copy becomes the selection; gives it, or none.
HTREEITEM PasteNext(CSession& session, HTREEITEM entry);
HTREEITEM PasteChild(CSession& session, HTREEITEM entry);

// Delete this item: entry with its subtree; its parent selected and expanded (nothing selected
// after a top-level entry). Delete child items: entry's children, false when it has none. Both
// end the mark.
bool DeleteEntry(CSession& session, HTREEITEM entry);
bool DeleteChildren(CSession& session, HTREEITEM entry);

// Where Add child (the last child of an army or structure) and Add next (right after an entry
// that has a parent) put a new item; none where they do nothing.
struct CAddPlace {
    HTREEITEM parent = nullptr;
    HTREEITEM after = nullptr;
};
std::optional<CAddPlace> AddChildPlace(const CTreeStore& tree, HTREEITEM entry);
std::optional<CAddPlace> AddNextPlace(const CTreeStore& tree, HTREEITEM entry);
// The type name a new structure's list stops at: the type of the structure or army it goes
// under, so that only the echelons listed before it are offered; none when it has no type.
std::optional<std::string> StructureStopName(const CTreeStore& tree, const CAddPlace& place);
// The new item in at place, selected; gives its entry.
HTREEITEM AddEntry(CSession& session, const CAddPlace& place, std::unique_ptr<COobItem> item);

// Rename in place: the item's name becomes text. A text of blanks only is refused (false): a
// line's end is trimmed when the file is read, so the name would come back empty, a row with
// nothing to see or click. So is a text with a line end, which would split the item's line.
bool RenameEntry(CSession& session, HTREEITEM entry, const std::string& text);
