#include "model/EditCommands.h"

#include "model/OobItem.h"

// The top-level entries taken out of the tree, last first (no shifting), in their order.
std::vector<CDetachedSubtree> DetachAll(CTreeStore& tree) {
    std::vector<CDetachedSubtree> roots(tree.HiddenRoot()->ChildCount());
    for (std::size_t i = roots.size(); i-- > 0;) {
        roots[i] = tree.Detach(tree.HiddenRoot()->Child(i));
    }
    return roots;
}

void AttachAll(CTreeStore& tree, std::vector<CDetachedSubtree>& roots) {
    for (std::size_t i = 0; i < roots.size(); ++i) {
        tree.Attach(std::move(roots[i]), TVI_ROOT, i);
    }
    roots.clear();
}

void CWholeTreeCommand::Do(CTreeStore& tree) {
    CTreeStore::CBulkChange bulk(tree);
    std::vector<CDetachedSubtree> live = DetachAll(tree);
    AttachAll(tree, m_other);
    m_other = std::move(live);
    tree.SelectItem(tree.GetRootItem());
}

// The top-level count is taken first, so that copying a tree into itself stops at its own end.
void AppendCopy(const CTreeStore& source, CTreeStore& target) {
    const std::size_t roots = source.HiddenRoot()->ChildCount();
    std::vector<std::pair<HTREEITEM, HTREEITEM>> pending;  // original, parent of its copy
    for (std::size_t i = roots; i-- > 0;) {
        pending.emplace_back(source.HiddenRoot()->Child(i), TVI_ROOT);
    }
    while (!pending.empty()) {
        const auto [original, parent] = pending.back();
        pending.pop_back();
        const COobItem* item = ItemOf(source, original);
        const HTREEITEM copy =
            item ? target.InsertItem(item->Clone(), parent)
                 : target.InsertItem(std::string(source.GetItemText(original)), parent);
        if (original->Expanded()) {
            target.Expand(copy, TVE_EXPAND);
        }
        for (std::size_t i = original->ChildCount(); i-- > 0;) {
            pending.emplace_back(original->Child(i), copy);
        }
    }
}
