// The recovery copy: while the order of battle has changes its file does not hold, a copy of it
// is kept in the state folder, written a second after the last change, so that work survives an
// editor that ends without saving. The next start offers it.
#include "app/MainDlg.h"
#include "app/UserFolders.h"
#include "base/PathResolve.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/Workspace.h"

// Each change starts the wait anew, so a burst of edits costs one write.
void CMainDlg::OnTreeChanged() {
    if (std::string(m_session.OobStatus()) == "*") {
        m_bRecoveryDue = SetTimer(kRecoveryTimer, kRecoveryDelayMs);
        return;
    }
    KillTimer(kRecoveryTimer);
    m_bRecoveryDue = false;
    DiscardRecoveryCopy();
}

// A copy that cannot be written is not reported: it is a safety net the user never asked for,
// and a message a second after every change would stop the work it is there to keep. The next
// change tries again.
void CMainDlg::WriteRecoveryCopy() {
    // A timer that fires while a question holds up a step waits for the step's end, which
    // starts it anew.
    if (m_session.Edit().InStep()) {
        return;
    }
    KillTimer(kRecoveryTimer);
    m_bRecoveryDue = false;
    if (!m_recovery || std::string(m_session.OobStatus()) != "*") {
        return;
    }
    const std::string workspace = AbsolutePath(m_session.Workspace()->m_strPath);
    // Save as has given the workspace another file since the last copy.
    if (workspace != m_strRecoveryOf) {
        DiscardRecoveryCopy();
    }
    // The header names the file the order of battle is read from, which the next start compares
    // the copy's age with.
    const std::string oobFile = AbsolutePath(ResolvePath(m_session.Workspace()->m_strOobFile));
    const std::string text = m_session.Document()->m_writer.ToText(m_tree);
    if (m_recovery->Write(workspace, oobFile, text).Done()) {
        m_strRecoveryOf = workspace;
    }
}

void CMainDlg::DiscardRecoveryCopy() {
    if (m_recovery && !m_strRecoveryOf.empty()) {
        m_recovery->Remove(m_strRecoveryOf);
    }
    m_strRecoveryOf.clear();
}

// Offering ends with the first copy restored; the others wait for a later start.
void CMainDlg::OfferRecoveredCopies() {
    if (!m_recovery) {
        return;
    }
    for (const CRecoveryFolder::CCopy& copy : m_recovery->Pending()) {
        const std::string question = "The order of battle of " + copy.workspace +
                                     " has changes that were not saved when the editor last "
                                     "ended. Do you want to restore them? No discards them.";
        if (!Ask(question, "Recover")) {
            m_recovery->Remove(copy.workspace);
        } else if (RestoreRecoveredCopy(copy)) {
            return;
        }
    }
}

// The workspace opens as Load opens it, then the copy's tree takes the place of its file's as
// one step of the history: the field shows "*", and Undo gives back what the file holds.
bool CMainDlg::RestoreRecoveredCopy(const CRecoveryFolder::CCopy& copy) {
    auto workspace = std::make_unique<CWorkspace>();
    workspace->m_strPath = copy.workspace;
    if (workspace->Load(copy.workspace) != RESULT_DONE) {
        MessageBox("Bad or missing " + copy.workspace + " file!", "Error", MB_ICONEXCLAMATION);
        return false;
    }
    std::unique_ptr<CGameDatabase> database = m_session.LoadDatabase(workspace->m_strTargetFile);
    OpenWorkspace(std::move(workspace), std::move(database));
    m_session.Edit().ReplaceTree(
        [&](CTreeStore& tree) { return m_session.Document()->m_reader.LoadTree(copy.path, tree); });
    m_strRecoveryOf = copy.workspace;
    UpdateData(false);
    return true;
}
