// The main window (dialog 102): the order-of-battle tree, the clipboard and status fields, the
// menu of every command, and the three objects of an open workspace.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/EditorPrompts.h"
#include "base/Result.h"
#include "platform/Dialog.h"

class COobDocument;
class CWorkspace;
class CGameDatabase;

class CMainDlg : public CDialog {
public:
    CMainDlg();
    ~CMainDlg() override;

    std::uint8_t m_nClipMode = 0;  // 0 nothing marked, 1 Cut, 2 Copy
    HTREEITEM m_hMarked = nullptr;
    std::string m_strStartDir;  // the folder every file dialog opens in
    // All three set (a workspace is open) or all none.
    std::unique_ptr<COobDocument> m_pDocument;
    std::unique_ptr<CWorkspace> m_pWorkspace;
    std::unique_ptr<CGameDatabase> m_pDatabase;
    CListBox m_clipList;  // the copied subtree's lines
    CTreeCtrl m_tree;     // the order of battle; each entry owns its item
    std::string m_strOobStatus;
    std::string m_strBackupStatus;
    std::string m_strMarkedName;
    std::string m_strMarkedCaption;
    const CPixelImage* m_hIcon;
    // Answers the reader's questions for every database this window creates.
    CEditorPrompts m_prompts{*this};

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

    // Helpers of the File commands. SaveFilesPrompt gives false when the user wanted the files
    // saved and a write failed, so that the command that asked goes no further.
    bool SaveFilesPrompt();
    void OpenWorkspace(std::unique_ptr<CWorkspace> workspace,
                       std::unique_ptr<CGameDatabase> database);
    // A database loaded from targetFile that asks this window about unknown records.
    std::unique_ptr<CGameDatabase> LoadDatabase(const std::string& targetFile);
    // Copies the file source into destination; RESULT_DONE, RESULT_CANNOT_OPEN (source) or
    // RESULT_CANNOT_WRITE (destination, left as it was).
    static CWriteResult CopyFileText(const std::string& source, const std::string& destination);
    // Nothing marked: New, Load, Delete and a paste in Cut mode end every mark.
    void ClearClipboard();

private:
    void MapCommands();
    // The steps New Empty and New Existing share.
    void NewWorkspace(const char* question, std::uint16_t oobOpenMode, bool createDefault);
    // Asks with Yes and No; true on Yes.
    bool Ask(const std::string& question, const std::string& caption);
    // A workspace file picker in the start folder; the chosen path, or none when cancelled.
    std::optional<std::string> PickWorkspaceFile(bool open);
    // A fresh workspace at path, edited in "Workspace Properties"; none unless accepted.
    std::unique_ptr<CWorkspace> EditNewWorkspace(const std::string& path, bool load,
                                                 std::uint16_t mode, std::uint16_t oobOpenMode);
    // Makes the three objects current, the old ones and the old tree gone.
    void Install(std::unique_ptr<CWorkspace> workspace, std::unique_ptr<CGameDatabase> database);
    void ShowWriteError(const CWriteResult& result);
};

// The start folder from START.INI's first line: up to the line feed, one carriage return
// before it dropped, at most 249 characters.
std::string ReadStartDir(std::istream& in);
