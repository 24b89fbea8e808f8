#include "base/TreeStore.h"

#include <algorithm>
#include <utility>

namespace {
CTreeEntry g_rootSentinel;
CTreeEntry g_firstSentinel;
CTreeEntry g_lastSentinel;
}  // namespace

const HTREEITEM TVI_ROOT = &g_rootSentinel;
const HTREEITEM TVI_FIRST = &g_firstSentinel;
const HTREEITEM TVI_LAST = &g_lastSentinel;

CTreeStore::CTreeStore() : m_pRoot(std::make_unique<CTreeEntry>()) {
    m_pRoot->m_bExpanded = true;
}

CTreeStore::~CTreeStore() {
    m_pObserver = nullptr;
    DestroyChildren(*m_pRoot);
}

HTREEITEM CTreeStore::Resolve(HTREEITEM parent) const {
    return (parent == TVI_ROOT || parent == nullptr) ? m_pRoot.get() : parent;
}

void CTreeStore::Renumber(CTreeEntry& parent, std::size_t from) {
    for (std::size_t i = from; i < parent.m_children.size(); ++i) {
        parent.m_children[i]->m_nRow = static_cast<std::uint32_t>(i);
    }
}

std::string_view CTreeEntry::Label() const {
    if (m_pLabel) {
        return *m_pLabel;
    }
    return m_pData ? m_pData->Label() : std::string_view();
}

HTREEITEM CTreeStore::InsertItem(std::string label, HTREEITEM parent, HTREEITEM insertAfter) {
    auto text = std::make_unique<std::string>(std::move(label));
    std::unique_ptr<CTreeItemData> noData;
    return Insert(text, noData, parent, insertAfter);
}

// The entry is made here, in its place among the children, rather than handed in: a file read
// in inserts a million of them.
HTREEITEM CTreeStore::Insert(std::unique_ptr<std::string>& label,
                             std::unique_ptr<CTreeItemData>& data, HTREEITEM parent,
                             HTREEITEM insertAfter) {
    if (parent == TVI_FIRST || parent == TVI_LAST) {
        return nullptr;
    }
    CTreeEntry& owner = *Resolve(parent);
    std::size_t row = owner.m_children.size();
    if (insertAfter == TVI_FIRST) {
        row = 0;
    } else if (insertAfter != TVI_LAST && insertAfter != nullptr && insertAfter != TVI_ROOT &&
               insertAfter->m_pParent == &owner) {
        row = insertAfter->m_nRow + 1;
    }
    if (CTreeObserver* observer = Told()) {
        observer->BeforeInsert(&owner, row);
    }
    // Room first, so that the entry is owned from the moment it exists. A parent's first child
    // brings room for a few more: most echelons hold several.
    if (owner.m_children.size() == owner.m_children.capacity()) {
        owner.m_children.reserve(owner.m_children.empty() ? 8 : 2 * owner.m_children.size());
    }
    // A file read in appends every entry: that takes no shifting.
    const auto at = owner.m_children.begin() + static_cast<std::ptrdiff_t>(row);
    CTreeEntry& entry =
        *(row == owner.m_children.size() ? owner.m_children.emplace_back(new CTreeEntry)
                                         : *owner.m_children.emplace(at, new CTreeEntry));
    entry.m_pLabel = std::move(label);
    entry.m_pData = std::move(data);
    entry.m_pParent = &owner;
    entry.m_nRow = static_cast<std::uint32_t>(row);
    if (row + 1 < owner.m_children.size()) {
        Renumber(owner, row + 1);
    }
    ++m_nCount;
    if (CTreeObserver* observer = Told()) {
        observer->AfterInsert(&entry);
    }
    return &entry;
}

void CTreeStore::SetItemText(HTREEITEM entry, std::string label) {
    entry->m_pLabel = std::make_unique<std::string>(std::move(label));
    if (CTreeObserver* observer = Told()) {
        observer->LabelChanged(entry);
    }
}

void CTreeStore::SetItemData(HTREEITEM entry, std::unique_ptr<CTreeItemData> data) {
    entry->m_pData = std::move(data);
}

CTreeItemData* CTreeStore::GetItemData(HTREEITEM entry) const {
    return entry ? entry->m_pData.get() : nullptr;
}

std::string_view CTreeStore::GetItemText(HTREEITEM entry) const {
    return entry->Label();
}

