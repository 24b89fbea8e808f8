#include "base/TreeWalk.h"

// The steps read the entries directly: every writer and report takes a million of them.
namespace {

HTREEITEM NextSibling(HTREEITEM entry) {
    const CTreeEntry& parent = *entry->Parent();
    const std::size_t next = entry->Row() + 1;
    return next < parent.ChildCount() ? parent.Child(next) : nullptr;
}

int Climb(const CTreeStore& tree, HTREEITEM& current) {
    const HTREEITEM root = tree.HiddenRoot();
    int level = -1;
    for (HTREEITEM e = current;; --level) {
        HTREEITEM parent = e->Parent();
        if (parent == root) {
            return STEP_END;
        }
        if (HTREEITEM next = NextSibling(parent)) {
            current = next;
            return level;
        }
        e = parent;
    }
}

}  // namespace

int TreeStepOver(const CTreeStore& tree, HTREEITEM& current) {
    if (HTREEITEM next = NextSibling(current)) {
        current = next;
        return 0;
    }
    return Climb(tree, current);
}

int TreeStep(const CTreeStore& tree, HTREEITEM& current) {
    if (current->ChildCount() > 0) {
        current = current->Child(0);
        return 1;
    }
    return TreeStepOver(tree, current);
}

CTreeWalk::CTreeWalk(const CTreeStore& tree, HTREEITEM start)
    : m_tree(tree),
      m_hCurrent(start ? start : tree.GetRootItem()),
      m_nOffset(start ? -1 : 0),
      m_bDone(m_hCurrent == nullptr) {}

int CTreeWalk::Advance(int result) {
    if (result == STEP_END) {
        m_bDone = true;
        return result;
    }
    m_nLevel += result;
    if (m_nLevel + m_nOffset < 0) {
        m_bDone = true;
    }
    return result;
}
