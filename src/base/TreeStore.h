// The tree store: the data behind the main window's tree control. It is the one copy of the
// order of battle; the Qt face shows it through a model adapter and the headless face uses it
// as it is. The operations keep the tree control's names so that the logic built on them reads
// like the behaviour it implements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/SmallObjectPool.h"

// Whatever an entry holds as its data. The entry owns it: deleting an entry destroys the data of
// its whole subtree through this virtual destructor.
class CTreeItemData {
public:
    virtual ~CTreeItemData() = default;
    // The label an entry inserted without a text of its own shows: the data's own name, so that
    // the store keeps no second copy of it (the tree control's text callback).
    virtual std::string_view Label() const { return {}; }
};

class CTreeEntry;
using HTREEITEM = CTreeEntry*;

// The tree control's special handles. They are addresses of private sentinels, never of entries.
extern const HTREEITEM TVI_ROOT;
extern const HTREEITEM TVI_FIRST;
extern const HTREEITEM TVI_LAST;

enum TreeNext { TVGN_ROOT, TVGN_NEXT, TVGN_PREVIOUS, TVGN_PARENT, TVGN_CHILD, TVGN_CARET };
enum TreeExpand { TVE_COLLAPSE, TVE_EXPAND, TVE_TOGGLE };

// Told about every change before and after it happens, so that a view never reads a
// half-changed store (the Qt adapter maps these to its begin/end notifications).
class CTreeObserver {
public:
    virtual ~CTreeObserver() = default;
    virtual void BeforeInsert(HTREEITEM parent, std::size_t row) = 0;
    virtual void AfterInsert(HTREEITEM entry) = 0;
    virtual void BeforeRemove(HTREEITEM entry) = 0;
    virtual void AfterRemove() = 0;
    virtual void BeforeReset() = 0;
    virtual void AfterReset() = 0;
    virtual void LabelChanged(HTREEITEM entry) = 0;
    virtual void CaretChanged(HTREEITEM entry) = 0;
    virtual void ExpandChanged(HTREEITEM entry) = 0;
};

class CTreeEntry {
public:
    HARNWICK_POOL_ALLOCATED

    std::string_view Label() const;
    CTreeItemData* Data() const { return m_pData.get(); }
    HTREEITEM Parent() const { return m_pParent; }
    std::size_t Row() const { return m_nRow; }
    std::size_t ChildCount() const { return m_children.size(); }
    HTREEITEM Child(std::size_t row) const { return m_children[row].get(); }
    bool Expanded() const { return m_bExpanded; }

private:
    friend class CTreeStore;
    std::unique_ptr<std::string> m_pLabel;  // none: the data's label
    std::unique_ptr<CTreeItemData> m_pData;
    HTREEITEM m_pParent = nullptr;  // the store's hidden root for top-level entries
    std::uint32_t m_nRow = 0;       // position among the parent's children
    bool m_bExpanded = false;
    std::vector<std::unique_ptr<CTreeEntry>, CPoolAllocator<std::unique_ptr<CTreeEntry>>>
        m_children;
};

static_assert(alignof(CTreeEntry) <= pool_detail::kGranule);

// A subtree taken out of its store whole: its entries keep their data, labels, expansion and
// handles, and it knows how many entries it holds, so putting it back costs what inserting one
// entry costs. Destroyed unattached, it destroys its entries and their data.
class CDetachedSubtree {
public:
    CDetachedSubtree() = default;
    CDetachedSubtree(CDetachedSubtree&&) noexcept = default;
    CDetachedSubtree& operator=(CDetachedSubtree&& other) noexcept;
    ~CDetachedSubtree();

    HTREEITEM Root() const { return m_pRoot.get(); }
    std::size_t Count() const { return m_nCount; }  // entries, the root included

private:
    friend class CTreeStore;
    std::unique_ptr<CTreeEntry> m_pRoot;
    std::size_t m_nCount = 0;
};

class CTreeStore {
public:
    CTreeStore();
    ~CTreeStore();
    CTreeStore(const CTreeStore&) = delete;
    CTreeStore& operator=(const CTreeStore&) = delete;

    // A new entry under parent (TVI_ROOT for the top level) right after the sibling
    // insertAfter, first with TVI_FIRST, last with TVI_LAST. An insertAfter that is not a
    // child of parent puts the entry last, as the tree control does. Returns none when
    // parent is not an entry of this store.
    HTREEITEM InsertItem(std::string label, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM insertAfter = TVI_LAST);
    // The same for an entry that holds data from the start and shows the data's label.
    HTREEITEM InsertItem(std::unique_ptr<CTreeItemData>&& data, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM insertAfter = TVI_LAST) {
        std::unique_ptr<std::string> noLabel;
        return Insert(noLabel, data, parent, insertAfter);
    }

