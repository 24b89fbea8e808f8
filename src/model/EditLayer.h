// The one door through which the order of battle changes. Every change is a command that can be
// undone and done again; the layer keeps the last 100 steps, the clean marks behind the two
// status fields and the clipboard mark right, and the tree store tells the view exactly which
// rows changed. The history holds detached subtrees and replaced items, never a second tree.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/LineStore.h"
#include "base/TreeStore.h"
#include "model/ClipMark.h"

class COobItem;
class CSession;

// One reversible change. Do runs it the first time and again on Redo.
class CEditCommand {
public:
    virtual ~CEditCommand() = default;
    virtual void Do(CTreeStore& tree) = 0;
    virtual void Undo(CTreeStore& tree) = 0;
    // Removing entries ends the clipboard mark, as Delete does.
    virtual bool EndsMark() const { return false; }
};

class CEditLayer {
public:
    static constexpr std::size_t kMaxSteps = 100;

    explicit CEditLayer(CSession& session);
    ~CEditLayer();
    CEditLayer(const CEditLayer&) = delete;
    CEditLayer& operator=(const CEditLayer&) = delete;

    // Items built from order-of-battle lines (a paste) under parent after the sibling after
    // (TVI_FIRST: first, TVI_LAST: last). Gives the first entry made, or none.
    HTREEITEM InsertLines(HTREEITEM parent, HTREEITEM after, const CLineStore& lines);
    // A new item (Add) under parent after the sibling after.
    HTREEITEM InsertItem(HTREEITEM parent, HTREEITEM after, std::unique_ptr<COobItem> item);
    // Whatever fill inserts under parent (a template): one step. Gives the first entry made.
    HTREEITEM Insert(HTREEITEM parent, const std::function<void(CTreeStore&)>& fill);
    // The entry and its subtree out of the tree; ends the clipboard mark.
    void Remove(HTREEITEM entry);
    // The entry with its subtree under parent after the sibling after; nothing when parent lies
    // inside the entry's own subtree.
    void Move(HTREEITEM entry, HTREEITEM parent, HTREEITEM after);
    // The item's name (and so the entry's label) becomes text.
    void Rename(HTREEITEM entry, const std::string& text);
    // The entry's item becomes edited, a changed clone of it (an accepted editor).
    void ReplaceFields(HTREEITEM entry, std::unique_ptr<COobItem> edited);
    // The whole tree becomes what fill builds in the emptied store (a restore); the old one is
    // kept for Undo. When fill fails (its result is not RESULT_DONE) the old tree comes back and
    // nothing is recorded. Ends the clipboard mark. Gives fill's result.
    int ReplaceTree(const std::function<int(CTreeStore&)>& fill);
    // change works on a copy of the whole tree that takes its place (an import); the old one is
    // kept for Undo. As ReplaceTree otherwise.
    int ChangeTree(const std::function<int(CTreeStore&)>& change);

    // The commands given between the group's start and end are one step (a paste in Cut mode:
    // the copy in, the marked entry out).
    class CGroup {
    public:
        explicit CGroup(CEditLayer& layer) : m_layer(layer) { m_layer.BeginGroup(); }
        ~CGroup() { m_layer.EndGroup(); }
        CGroup(const CGroup&) = delete;
        CGroup& operator=(const CGroup&) = delete;

    private:
        CEditLayer& m_layer;
    };
    void BeginGroup();
    void EndGroup();

    // Whether a step is being made (a group is open): the tree may be half changed, for
    // instance while a read of a whole tree waits on a question.
    bool InStep() const { return m_nGroupDepth > 0; }

    bool CanUndo() const;
    bool CanRedo() const;
    void Undo();
    void Redo();

    // The history forgotten (New, Load); the tree as it stands is what its file holds, and the
    // backup holds something else.
    void Reset();
    // The tree as it stands is what the order-of-battle file (the backup file) holds.
    void MarkSaved() {
        m_oobClean = Position();
        Changed();
    }
    void MarkBackedUp() { m_backupClean = Position(); }
    // A group still open has changed the tree already (an Add whose editor is still open).
    bool OobClean() const { return m_oobClean == Position() && !GroupChanged(); }
    bool BackupClean() const { return m_backupClean == Position() && !GroupChanged(); }

    std::size_t UndoCount() const { return m_nDone; }

    // Told after every step done, undone or redone, a reset of the history and a save: whenever
    // the tree or what its file holds may have changed.
    std::function<void()> m_onChanged;
    std::size_t RedoCount() const { return m_steps.size() - m_nDone; }

private:
    struct CStep {
        std::vector<std::unique_ptr<CEditCommand>> commands;
        CClipMark found;  // the mark the step found, given back by Undo
        HTREEITEM caretBefore = nullptr;
        HTREEITEM caretAfter = nullptr;
    };

    // Runs command the first time and records it.
    void Run(std::unique_ptr<CEditCommand> command);
    void Push(CStep step);
    // The mark after a command: gone when the command ends it.
    void CheckMark(bool ended);
    // ReplaceTree, and ChangeTree with copyFirst.
    int WholeTree(bool copyFirst, const std::function<int(CTreeStore&)>& fill);
    std::size_t Position() const { return m_nDropped + m_nDone; }
    bool GroupChanged() const { return m_group && !m_group->commands.empty(); }
    void Changed() const {
        if (m_onChanged) {
            m_onChanged();
        }
    }

    CSession& m_session;
    std::deque<CStep> m_steps;
    std::size_t m_nDone = 0;     // steps done; those after them can be redone
    std::size_t m_nDropped = 0;  // oldest steps dropped to keep the bound
    std::optional<std::size_t> m_oobClean;
    std::optional<std::size_t> m_backupClean;
    int m_nGroupDepth = 0;
    std::optional<CStep> m_group;
};
