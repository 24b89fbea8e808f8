#include "model/TreeCommands.h"

#include <string_view>
#include <utility>

#include "model/ContainerItems.h"
#include "model/OobItem.h"

namespace {
const COobItem* ItemAt(const CTreeStore& tree, HTREEITEM entry) {
    return entry ? ItemOf(tree, entry) : nullptr;
}

// One paste: the lines in under parent after the sibling after, and in Cut mode the marked entry
// out, as one step.
HTREEITEM Paste(CSession& session, HTREEITEM parent, HTREEITEM after) {
    if (!CanPasteUnder(session, parent)) {
        return nullptr;
    }
    // The removal below ends the mark the session holds, lines included.
    const CClipMark mark = session.Mark();
    HTREEITEM pasted = nullptr;
    {
        CEditLayer::CGroup group(session.Edit());
        pasted = session.Edit().InsertLines(parent, after, *mark.lines);
        // Lines of which none reads back as an item leave the cut entry where it is: nothing
        // would take its place.
        if (pasted && mark.mode == ClipMode::Cut) {
            session.Edit().Remove(mark.marked);
        }
    }
    if (pasted) {
        session.ViewStore().SelectItem(pasted);
    }
    return pasted;
}
}  // namespace

bool MarkEntry(CSession& session, HTREEITEM entry, ClipMode mode) {
    const COobItem* item = ItemAt(session.Tree(), entry);
    if (!session.IsOpen() || !item || item->m_nType >= TYPE_ARMY) {
        return false;
    }
    session.Mark(entry, mode);
    return true;
}

// An item without a kind has no level to compare, and its lines would not read back: refused.
// A cut subtree cannot go into itself: removing the marked entry would take the pasted copy
// with it.
bool CanPasteUnder(const CSession& session, HTREEITEM parent) {
    const CClipMark& mark = session.Mark();
    const CTreeStore& tree = session.Tree();
    const COobItem* target = ItemAt(tree, parent);
    const COobItem* marked = ItemAt(tree, mark.marked);
    if (mark.mode == ClipMode::None || !mark.lines || !target || !marked || !target->m_pKind ||
        !marked->m_pKind) {
        return false;
    }
    if (mark.mode == ClipMode::Cut && tree.IsInSubtree(parent, mark.marked)) {
        return false;
    }
    return target->m_pKind->m_nLevel > marked->m_pKind->m_nLevel;
}

HTREEITEM PasteNext(CSession& session, HTREEITEM entry) {
    if (!entry || !session.Tree().GetParentItem(entry)) {
        return nullptr;
    }
    return Paste(session, session.Tree().GetParentItem(entry), entry);
}

HTREEITEM PasteChild(CSession& session, HTREEITEM entry) {
    return entry ? Paste(session, entry, TVI_FIRST) : nullptr;
}

bool DeleteEntry(CSession& session, HTREEITEM entry) {
    if (!session.IsOpen() || !ItemAt(session.Tree(), entry)) {
        return false;
    }
    const HTREEITEM parent = session.Tree().GetParentItem(entry);
    session.Edit().Remove(entry);
    CTreeStore& view = session.ViewStore();
    view.SelectItem(parent);
    if (parent) {
        view.Expand(parent, TVE_EXPAND);
    }
    return true;
}

// From the last child back, so that no sibling's row moves; the tree ends the same as when the
// first child goes first, over and over.
bool DeleteChildren(CSession& session, HTREEITEM entry) {
    if (!session.IsOpen() || !entry || !session.Tree().ItemHasChildren(entry)) {
        return false;
    }
    CEditLayer::CGroup group(session.Edit());
    while (entry->ChildCount() > 0) {
        session.Edit().Remove(entry->Child(entry->ChildCount() - 1));
    }
    return true;
}

std::optional<CAddPlace> AddChildPlace(const CTreeStore& tree, HTREEITEM entry) {
    const COobItem* item = ItemAt(tree, entry);
    if (!item || !IsContainer(*item)) {
        return std::nullopt;
    }
    return CAddPlace{entry, TVI_LAST};
}

std::optional<CAddPlace> AddNextPlace(const CTreeStore& tree, HTREEITEM entry) {
    if (!ItemAt(tree, entry) || !tree.GetParentItem(entry)) {
        return std::nullopt;
    }
    return CAddPlace{tree.GetParentItem(entry), entry};
}

std::optional<std::string> StructureStopName(const CTreeStore& tree, const CAddPlace& place) {
    const COobItem* parent = ItemAt(tree, place.parent);
    if (!parent || !parent->m_pType) {
        return std::nullopt;
    }
    return parent->m_pType->m_strType;
}

HTREEITEM AddEntry(CSession& session, const CAddPlace& place, std::unique_ptr<COobItem> item) {
    if (!session.IsOpen() || !item) {
        return nullptr;
    }
    const HTREEITEM entry = session.Edit().InsertItem(place.parent, place.after, std::move(item));
    session.ViewStore().SelectItem(entry);
    return entry;
}

bool RenameEntry(CSession& session, HTREEITEM entry, const std::string& text) {
    const COobItem* item = ItemAt(session.Tree(), entry);
    if (!session.IsOpen() || !item || text.find_first_not_of(" \t") == std::string::npos ||
        text.find_first_of("\r\n") != std::string::npos) {
        return false;
    }
    // Ending the edit without a change is no step: the file still holds the tree.
    if (std::string_view(item->m_strName) != text) {
        session.Edit().Rename(entry, text);
    }
    return true;
}