    void SetItemText(HTREEITEM entry, std::string label);
    void SetItemData(HTREEITEM entry, std::unique_ptr<CTreeItemData> data);
    CTreeItemData* GetItemData(HTREEITEM entry) const;
    std::string_view GetItemText(HTREEITEM entry) const;
    bool ItemHasChildren(HTREEITEM entry) const;

    HTREEITEM GetNextItem(HTREEITEM entry, TreeNext code) const;
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetNextSiblingItem(HTREEITEM e) const { return GetNextItem(e, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM e) const { return GetNextItem(e, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM e) const { return GetNextItem(e, TVGN_PARENT); }
    HTREEITEM GetChildItem(HTREEITEM e) const { return GetNextItem(e, TVGN_CHILD); }
    HTREEITEM GetSelectedItem() const { return m_hCaret; }

    // Makes entry the caret (none clears it).
    bool SelectItem(HTREEITEM entry);

    // Removes entry with its whole subtree and destroys their data; TVI_ROOT removes every
    // entry. A caret inside the removed subtree becomes none.
    bool DeleteItem(HTREEITEM entry);
    bool DeleteAllItems() { return DeleteItem(TVI_ROOT); }

    // Takes entry with its subtree out of the store, kept whole for Attach; the observer hears
    // one removal. A caret inside it becomes none.
    CDetachedSubtree Detach(HTREEITEM entry);
    // Puts subtree back as the child at row of parent (TVI_ROOT for the top level; a row past
    // the last child puts it last); the observer hears one insertion. Gives its root.
    HTREEITEM Attach(CDetachedSubtree&& subtree, HTREEITEM parent, std::size_t row);
    // Gives entry other data in place of its own and hands back the old; the observer hears the
    // entry changed (its label may be the data's).
    std::unique_ptr<CTreeItemData> ExchangeItemData(HTREEITEM entry,
                                                    std::unique_ptr<CTreeItemData> data);

    bool Expand(HTREEITEM entry, TreeExpand how);

    std::size_t GetCount() const { return m_nCount; }
    // The hidden root whose children are the top-level entries (for views).
    HTREEITEM HiddenRoot() const { return m_pRoot.get(); }
    // True when entry lies inside the subtree of ancestor (ancestor included).
    bool IsInSubtree(HTREEITEM entry, HTREEITEM ancestor) const;

    void SetObserver(CTreeObserver* observer) { m_pObserver = observer; }

    // Many changes at once (a whole file read in, an import): the observer hears one reset
    // around them instead of every insertion and removal, so a view is not rebuilt a million
    // times. Brackets nest.
    void BeginBulkChange();
    void EndBulkChange();
    class CBulkChange {
    public:
        explicit CBulkChange(CTreeStore& tree) : m_tree(tree) { m_tree.BeginBulkChange(); }
        ~CBulkChange() { m_tree.EndBulkChange(); }
        CBulkChange(const CBulkChange&) = delete;
        CBulkChange& operator=(const CBulkChange&) = delete;

    private:
        CTreeStore& m_tree;
    };

private:
    HTREEITEM Resolve(HTREEITEM parent) const;
    // Takes label and data only when it makes the entry. By reference rather than by value: a
    // file read in inserts a million entries, and each owner passed by value is a temporary
    // to make and destroy.
    HTREEITEM Insert(std::unique_ptr<std::string>& label, std::unique_ptr<CTreeItemData>& data,
                     HTREEITEM parent, HTREEITEM insertAfter);
    std::unique_ptr<CTreeEntry> Unlink(HTREEITEM entry);
    static void Renumber(CTreeEntry& parent, std::size_t from);
    friend class CDetachedSubtree;
    static std::size_t DestroyChildren(CTreeEntry& entry);

    std::unique_ptr<CTreeEntry> m_pRoot;
    HTREEITEM m_hCaret = nullptr;
    std::size_t m_nCount = 0;
    CTreeObserver* m_pObserver = nullptr;
    int m_nBulk = 0;  // open bulk changes

    // The observer to tell of a single change: none inside a bulk change.
    CTreeObserver* Told() const { return m_nBulk > 0 ? nullptr : m_pObserver; }
};
