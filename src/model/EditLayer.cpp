#include "model/EditLayer.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "base/Result.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Session.h"

namespace {

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

// The whole tree exchanged with another kept here; the view hears one reset.
class CWholeTreeCommand : public CEditCommand {
public:
    explicit CWholeTreeCommand(std::vector<CDetachedSubtree> other) : m_other(std::move(other)) {}

    void Do(CTreeStore& tree) override {
        CTreeStore::CBulkChange bulk(tree);
        std::vector<CDetachedSubtree> live = DetachAll(tree);
        AttachAll(tree, m_other);
        m_other = std::move(live);
        tree.SelectItem(tree.GetRootItem());
    }
    void Undo(CTreeStore& tree) override { Do(tree); }
    bool EndsMark() const override { return true; }

private:
    std::vector<CDetachedSubtree> m_other;
};

// Copies of every entry of the tree, with their items and expansion, appended at the top level.
void AppendCopy(CTreeStore& tree) {
    const std::size_t roots = tree.HiddenRoot()->ChildCount();
    std::vector<std::pair<HTREEITEM, HTREEITEM>> pending;  // original, parent of its copy
    for (std::size_t i = roots; i-- > 0;) {
        pending.emplace_back(tree.HiddenRoot()->Child(i), TVI_ROOT);
    }
    while (!pending.empty()) {
        const auto [original, parent] = pending.back();
        pending.pop_back();
        const COobItem* item = ItemOf(tree, original);
        const HTREEITEM copy =
            item ? tree.InsertItem(item->Clone(), parent)
                 : tree.InsertItem(std::string(tree.GetItemText(original)), parent);
        if (original->Expanded()) {
            tree.Expand(copy, TVE_EXPAND);
        }
        for (std::size_t i = original->ChildCount(); i-- > 0;) {
            pending.emplace_back(original->Child(i), copy);
        }
    }
}

}  // namespace

CEditLayer::CEditLayer(CSession& session) : m_session(session) {}

CEditLayer::~CEditLayer() = default;

void CEditLayer::Reset() {
    m_steps.clear();
    m_nDone = 0;
    m_nDropped = 0;
    m_group.reset();
    m_nGroupDepth = 0;
    m_oobClean = 0;
    m_backupClean.reset();
}

void CEditLayer::BeginGroup() {
    if (m_nGroupDepth++ == 0) {
        m_group = CStep{{}, m_session.m_mark, m_session.m_tree.GetSelectedItem(), nullptr};
    }
}

void CEditLayer::EndGroup() {
    if (--m_nGroupDepth == 0) {
        CStep step = std::move(*m_group);
        m_group.reset();
        if (!step.commands.empty()) {
            Push(std::move(step));
        }
    }
}

void CEditLayer::Run(std::unique_ptr<CEditCommand> command) {
    CGroup group(*this);
    command->Do(m_session.m_tree);
    CheckMark(command->EndsMark());
    m_group->commands.push_back(std::move(command));
}

void CEditLayer::Push(CStep step) {
    // What could be redone is gone, and with it a clean state that lay there.
    m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_nDone), m_steps.end());
    for (std::optional<std::size_t>* clean : {&m_oobClean, &m_backupClean}) {
        if (*clean && **clean > Position()) {
            clean->reset();
        }
    }
    m_steps.push_back(std::move(step));
    ++m_nDone;
    // The oldest step goes; a clean state before it can no longer be reached, and as positions
    // count from the first step ever, it never equals the position again.
    if (m_steps.size() > kMaxSteps) {
        m_steps.pop_front();
        --m_nDone;
        ++m_nDropped;
    }
}

// Entries leave the tree only by commands that end the mark, or by undoing the step that made
// them, which gives back the mark found before they existed: the mark never names an entry
// that is gone.
void CEditLayer::CheckMark(bool ended) {
    if (ended) {
        m_session.m_mark = CClipMark{};
    }
}

bool CEditLayer::CanUndo() const {
    return m_nDone > 0 && m_nGroupDepth == 0;
}

bool CEditLayer::CanRedo() const {
    return m_nDone < m_steps.size() && m_nGroupDepth == 0;
}

void CEditLayer::Undo() {
    if (!CanUndo()) {
        return;
    }
    CStep& step = m_steps[--m_nDone];
    CTreeStore& tree = m_session.m_tree;
    step.caretAfter = tree.GetSelectedItem();
    for (auto command = step.commands.rbegin(); command != step.commands.rend(); ++command) {
        (*command)->Undo(tree);
    }
    m_session.m_mark = step.found;
    tree.SelectItem(step.caretBefore);
}

