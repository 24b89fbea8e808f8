// The Options commands on the game's data: Get data, which reads the strengths left after a
// battle from a game file, and Save Target file, which writes the game data back.
#include "app/MainDlg.h"
#include "dialogs/GetDataDlg.h"
#include "gamedata/GameDatabase.h"

// After an import into the open order of battle the status fields show the change, as after
// any edit. The notice names the output path the dialog holds, which is still the start folder
// when the import went into the open order of battle.
void CMainDlg::OnGetData() {
    if (!m_session.IsOpen()) {
        return;
    }
    CGetDataDlg dlg(m_session);
    dlg.m_strInitialDir = m_strStartDir;
    if (dlg.DoModal() != 1) {
        return;
    }
    UpdateData(false);
    const bool otherFile = dlg.m_nOutputTo == CGetDataDlg::kOtherFile;
    MessageBox("Data was saved to file : " + (otherFile ? dlg.m_strOutputFile : m_strStartDir),
               "Get Data", MB_ICONINFORMATION);
}

void CMainDlg::OnSaveTargetFile() {
    CGameDatabase* database = m_session.Database();
    if (!database || !Ask("Do you want to overwrite Target File?", "Save")) {
        return;
    }
    if (const CWriteResult written = database->Save(database->m_strFilePath); !written.Done()) {
        ShowWriteError(written);
    }
}