bool CTreeStore::ItemHasChildren(HTREEITEM entry) const {
    return !Resolve(entry)->m_children.empty();
}

HTREEITEM CTreeStore::GetNextItem(HTREEITEM entry, TreeNext code) const {
    switch (code) {
        case TVGN_ROOT:
            return m_pRoot->m_children.empty() ? nullptr : m_pRoot->m_children.front().get();
        case TVGN_CARET:
            return m_hCaret;
        default:
            break;
    }
    if (entry == nullptr) {
        return nullptr;
    }
    if (code == TVGN_CHILD) {
        const CTreeEntry& e = *Resolve(entry);
        return e.m_children.empty() ? nullptr : e.m_children.front().get();
    }
    // The root, by its special handle or as the hidden entry views know it, has no siblings and
    // no parent.
    if (entry == TVI_ROOT || entry == m_pRoot.get()) {
        return nullptr;
    }
    const CTreeEntry& parent = *entry->m_pParent;
    switch (code) {
        case TVGN_NEXT:
            return entry->m_nRow + 1 < parent.m_children.size()
                       ? parent.m_children[entry->m_nRow + 1].get()
                       : nullptr;
        case TVGN_PREVIOUS:
            return entry->m_nRow > 0 ? parent.m_children[entry->m_nRow - 1].get() : nullptr;
        case TVGN_PARENT:
            return entry->m_pParent == m_pRoot.get() ? nullptr : entry->m_pParent;
        default:
            return nullptr;
    }
}

bool CTreeStore::SelectItem(HTREEITEM entry) {
    if (entry == TVI_ROOT || entry == TVI_FIRST || entry == TVI_LAST || entry == m_pRoot.get()) {
        return false;
    }
    m_hCaret = entry;
    if (CTreeObserver* observer = Told()) {
        observer->CaretChanged(entry);
    }
    return true;
}

bool CTreeStore::IsInSubtree(HTREEITEM entry, HTREEITEM ancestor) const {
    for (HTREEITEM e = entry; e != nullptr; e = e->m_pParent) {
        if (e == ancestor) {
            return true;
        }
    }
    return false;
}

// Destroys the children of entry bottom-up without recursion, so a deep tree cannot exhaust the
// stack. Returns how many entries were destroyed.
// The entries go in the reverse of the order a reader makes them (pre-order), and the pool hands
// freed blocks out last in, first out: the next tree read gets them back in its own order and
// lies in memory as the writers walk it. Destroyed in another order, a tree read after one was
// closed is scattered, and every walk over a large one waits on memory at each entry.
std::size_t CTreeStore::DestroyChildren(CTreeEntry& entry) {
    std::vector<std::unique_ptr<CTreeEntry>> pending(
        std::make_move_iterator(entry.m_children.rbegin()),
        std::make_move_iterator(entry.m_children.rend()));
    entry.m_children.clear();
    std::vector<std::unique_ptr<CTreeEntry>> preOrder;
    while (!pending.empty()) {
        std::unique_ptr<CTreeEntry> e = std::move(pending.back());
        pending.pop_back();
        for (auto child = e->m_children.rbegin(); child != e->m_children.rend(); ++child) {
            pending.push_back(std::move(*child));
        }
        e->m_children.clear();
        preOrder.push_back(std::move(e));
    }
    const std::size_t destroyed = preOrder.size();
    while (!preOrder.empty()) {
        preOrder.pop_back();
    }
    return destroyed;
}

// Takes entry out of its parent's children, the caret and the observer told first; the entry
// keeps its subtree, and the caller says when the observer hears that the removal is over.
std::unique_ptr<CTreeEntry> CTreeStore::Unlink(HTREEITEM entry) {
    if (m_hCaret && IsInSubtree(m_hCaret, entry)) {
        SelectItem(nullptr);
    }
    if (CTreeObserver* observer = Told()) {
        observer->BeforeRemove(entry);
    }
    CTreeEntry& parent = *entry->m_pParent;
    const std::size_t row = entry->m_nRow;
    std::unique_ptr<CTreeEntry> owned = std::move(parent.m_children[row]);
    parent.m_children.erase(parent.m_children.begin() + static_cast<std::ptrdiff_t>(row));
    Renumber(parent, row);
    return owned;
}

