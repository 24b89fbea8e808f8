#include "dialogs/WorkspaceDlg.h"

#include "base/Result.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "platform/FileDialog.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr int kMaxPath = 150;
constexpr int kMaxTitle = 50;
constexpr const char* kEmptyPath = "empty";
constexpr unsigned kPickerFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
constexpr const char* kOobFilter = "Order Of Battle Files (*.oob)|*.oob|Text Files (*.txt)|*.txt|";
constexpr const char* kTargetFilter =
    "Target Platform Files (*.inf)|*.inf|Text Files (*.txt)|*.txt|";
// By the workspace's picture order: unit pictures, leader faces, infantry, cavalry, artillery.
constexpr const char* kPictureFilters[CWorkspace::kPictures] = {
    "Unit Picture Files (units.bmp)|units.bmp|Bitmap Files (*.bmp)|*.bmp|",
    "Leader Face Files (leaders.bmp)|leaders.bmp|Bitmap Files (*.bmp)|*.bmp|",
    "Infantry Icon Files (icons3d2.bmp)|icons3d2.bmp|Bitmap Files (*.bmp)|*.bmp|",
    "Cavalry Icon Files (icons3d1.bmp)|icons3d1.bmp|Bitmap Files (*.bmp)|*.bmp|",
    "Artillery Icon Files (icons3d0.bmp)|icons3d0.bmp|Bitmap Files (*.bmp)|*.bmp|",
};
constexpr int kSwitchIds[CWorkspace::kPictures] = {
    IDC_WS_UNIT_PICTURES_ON, IDC_WS_LEADER_FACES_ON, IDC_WS_INFANTRY_ICONS_ON,
    IDC_WS_CAVALRY_ICONS_ON, IDC_WS_ARTILLERY_ICONS_ON};
}  // namespace

CWorkspaceDlg::CWorkspaceDlg(CWorkspace& workspace)
    : CDialog(DialogResource(IDD_WORKSPACE)), m_workspace(workspace) {
    OnClicked(IDC_WS_RESET, [this] { OnReset(); });
    OnClicked(IDC_WS_OOB_PICK, [this] { OnPickOobFile(); });
    OnClicked(IDC_WS_BACKUP_PICK, [this] { OnPickBackupFile(); });
    OnClicked(IDC_WS_TARGET_PICK, [this] { OnPickTargetFile(); });
    for (int i = 0; i < CWorkspace::kPictures; ++i) {
        OnClicked(kSwitchIds[i], [this, i] { OnPictureSwitch(Picture(i)); });
    }
    OnClicked(IDC_WS_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_WS_CANCEL, [this] { EndDialog(0); });
}

CWorkspaceDlg::CPictureSwitch CWorkspaceDlg::Picture(int i) {
    const std::array<int*, CWorkspace::kPictures> switches = {
        &m_bUnitPictures, &m_bLeaderFaces, &m_bInfantryIcons, &m_bCavalryIcons, &m_bArtilleryIcons};
    const std::array<std::string*, CWorkspace::kPictures> paths = {
        &m_strUnitPictures, &m_strLeaderFaces, &m_strInfantryIcons, &m_strCavalryIcons,
        &m_strArtilleryIcons};
    return {kSwitchIds[i], switches[i], paths[i], kPictureFilters[i]};
}

void CWorkspaceDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_WS_ARTILLERY_ICONS, m_strArtilleryIcons);
    DDV_MaxChars(pDX, m_strArtilleryIcons, kMaxPath);
    DDX_Text(pDX, IDC_WS_BACKUP_FILE, m_strBackupFile);
    DDV_MaxChars(pDX, m_strBackupFile, kMaxPath);
    DDX_Text(pDX, IDC_WS_CAVALRY_ICONS, m_strCavalryIcons);
    DDV_MaxChars(pDX, m_strCavalryIcons, kMaxPath);
    DDX_Text(pDX, IDC_WS_INFANTRY_ICONS, m_strInfantryIcons);
    DDV_MaxChars(pDX, m_strInfantryIcons, kMaxPath);
    DDX_Text(pDX, IDC_WS_LEADER_FACES, m_strLeaderFaces);
    DDV_MaxChars(pDX, m_strLeaderFaces, kMaxPath);
    DDX_Text(pDX, IDC_WS_OOB_FILE, m_strOobFile);
    DDV_MaxChars(pDX, m_strOobFile, kMaxPath);
    DDX_Text(pDX, IDC_WS_TARGET_FILE, m_strTargetFile);
    DDV_MaxChars(pDX, m_strTargetFile, kMaxPath);
    DDX_Text(pDX, IDC_WS_UNIT_PICTURES, m_strUnitPictures);
    DDV_MaxChars(pDX, m_strUnitPictures, kMaxPath);
    DDX_Text(pDX, IDC_WS_TITLE, m_strTitle);
    DDV_MaxChars(pDX, m_strTitle, kMaxTitle);
    DDX_Check(pDX, IDC_WS_ARTILLERY_ICONS_ON, m_bArtilleryIcons);
    DDX_Check(pDX, IDC_WS_CAVALRY_ICONS_ON, m_bCavalryIcons);
    DDX_Check(pDX, IDC_WS_INFANTRY_ICONS_ON, m_bInfantryIcons);
    DDX_Check(pDX, IDC_WS_LEADER_FACES_ON, m_bLeaderFaces);
    DDX_Check(pDX, IDC_WS_UNIT_PICTURES_ON, m_bUnitPictures);
}

