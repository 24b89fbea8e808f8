// The one pre-order walk of the order-of-battle tree, with its level changes. Every writer,
// report, total and the import walk with it.
#pragma once

#include "base/TreeStore.h"

// The step result that ends a walk.
constexpr int STEP_END = 2;

// Moves current to the next entry in pre-order: 1 into the first child, 0 to the next sibling,
// -k after climbing k levels to an ancestor's next sibling, STEP_END when nothing follows.
int TreeStep(const CTreeStore& tree, HTREEITEM& current);
// The same, without entering the children of current.
int TreeStepOver(const CTreeStore& tree, HTREEITEM& current);

// A walk over the subtree of a start entry (start included), or over the whole tree when start
// is none. Depth() is the running level: 0 for the start entry, or for top-level entries.
class CTreeWalk {
public:
    CTreeWalk(const CTreeStore& tree, HTREEITEM start);

    bool Done() const { return m_bDone; }
    HTREEITEM Current() const { return m_hCurrent; }
    int Depth() const { return m_nLevel; }
    // Steps on; returns the step result.
    int Step() { return Advance(TreeStep(m_tree, m_hCurrent)); }
    int StepOver() { return Advance(TreeStepOver(m_tree, m_hCurrent)); }

private:
    int Advance(int result);

    const CTreeStore& m_tree;
    HTREEITEM m_hCurrent;
    int m_nLevel = 0;
    int m_nOffset;
    bool m_bDone;
};
