// Small trees for the tree store and tree walk tests.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/TreeStore.h"

// Builds a tree from labels in pre-order, each indented by one blank per level. Returns the
// entries by label.
inline std::map<std::string, HTREEITEM> BuildTree(CTreeStore& tree,
                                                  std::initializer_list<std::string_view> lines) {
    std::map<std::string, HTREEITEM> entries;
    std::vector<HTREEITEM> parents{TVI_ROOT};
    for (std::string_view line : lines) {
        const std::size_t depth = line.find_first_not_of(' ');
        parents.resize(depth + 1);
        const std::string label(line.substr(depth));
        HTREEITEM entry = tree.InsertItem(label, parents[depth], TVI_LAST);
        parents.push_back(entry);
        entries[label] = entry;
    }
    return entries;
}

// The children of parent as "A(B C) D". An entry whose row, previous sibling or parent does
// not agree with its place ends the text with "<label out of place>"; as every row is checked
// before the next sibling is taken, a broken sibling chain cannot send this round in circles.
inline std::string Shape(const CTreeStore& tree, HTREEITEM parent = TVI_ROOT) {
    std::string out;
    std::size_t row = 0;
    HTREEITEM previous = nullptr;
    for (HTREEITEM e = tree.GetChildItem(parent); e;
         previous = e, e = tree.GetNextSiblingItem(e), ++row) {
        if (e->Row() != row || tree.GetPrevSiblingItem(e) != previous ||
            tree.GetParentItem(e) != (parent == TVI_ROOT ? nullptr : parent)) {
            return out + " <" + std::string(e->Label()) + " out of place>";
        }
        out += (out.empty() ? "" : " ") + std::string(tree.GetItemText(e));
        if (tree.ItemHasChildren(e)) {
            out += "(" + Shape(tree, e) + ")";
        }
    }
    return out;
}

// The first entry labelled label, in pre-order; none when no entry has it.
inline HTREEITEM FindLabel(const CTreeStore& tree, const std::string& label,
                           HTREEITEM parent = TVI_ROOT) {
    for (HTREEITEM e = tree.GetChildItem(parent); e; e = tree.GetNextSiblingItem(e)) {
        if (tree.GetItemText(e) == label) {
            return e;
        }
        if (HTREEITEM found = FindLabel(tree, label, e)) {
            return found;
        }
    }
    return nullptr;
}

// A chain of depth entries, each the only child of the one before; returns its top.
inline HTREEITEM BuildChain(CTreeStore& tree, int depth) {
    HTREEITEM top = nullptr;
    HTREEITEM parent = TVI_ROOT;
    for (int i = 0; i < depth; ++i) {
        parent = tree.InsertItem("L" + std::to_string(i), parent, TVI_LAST);
        top = top ? top : parent;
    }
    return top;
}
