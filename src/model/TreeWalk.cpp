#include "model/TreeWalk.h"

namespace {

int Climb(const CTreeStore& tree, HTREEITEM& current) {
    int level = -1;
    for (HTREEITEM e = current;; --level) {
        HTREEITEM parent = tree.GetParentItem(e);
        if (parent == nullptr) {
            return STEP_END;
        }
        if (HTREEITEM next = tree.GetNextSiblingItem(parent)) {
            current = next;
            return level;
        }
        e = parent;
    }
}

}  // namespace

int TreeStepOver(const CTreeStore& tree, HTREEITEM& current) {
    if (HTREEITEM next = tree.GetNextSiblingItem(current)) {
        current = next;
        return 0;
    }
    return Climb(tree, current);
}

int TreeStep(const CTreeStore& tree, HTREEITEM& current) {
    if (HTREEITEM child = tree.GetChildItem(current)) {
        current = child;
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