bool CTreeStore::DeleteItem(HTREEITEM entry) {
    if (entry == nullptr || entry == TVI_FIRST || entry == TVI_LAST) {
        return false;
    }
    if (entry == TVI_ROOT || entry == m_pRoot.get()) {
        if (CTreeObserver* observer = Told()) {
            observer->BeforeReset();
        }
        m_hCaret = nullptr;
        DestroyChildren(*m_pRoot);
        m_nCount = 0;
        if (CTreeObserver* observer = Told()) {
            observer->AfterReset();
        }
        return true;
    }
    std::unique_ptr<CTreeEntry> owned = Unlink(entry);
    m_nCount -= DestroyChildren(*owned) + 1;
    owned.reset();
    if (CTreeObserver* observer = Told()) {
        observer->AfterRemove();
    }
    return true;
}

CDetachedSubtree& CDetachedSubtree::operator=(CDetachedSubtree&& other) noexcept {
    if (this != &other) {
        if (m_pRoot) {
            CTreeStore::DestroyChildren(*m_pRoot);
        }
        m_pRoot = std::move(other.m_pRoot);
        m_nCount = std::exchange(other.m_nCount, 0);
    }
    return *this;
}

CDetachedSubtree::~CDetachedSubtree() {
    if (m_pRoot) {
        CTreeStore::DestroyChildren(*m_pRoot);
    }
}

CDetachedSubtree CTreeStore::Detach(HTREEITEM entry) {
    CDetachedSubtree detached;
    if (entry == nullptr || entry == TVI_ROOT || entry == TVI_FIRST || entry == TVI_LAST ||
        entry == m_pRoot.get()) {
        return detached;
    }
    detached.m_pRoot = Unlink(entry);
    entry->m_pParent = nullptr;
    // Counted once here, so that putting the subtree back does not walk it again.
    std::size_t count = 0;
    std::vector<const CTreeEntry*> pending{entry};
    while (!pending.empty()) {
        const CTreeEntry* e = pending.back();
        pending.pop_back();
        ++count;
        for (const auto& child : e->m_children) {
            pending.push_back(child.get());
        }
    }
    detached.m_nCount = count;
    m_nCount -= count;
    if (CTreeObserver* observer = Told()) {
        observer->AfterRemove();
    }
    return detached;
}

HTREEITEM CTreeStore::Attach(CDetachedSubtree&& subtree, HTREEITEM parent, std::size_t row) {
    if (!subtree.m_pRoot || parent == TVI_FIRST || parent == TVI_LAST) {
        return nullptr;
    }
    CTreeEntry& owner = *Resolve(parent);
    row = std::min(row, owner.m_children.size());
    if (CTreeObserver* observer = Told()) {
        observer->BeforeInsert(&owner, row);
    }
    CTreeEntry& root = **owner.m_children.insert(
        owner.m_children.begin() + static_cast<std::ptrdiff_t>(row), std::move(subtree.m_pRoot));
    root.m_pParent = &owner;
    Renumber(owner, row);
    m_nCount += std::exchange(subtree.m_nCount, 0);
    if (CTreeObserver* observer = Told()) {
        observer->AfterInsert(&root);
    }
    return &root;
}

std::unique_ptr<CTreeItemData> CTreeStore::ExchangeItemData(HTREEITEM entry,
                                                            std::unique_ptr<CTreeItemData> data) {
    std::swap(entry->m_pData, data);
    if (CTreeObserver* observer = Told()) {
        observer->LabelChanged(entry);
    }
    return data;
}

bool CTreeStore::Expand(HTREEITEM entry, TreeExpand how) {
    if (entry == nullptr || entry == TVI_FIRST || entry == TVI_LAST) {
        return false;
    }
    CTreeEntry& e = *Resolve(entry);
    const bool was = e.m_bExpanded;
    e.m_bExpanded = how == TVE_TOGGLE ? !was : how == TVE_EXPAND;
    CTreeObserver* observer = Told();
    if (observer && was != e.m_bExpanded) {
        observer->ExpandChanged(&e);
    }
    return true;
}

void CTreeStore::BeginBulkChange() {
    if (m_nBulk++ == 0 && m_pObserver) {
        m_pObserver->BeforeReset();
    }
}

void CTreeStore::EndBulkChange() {
    if (--m_nBulk == 0 && m_pObserver) {
        m_pObserver->AfterReset();
        m_pObserver->CaretChanged(m_hCaret);
    }
}
