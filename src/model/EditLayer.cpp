#include "model/EditLayer.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "base/Result.h"
#include "model/EditCommands.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Session.h"

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
    Changed();
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
            Changed();
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
    Changed();
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
    Changed();
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
    return Insert(parent, [&](CTreeStore& tree) {
        document->m_reader.PasteFromList(tree, parent, after, lines);
    });
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
            AppendCopy(tree, tree);
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