void CEditLayer::Redo() {
    if (!CanRedo()) {
        return;
    }
    CStep& step = m_steps[m_nDone++];
    CTreeStore& tree = m_session.m_tree;
    step.caretBefore = tree.GetSelectedItem();
    step.found = m_session.m_mark;
    for (const auto& command : step.commands) {
        command->Do(tree);
        CheckMark(command->EndsMark());
    }
    tree.SelectItem(step.caretAfter);
}

HTREEITEM CEditLayer::Insert(HTREEITEM parent, const std::function<void(CTreeStore&)>& fill) {
    CTreeStore& tree = m_session.m_tree;
    const HTREEITEM owner = parent == TVI_ROOT || parent == nullptr ? tree.HiddenRoot() : parent;
    CGroup group(*this);
    std::unordered_set<HTREEITEM> old;
    old.reserve(owner->ChildCount());
    for (std::size_t i = 0; i < owner->ChildCount(); ++i) {
        old.insert(owner->Child(i));
    }
    fill(tree);
    std::vector<HTREEITEM> made;
    for (std::size_t i = 0; i < owner->ChildCount(); ++i) {
        if (!old.contains(owner->Child(i))) {
            made.push_back(owner->Child(i));
        }
    }
    if (made.empty()) {
        return nullptr;
    }
    // Already in the tree: recorded as done.
    m_group->commands.push_back(std::make_unique<CInsertCommand>(owner, made));
    return made.front();
}

HTREEITEM CEditLayer::InsertLines(HTREEITEM parent, HTREEITEM after, const CLineStore& lines) {
    COobDocument* document = m_session.Document();
    if (!document) {
        return nullptr;
    }
    return Insert(parent,
                  [&](CTreeStore& tree) { document->m_reader.PasteFromList(tree, parent, after, lines); });
}

HTREEITEM CEditLayer::InsertItem(HTREEITEM parent, HTREEITEM after,
                                 std::unique_ptr<COobItem> item) {
    return Insert(parent,
                  [&](CTreeStore& tree) { tree.InsertItem(std::move(item), parent, after); });
}

void CEditLayer::Remove(HTREEITEM entry) {
    if (entry && entry->Parent()) {
        Run(std::make_unique<CRemoveCommand>(entry));
    }
}

void CEditLayer::Move(HTREEITEM entry, HTREEITEM parent, HTREEITEM after) {
    CTreeStore& tree = m_session.m_tree;
    if (!entry || !entry->Parent() || after == entry || tree.IsInSubtree(parent, entry)) {
        return;
    }
    const HTREEITEM owner = parent == TVI_ROOT || parent == nullptr ? tree.HiddenRoot() : parent;
    const HTREEITEM caret = tree.GetSelectedItem();
    Run(std::make_unique<CMoveCommand>(entry, owner, after ? after : TVI_LAST));
    tree.SelectItem(caret);
}

void CEditLayer::Rename(HTREEITEM entry, const std::string& text) {
    const COobItem* item = ItemOf(m_session.m_tree, entry);
    if (!item) {
        return;
    }
    std::unique_ptr<COobItem> renamed = item->Clone();
    renamed->m_strName = text;
    ReplaceFields(entry, std::move(renamed));
}

void CEditLayer::ReplaceFields(HTREEITEM entry, std::unique_ptr<COobItem> edited) {
    if (entry && edited) {
        Run(std::make_unique<CExchangeCommand>(entry, std::move(edited)));
    }
}

int CEditLayer::ReplaceTree(const std::function<int(CTreeStore&)>& fill) {
    return WholeTree(false, fill);
}

int CEditLayer::ChangeTree(const std::function<int(CTreeStore&)>& change) {
    return WholeTree(true, change);
}

// The old entries are kept, not the copy: the handles that the history and the mark hold are
// theirs, and Undo puts them back.
int CEditLayer::WholeTree(bool copyFirst, const std::function<int(CTreeStore&)>& fill) {
    CTreeStore& tree = m_session.m_tree;
    CGroup group(*this);
    int result = RESULT_DONE;
    std::vector<CDetachedSubtree> old;
    {
        CTreeStore::CBulkChange bulk(tree);
        const std::size_t roots = tree.HiddenRoot()->ChildCount();
        if (copyFirst) {
            AppendCopy(tree);
        }
        // Taken from the end, so that no row shifts.
        std::vector<CDetachedSubtree> all = DetachAll(tree);
        std::vector<CDetachedSubtree> copies(std::make_move_iterator(all.begin() + roots),
                                             std::make_move_iterator(all.end()));
        all.resize(roots);
        old = std::move(all);
        AttachAll(tree, copies);
        result = fill(tree);
        if (result != RESULT_DONE) {
            tree.DeleteAllItems();
            AttachAll(tree, old);
        }
        tree.SelectItem(tree.GetRootItem());
    }
    if (result == RESULT_DONE) {
        m_group->commands.push_back(std::make_unique<CWholeTreeCommand>(std::move(old)));
        CheckMark(true);
    }
    return result;
}
