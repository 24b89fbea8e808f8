// The commands that work with files beside the order of battle: the backup copy named in the
// workspace and a text file holding one subtree; and Find item.
#include "app/MainDlg.h"
#include "base/FileWriter.h"
#include "dialogs/FindDlg.h"
#include "model/OobDocument.h"
#include "model/Workspace.h"
#include "platform/FileDialog.h"

namespace {
constexpr const char* kNoBackup = "There is no backup file! (see Workspace properties)";
}  // namespace

// Writes only when the backup does not hold the tree as it stands, and asks nothing.
void CMainDlg::OnBackupSave() {
    if (!m_session.IsOpen()) {
        return;
    }
    if (!m_session.HasBackupFile()) {
        MessageBox(kNoBackup, "Backup", MB_ICONEXCLAMATION);
        return;
    }
    if (std::string(m_session.BackupStatus()) != "*") {
        return;
    }
    if (const CWriteResult written = m_session.SaveBackup(); !written.Done()) {
        ShowWriteError(written);
        return;
    }
    UpdateData(false);
}

void CMainDlg::OnBackupRestore() {
    if (!m_session.IsOpen()) {
        return;
    }
    if (!m_session.HasBackupFile()) {
        MessageBox(kNoBackup, "Backup", MB_ICONEXCLAMATION);
        return;
    }
    if (!Ask("Do you want to restore the backup copy of the oob file?", "Backup")) {
        return;
    }
    const CWriteResult restored = m_session.RestoreBackup();
    if (restored == RESULT_CANNOT_OPEN) {
        MessageBox("Bad or missing " + restored.error + " file!", "Error", MB_ICONEXCLAMATION);
        return;
    }
    if (!restored.Done()) {
        ShowWriteError(restored);
        return;
    }
    UpdateData(false);
}

void CMainDlg::OnFindItem() {
    if (!m_session.IsOpen()) {
        return;
    }
    CFindDlg dlg(m_tree);
    if (dlg.DoModal() == 1 && dlg.ChosenEntry()) {
        m_session.ViewStore().SelectItem(dlg.ChosenEntry());
    }
}

// The selected entry's subtree, or the whole tree when nothing is selected, as order-of-battle
// lines without the file's first line.
void CMainDlg::OnSaveItemToFile() {
    if (!m_session.IsOpen() || !Ask("Do you want to save this item to a text file?", "Save")) {
        return;
    }
    CFileDialog picker(false, "txt", "", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       "Text Files (*.txt)|*.txt|", this);
    picker.m_strInitialDir = m_strStartDir;
    if (picker.DoModal() != IDOK) {
        return;
    }
    std::string text;
    m_session.Document()->m_writer.WriteSubtree(text, m_tree, m_tree.GetSelectedItem());
    if (const CWriteResult written = ReplaceFile(picker.GetPathName(), text); !written.Done()) {
        ShowWriteError(written);
    }
}
