// The File commands: New (empty, existing, attached), Load, Save, Save as and Properties, and
// the helpers they share.
#include "app/MainDlg.h"
#include "base/FileWriter.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "dialogs/AttachedDlg.h"
#include "dialogs/WorkspaceDlg.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/Workspace.h"
#include "platform/FileDialog.h"

namespace {
constexpr const char* kWorkspaceFilter = "Workspace Files (*.txt)|*.txt|";
constexpr const char* kNewTitle = "New Order of Battle";
}  // namespace

bool CMainDlg::Ask(const std::string& question, const std::string& caption) {
    return MessageBox(question, caption, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void CMainDlg::ShowWriteError(const CWriteResult& result) {
    MessageBox("Cannot write " + result.error, "Error", MB_ICONEXCLAMATION);
}

std::optional<std::string> CMainDlg::PickWorkspaceFile(bool open) {
    CFileDialog picker(open, "txt", "", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, kWorkspaceFilter,
                       this);
    picker.m_strInitialDir = m_strStartDir;
    if (picker.DoModal() != IDOK) {
        return std::nullopt;
    }
    return picker.GetPathName();
}

std::unique_ptr<CWorkspace> CMainDlg::EditNewWorkspace(const std::string& path, bool load,
                                                       std::uint16_t mode,
                                                       std::uint16_t oobOpenMode) {
    auto workspace = std::make_unique<CWorkspace>();
    workspace->m_strTitle = kNewTitle;
    workspace->m_strPath = path;
    if (load) {
        workspace->Load(path);
    }
    CWorkspaceDlg dlg(*workspace);
    dlg.m_nMode = mode;
    dlg.m_nOpenMode = oobOpenMode;
    dlg.m_strInitialDir = m_strStartDir;
    if (dlg.DoModal() != IDOK) {
        return nullptr;
    }
    return workspace;
}

// A write that fails leaves the status fields as they were, and the command that asked (New
// or Load) stops, so that the changes are not thrown away with the tree.
bool CMainDlg::SaveFilesPrompt(bool replacing) {
    if (std::string(m_session.OobStatus()) != "*") {
        return true;
    }
    if (!Ask("Do you want to save your files?", "Save")) {
        if (replacing) {
            // The changes are given up. Should the command end without replacing the tree after
            // all, the timer writes the copy again.
            DiscardRecoveryCopy();
            OnTreeChanged();
        }
        return true;
    }
    if (const CWriteResult written = m_session.Save(); !written.Done()) {
        ShowWriteError(written);
        return false;
    }
    UpdateData(false);
    return true;
}

// The workspace replaces the open one, with the tree its order-of-battle file holds.
void CMainDlg::OpenWorkspace(std::unique_ptr<CWorkspace> workspace,
                             std::unique_ptr<CGameDatabase> database) {
    const std::string path = workspace->m_strPath;
    m_session.Open(std::move(workspace), std::move(database));
    RememberWorkspace(path);
    UpdateData(false);
}

CWriteResult CMainDlg::CopyFileText(const std::string& source, const std::string& destination) {
    std::string text;
    if (!ReadWholeFile(source, text)) {
        return {RESULT_CANNOT_OPEN, source};
    }
    return ReplaceFile(destination, text);
}

void CMainDlg::NewWorkspace(const char* question, std::uint16_t oobOpenMode, bool createDefault) {
    if (!Ask(question, "New") || !SaveFilesPrompt(true)) {
        return;
    }
    const std::optional<std::string> path = PickWorkspaceFile(false);
    if (!path) {
        return;
    }
    std::unique_ptr<CWorkspace> workspace = EditNewWorkspace(*path, false, 0, oobOpenMode);
    if (!workspace) {
        return;
    }
    std::unique_ptr<CGameDatabase> database = m_session.LoadDatabase(workspace->m_strTargetFile);
    // The skeleton is written before anything is replaced, so that a write that fails leaves
    // the open workspace, its tree and the status fields as they were.
    if (createDefault) {
        const CWriteResult written = CSession::WriteSkeleton(*database, workspace->m_strOobFile);
        if (!written.Done()) {
            ShowWriteError(written);
            return;
        }
    }
    OpenWorkspace(std::move(workspace), std::move(database));
}

void CMainDlg::OnNewEmptyOob() {
    NewWorkspace("Do you want to make a new, empty Order of Battle?", 0, true);
}

void CMainDlg::OnNewExistingOob() {
    NewWorkspace("Do you want to edit an existing Order of Battle?", 1, false);
}

// The attached list is shown before the current workspace is replaced. When it ends with no
// line chosen (the game data lists no attached order of battle) there is nothing to base the
// new one on: the command ends as a cancelled one does and the current workspace stays open.
// A chosen file that does not open leaves no workspace at all; one that cannot be written
// leaves the open workspace as it was.
void CMainDlg::OnNewAttachedOob() {
    if (!Ask("Do you want to make a new Order of Battle basing on an attached one?", "New") ||
        !SaveFilesPrompt(true)) {
        return;
    }
    const std::optional<std::string> path = PickWorkspaceFile(false);
    if (!path) {
        return;
    }
    std::unique_ptr<CWorkspace> workspace = EditNewWorkspace(*path, false, 0, 0);
    if (!workspace) {
        return;
    }
    std::unique_ptr<CGameDatabase> database = m_session.LoadDatabase(workspace->m_strTargetFile);
    CAttachedDlg dlg(*database);
    const int index = dlg.DoModal();
    if (index < 0 || index >= database->m_AttachedOobs.Count()) {
        return;
    }
    // A relative path is taken from the current folder, the one the editor was started in.
    const std::string source =
        static_cast<CAttachedOobRecord&>(*database->m_AttachedOobs.SeekIndex(index)->m_pPayload)
            .m_strFile;
    // The copy is made before anything is replaced, as for New, Empty.
    const CWriteResult copied = CopyFileText(source, workspace->m_strOobFile);
    if (copied == RESULT_CANNOT_OPEN) {
        MessageBox("Bad or missing " + source + " file!", "Error", MB_ICONEXCLAMATION);
        m_session.Close();
        UpdateData(false);
        return;
    }
    if (!copied.Done()) {
        ShowWriteError(copied);
        return;
    }
    OpenWorkspace(std::move(workspace), std::move(database));
}

void CMainDlg::OnLoad() {
    if (!Ask("Do you want to load an existing workspace?", "Load") || !SaveFilesPrompt(true)) {
        return;
    }
    const std::optional<std::string> path = PickWorkspaceFile(true);
    if (!path) {
        return;
    }
    std::unique_ptr<CWorkspace> workspace = EditNewWorkspace(*path, true, 1, 0);
    if (workspace) {
        std::unique_ptr<CGameDatabase> database =
            m_session.LoadDatabase(workspace->m_strTargetFile);
        OpenWorkspace(std::move(workspace), std::move(database));
    }
}

void CMainDlg::OnSave() {
    SaveFilesPrompt();
}

// A workspace file that cannot be written keeps the workspace's old path (Save changes it only
// when it succeeds), so that Properties goes on saving where the workspace file is.
void CMainDlg::OnSaveAs() {
    CWorkspace* workspace = m_session.Workspace();
    if (!workspace || !Ask("Do you want to save your workspace under a new name?", "Save As")) {
        return;
    }
    const std::optional<std::string> path = PickWorkspaceFile(false);
    if (!path) {
        return;
    }
    if (const CWriteResult written = workspace->Save(*path); !written.Done()) {
        ShowWriteError(written);
    }
}

void CMainDlg::OnWorkspaceProperties() {
    if (!m_session.IsOpen()) {
        return;
    }
    CWorkspaceDlg dlg(*m_session.Workspace());
    dlg.m_nMode = 1;
    dlg.m_nOpenMode = 0;
    dlg.m_strInitialDir = m_strStartDir;
    dlg.DoModal();
}
