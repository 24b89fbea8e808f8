// The main window (dialog 102): the order-of-battle tree, the clipboard and status fields, the
// menu of every command, and the session that holds the open workspace.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/EditorPrompts.h"
#include "app/RecentList.h"
#include "base/Result.h"
#include "model/RecoveryFolder.h"
#include "model/Session.h"
#include "model/TreeCommands.h"
#include "platform/Dialog.h"

class CWorkspace;
class CGameDatabase;

class CMainDlg : public CDialog {
public:
    CMainDlg();
    ~CMainDlg() override;

    std::string m_strStartDir;  // the folder every file dialog opens in
    // Answers the reader's questions for every database this window creates.
    CEditorPrompts m_prompts{*this};
    // The open workspace with its tree, status fields and clipboard mark; every change of the
    // tree goes through its edit layer.
    CSession m_session{m_prompts};
    // The order of battle the tree control shows: the session's store.
    const CTreeStore& m_tree = m_session.Tree();
    const CPixelImage* m_hIcon;
    // The workspaces opened last, shown in File, Recent workspaces, and the file that keeps them
    // (none without a configuration folder).
    CRecentList m_recent;
    std::string m_strRecentFile;
    // Where a copy of the order of battle is kept while it has unsaved changes (none without a
    // state folder), and the workspace whose copy this run has written there.
    std::optional<CRecoveryFolder> m_recovery;
    std::string m_strRecoveryOf;

    // A change waits this long for the next before the copy is written.
    static constexpr unsigned kRecoveryDelayMs = 1000;
    static constexpr int kRecoveryTimer = 1;
    // Fires once the window is up, to offer the copies earlier runs left over it.
    static constexpr int kOfferTimer = 2;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    // Escape asks before quitting, as Exit does.
    void OnCancel() override;
    void OnPaint(CPaintDC& dc) override;

    // File commands.
    void OnNewEmptyOob();
    void OnNewAttachedOob();
    void OnNewExistingOob();
    void OnLoad();
    void OnSave();
    void OnSaveAs();
    void OnWorkspaceProperties();
    void OnExit();
    // Edit commands and tree gestures.
    void OnItemProperties();
    void OnCopy();
    void OnCut();
    void OnAddNext(int command);
    void OnAddChild(int command);
    void OnPasteNext();
    void OnPasteChild();
    void OnAddTemplateNext();
    void OnAddTemplateChild();
    void OnDeleteItem();
    void OnDeleteChildren();
    void OnSaveItemToFile();
    void OnSaveAsTemplate();
    void OnEnterKey();
    void OnContextMenu();
    void OnTreeDblClick();
    bool OnRenameEntry(HTREEITEM entry, const std::string* text);
    // Options, reports and About.
    void OnArmiesSummary();
    void OnFindItem();
    void OnBackupSave();
    void OnBackupRestore();
    void OnGetData();
    void OnSaveTargetFile();
    void OnReport(int command);
    void OnAbout();
    void OnUndo();
    void OnRedo();
    void OnRecentWorkspace(std::size_t index);

    // Helpers of the File commands. SaveFilesPrompt gives false when the user wanted the files
    // saved and a write failed, so that the command that asked goes no further. A command that
    // is to replace the tree (New, Load) passes replacing: a No then discards the recovery copy.
    bool SaveFilesPrompt(bool replacing = false);
    void OpenWorkspace(std::unique_ptr<CWorkspace> workspace,
                       std::unique_ptr<CGameDatabase> database);
    // Copies the file source into destination; RESULT_DONE, RESULT_CANNOT_OPEN (source) or
    // RESULT_CANNOT_WRITE (destination, left as it was).
    static CWriteResult CopyFileText(const std::string& source, const std::string& destination);

private:
    void MapCommands();
    // The recent list: read at start, a workspace opened put first, the menu shown anew.
    void LoadRecentWorkspaces();
    void RememberWorkspace(const std::string& path);
    void ShowRecentWorkspaces();
    // The recovery copy: its timer started on a change while the order-of-battle field is "*",
    // the copy written when it fires, and removed once the field is " " again.
    void OnTreeChanged();
    void WriteRecoveryCopy();
    void DiscardRecoveryCopy();
    // At start, each copy newer than its file is offered: restored (the workspace opened with
    // the copy's tree, unsaved) or discarded.
    void OfferRecoveredCopies();
    bool RestoreRecoveredCopy(const CRecoveryFolder::CCopy& copy);
    // The steps New Empty and New Existing share.
    void NewWorkspace(const char* question, std::uint16_t oobOpenMode, bool createDefault);
    // Asks with Yes and No; true on Yes.
    bool Ask(const std::string& question, const std::string& caption);
    // A workspace file picker in the start folder; the chosen path, or none when cancelled.
    std::optional<std::string> PickWorkspaceFile(bool open);
    // A fresh workspace at path, edited in "Workspace Properties"; none unless accepted.
    std::unique_ptr<CWorkspace> EditNewWorkspace(const std::string& path, bool load,
                                                 std::uint16_t mode, std::uint16_t oobOpenMode);
    void ShowWriteError(const CWriteResult& result);
    // Add child and Add next: the type asked for, the new item put at place and, for a unit,
    // leader or supply train, its editor opened; false when nothing was added.
    bool AddNewItem(int command, const std::optional<CAddPlace>& place);

    bool m_bRecoveryDue = false;  // a change waits for its copy
};

// The start folder from START.INI's first line: up to the line feed, one carriage return
// before it dropped, at most 249 characters.
std::string ReadStartDir(std::istream& in);
