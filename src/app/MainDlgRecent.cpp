// File, Recent workspaces: the workspaces opened last, each reopened as Load opens one once its
// file is chosen.
#include <filesystem>
#include <system_error>

#include "app/MainDlg.h"
#include "app/UserFolders.h"
#include "gamedata/GameDatabase.h"
#include "model/Workspace.h"
#include "resources/ResourceIds.h"

void CMainDlg::LoadRecentWorkspaces() {
    const std::string config = ConfigFolder();
    m_strRecentFile = config.empty() ? "" : config + "/recent";
    m_recent.Load(m_strRecentFile);
    ShowRecentWorkspaces();
}

// The list is a convenience: a file that cannot be written leaves it for this run only, with
// no message in the middle of opening a workspace. Opening the first workspace again writes
// nothing.
void CMainDlg::RememberWorkspace(const std::string& path) {
    if (!m_recent.Add(AbsolutePath(path))) {
        return;
    }
    if (!m_strRecentFile.empty()) {
        m_recent.Save(m_strRecentFile);
    }
    ShowRecentWorkspaces();
}

// "&1 /path/harnwick.txt": the number is the entry's mnemonic; an "&" of the path is doubled so
// that it shows as itself.
void CMainDlg::ShowRecentWorkspaces() {
    std::vector<CMenuItem> entries;
    for (std::size_t i = 0; i < m_recent.Paths().size(); ++i) {
        std::string text = "&" + std::to_string(i + 1) + " ";
        for (char c : m_recent.Paths()[i]) {
            text += c == '&' ? "&&" : std::string(1, c);
        }
        CMenuItem entry{text, ID_FILE_MRU_FILE1 + static_cast<int>(i)};
        entry.pathText = true;
        entries.push_back(std::move(entry));
    }
    SetMenuList(ID_FILE_RECENT, std::move(entries));
}

// A workspace file that is gone is taken out of the list before anything is asked.
void CMainDlg::OnRecentWorkspace(std::size_t index) {
    if (index >= m_recent.Paths().size()) {
        return;
    }
    const std::string path = m_recent.Paths()[index];
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        m_recent.Remove(path);
        if (!m_strRecentFile.empty()) {
            m_recent.Save(m_strRecentFile);
        }
        ShowRecentWorkspaces();
        MessageBox("The workspace file " + path +
                       " no longer exists. It has been taken out of the recent workspaces.",
                   "Load", MB_ICONEXCLAMATION);
        return;
    }
    if (!SaveFilesPrompt(true)) {
        return;
    }
    if (std::unique_ptr<CWorkspace> workspace = EditNewWorkspace(path, true, 1, 0)) {
        std::unique_ptr<CGameDatabase> database =
            m_session.LoadDatabase(workspace->m_strTargetFile);
        OpenWorkspace(std::move(workspace), std::move(database));
    }
}
