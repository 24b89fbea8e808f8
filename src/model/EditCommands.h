// The reversible commands of the edit layer, each a change of the tree that it can undo and do
// again: entries inserted, a subtree removed or moved, an item exchanged, the whole tree
// exchanged.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "base/TreeStore.h"
#include "model/EditLayer.h"

// Entries inserted under one parent, at their rows in ascending order: out of the tree while
// undone.
class CInsertCommand : public CEditCommand {
public:
    CInsertCommand(HTREEITEM parent, std::vector<HTREEITEM> entries)
        : m_hParent(parent), m_entries(std::move(entries)) {}

    void Do(CTreeStore& tree) override {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            tree.Attach(std::move(m_detached[i]), m_hParent, m_rows[i]);
        }
        m_detached.clear();
    }
    void Undo(CTreeStore& tree) override {
        m_rows.resize(m_entries.size());
        m_detached.resize(m_entries.size());
        for (std::size_t i = m_entries.size(); i-- > 0;) {
            m_rows[i] = m_entries[i]->Row();
            m_detached[i] = tree.Detach(m_entries[i]);
        }
    }

private:
    HTREEITEM m_hParent;
    std::vector<HTREEITEM> m_entries;
    std::vector<std::size_t> m_rows;
    std::vector<CDetachedSubtree> m_detached;
};

class CRemoveCommand : public CEditCommand {
public:
    explicit CRemoveCommand(HTREEITEM entry) : m_hEntry(entry) {}

    void Do(CTreeStore& tree) override {
        m_hParent = m_hEntry->Parent();
        m_nRow = m_hEntry->Row();
        m_detached = tree.Detach(m_hEntry);
    }
    void Undo(CTreeStore& tree) override { tree.Attach(std::move(m_detached), m_hParent, m_nRow); }
    bool EndsMark() const override { return true; }

private:
    HTREEITEM m_hEntry;
    HTREEITEM m_hParent = nullptr;
    std::size_t m_nRow = 0;
    CDetachedSubtree m_detached;
};

class CMoveCommand : public CEditCommand {
public:
    // parent: an entry, or the hidden root for the top level.
    CMoveCommand(HTREEITEM entry, HTREEITEM parent, HTREEITEM after)
        : m_hEntry(entry), m_hTo(parent), m_hAfter(after) {}

    void Do(CTreeStore& tree) override {
        m_hFrom = m_hEntry->Parent();
        m_nFromRow = m_hEntry->Row();
        CDetachedSubtree subtree = tree.Detach(m_hEntry);
        if (m_hAfter) {  // the first run: the row follows from the sibling
            m_nToRow = m_hAfter == TVI_FIRST         ? 0
                       : m_hAfter->Parent() == m_hTo ? m_hAfter->Row() + 1
                                                     : SIZE_MAX;
            m_hAfter = nullptr;
        }
        tree.Attach(std::move(subtree), m_hTo, m_nToRow);
    }
    void Undo(CTreeStore& tree) override {
        tree.Attach(tree.Detach(m_hEntry), m_hFrom, m_nFromRow);
    }

private:
    HTREEITEM m_hEntry;
    HTREEITEM m_hTo;
    HTREEITEM m_hAfter;
    HTREEITEM m_hFrom = nullptr;
    std::size_t m_nFromRow = 0;
    std::size_t m_nToRow = 0;
};

// The entry's item and another exchanged: the edited one in, the old one kept.
class CExchangeCommand : public CEditCommand {
public:
    CExchangeCommand(HTREEITEM entry, std::unique_ptr<CTreeItemData> other)
        : m_hEntry(entry), m_pOther(std::move(other)) {}

    void Do(CTreeStore& tree) override {
        m_pOther = tree.ExchangeItemData(m_hEntry, std::move(m_pOther));
    }
    void Undo(CTreeStore& tree) override { Do(tree); }

private:
    HTREEITEM m_hEntry;
    std::unique_ptr<CTreeItemData> m_pOther;
};

// The whole tree exchanged with another kept here; the view hears one reset.
class CWholeTreeCommand : public CEditCommand {
public:
    explicit CWholeTreeCommand(std::vector<CDetachedSubtree> other) : m_other(std::move(other)) {}

    void Do(CTreeStore& tree) override;
    void Undo(CTreeStore& tree) override { Do(tree); }
    bool EndsMark() const override { return true; }

private:
    std::vector<CDetachedSubtree> m_other;
};

// The top-level entries taken out of the tree, in their order; and put back.
std::vector<CDetachedSubtree> DetachAll(CTreeStore& tree);
void AttachAll(CTreeStore& tree, std::vector<CDetachedSubtree>& roots);

// Copies of every entry of source, with their items and expansion, appended at the top level of
// target (which may be source itself).
void AppendCopy(const CTreeStore& source, CTreeStore& target);