bool CWorkspaceDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    OnReset();
    if (m_nMode == 1) {
        GetDlgItem(IDC_WS_OOB_PICK)->EnableWindow(false);
        GetDlgItem(IDC_WS_TARGET_PICK)->EnableWindow(false);
    }
    return true;
}

void CWorkspaceDlg::OnCancel() {
    EndDialog(0);
}

void CWorkspaceDlg::OnReset() {
    m_strTitle = m_workspace.m_strTitle;
    m_strOobFile = m_workspace.m_strOobFile;
    m_strBackupFile = m_workspace.m_strBackupFile;
    m_strTargetFile = m_workspace.m_strTargetFile;
    for (int i = 0; i < CWorkspace::kPictures; ++i) {
        const CPictureSwitch picture = Picture(i);
        *picture.pPath = m_workspace.m_strPicturePaths[i];
        *picture.pSwitch = m_workspace.m_nPictureFlags[i] != 0 ? 1 : 0;
    }
    UpdateData(false);
}

// The pickers take the fields first, so that a title typed before a picker survives it.
bool CWorkspaceDlg::PickFile(std::string& field, bool open, const char* defExt, const char* filter,
                             const std::string& initialDir) {
    UpdateData(true);
    CFileDialog picker(open, defExt, "", kPickerFlags, filter, this);
    picker.m_strInitialDir = initialDir;
    const bool chosen = picker.DoModal() == IDOK;
    field = chosen ? picker.GetPathName() : kEmptyPath;
    return chosen;
}

void CWorkspaceDlg::OnPickOobFile() {
    PickFile(m_strOobFile, m_nOpenMode == 1, "oob", kOobFilter, m_strInitialDir);
    UpdateData(false);
}

void CWorkspaceDlg::OnPickBackupFile() {
    PickFile(m_strBackupFile, false, "oob", kOobFilter, m_strInitialDir);
    UpdateData(false);
}

void CWorkspaceDlg::OnPickTargetFile() {
    PickFile(m_strTargetFile, true, "inf", kTargetFilter, m_strInitialDir);
    UpdateData(false);
}

// Turning a switch on asks for its file, starting where the path field points; a cancelled
// picker turns the switch off again. Turning it off forgets the path.
void CWorkspaceDlg::OnPictureSwitch(const CPictureSwitch& picture) {
    UpdateData(true);
    if (*picture.pSwitch == 1) {
        if (!PickFile(*picture.pPath, true, "bmp", picture.filter, *picture.pPath)) {
            *picture.pSwitch = 0;
        }
    } else {
        *picture.pPath = kEmptyPath;
    }
    UpdateData(false);
}

// A workspace file that cannot be written keeps the dialog open with every field, and the
// workspace as it was, so that Cancel still leaves it untouched and Accept can be tried again.
void CWorkspaceDlg::OnAccept() {
    if (!UpdateData(true)) {
        return;
    }
    if (m_strOobFile.empty()) {
        MessageBox("You must select OOB file!", "Error", MB_ICONEXCLAMATION);
        return;
    }
    if (m_strTargetFile.empty()) {
        MessageBox("You must select target file!", "Error", MB_ICONEXCLAMATION);
        return;
    }
    const CWorkspace before = m_workspace;
    m_workspace.m_strTitle = m_strTitle;
    m_workspace.m_strOobFile = m_strOobFile;
    m_workspace.m_strBackupFile = m_strBackupFile;
    m_workspace.m_strTargetFile = m_strTargetFile;
    for (int i = 0; i < CWorkspace::kPictures; ++i) {
        const CPictureSwitch picture = Picture(i);
        m_workspace.m_strPicturePaths[i] = *picture.pPath;
        m_workspace.m_nPictureFlags[i] = *picture.pSwitch != 0 ? 1 : 0;
    }
    if (const CWriteResult written = m_workspace.Save(m_workspace.m_strPath); !written.Done()) {
        m_workspace = before;
        MessageBox("Cannot write " + written.error, "Error", MB_ICONEXCLAMATION);
        return;
    }
    EndDialog(1);
}
