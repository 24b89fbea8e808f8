// An open workspace and everything that hangs on it: the workspace, the game database, the
// document, the tree of the order of battle, the status of the order-of-battle and backup files
// and the clipboard mark. The editor's main window and harnwick-cli open and save through it,
// and change the tree only through its edit layer.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/Result.h"
#include "base/TreeStore.h"
#include "model/ClipMark.h"
#include "model/EditLayer.h"

class CGameDatabase;
class COobDocument;
class CReaderPrompts;
class CWorkspace;

class CSession {
public:
    // prompts answers the reader's questions for every database the session loads.
    explicit CSession(CReaderPrompts& prompts);
    ~CSession();
    CSession(const CSession&) = delete;
    CSession& operator=(const CSession&) = delete;

    // A database read from targetFile (result: Load's) that asks this session's prompts.
    std::unique_ptr<CGameDatabase> LoadDatabase(const std::string& targetFile,
                                                int* result = nullptr) const;
    // Writes the skeleton of a new order of battle for database to path.
    static CWriteResult WriteSkeleton(CGameDatabase& database, const std::string& path);
    // Makes the workspace and database the open ones, with a new document, and the
    // tree that the workspace's order-of-battle file holds; the history forgotten, the
    // order-of-battle field " " and the backup field "*". Gives the read's result; a file that
    // does not open leaves the tree empty.
    int Open(std::unique_ptr<CWorkspace> workspace, std::unique_ptr<CGameDatabase> database);
    // No workspace: an empty tree, both fields "-".
    void Close();
    bool IsOpen() const { return m_pWorkspace != nullptr; }

    // Writes the tree to the document's file, then the workspace file; the order-of-battle
    // field becomes " " when both are written, else stays as it was.
    CWriteResult Save();
    // Writes the tree to path, which becomes the document's file.
    CWriteResult SaveOobAs(const std::string& path);
    // Writes the tree to the workspace's backup file; the backup field becomes " " when it is
    // written. The document's file stays the order-of-battle file.
    CWriteResult SaveBackup();
    // The backup file's text becomes the order-of-battle file's, and the tree what it holds: one
    // step of the history, both fields " ". RESULT_CANNOT_OPEN (error: the backup's path) when
    // the backup does not open, or the failed write; the tree and both files then stay as they
    // were.
    CWriteResult RestoreBackup();
    // Whether the workspace names a backup file. A picker cancelled in "Workspace Properties"
    // leaves the word "empty" there, which names no file the user chose.
    bool HasBackupFile() const;

    // The status fields: "-" no workspace, " " the file holds the tree, "*" it does not.
    const char* OobStatus() const;
    const char* BackupStatus() const;

    // Copy and Cut: entry and the lines of its subtree become the mark.
    void Mark(HTREEITEM entry, ClipMode mode);
    void ClearMark() { m_mark = CClipMark{}; }
    const CClipMark& Mark() const { return m_mark; }
    // "Marked item", "Marked item [Copy]" or "Marked item [Cut]".
    const char* MarkedCaption() const;
    // The marked entry's label, or "empty".
    std::string MarkedName() const;

    // The order of battle, to read; it changes only through Edit().
    const CTreeStore& Tree() const { return m_tree; }
    // The same store for a view to bind to: the view moves the caret and expands entries.
    CTreeStore& ViewStore() { return m_tree; }
    CEditLayer& Edit() { return m_edit; }
    const CEditLayer& Edit() const { return m_edit; }

    // Told of every line the reader of an order-of-battle file passes over (the batch tool's
    // check lists them).
    std::function<void(int lineNumber, const std::string& line)> m_onPassedOver;

    CWorkspace* Workspace() const { return m_pWorkspace.get(); }
    CGameDatabase* Database() const { return m_pDatabase.get(); }
    COobDocument* Document() const { return m_pDocument.get(); }

private:
    friend class CEditLayer;

    CReaderPrompts& m_prompts;
    // Declared before the tree: items hold pointers into it, so it goes after them.
    std::unique_ptr<CGameDatabase> m_pDatabase;
    std::unique_ptr<COobDocument> m_pDocument;
    std::unique_ptr<CWorkspace> m_pWorkspace;
    CTreeStore m_tree;
    CClipMark m_mark;
    CEditLayer m_edit{*this};  // after the tree: the history holds its detached entries
};
