#include "dialogs/GetDataDlg.h"

#include <filesystem>

#include "base/PathResolve.h"
#include "base/Result.h"
#include "model/GameImport.h"
#include "model/OobDocument.h"
#include "model/Session.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "platform/FileDialog.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr unsigned kPickerFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
constexpr const char* kGameFilter =
    "Scenario Files (*.scn)|*.scn|Game Files (*.btl)|*.btl|PBEM Files (*.bte)|*.bte|";
constexpr const char* kOobFilter = "OOB Files (*.oob)|*.oob|";

// The lists' lines, in the order of their indices.
constexpr const char* kNotExistingLines[] = {"Remove", "Set strength to 0", "Skip"};
constexpr const char* kEmptyStructureLines[] = {"Remove", "Skip"};
constexpr const char* kOutputLines[] = {"This OOB file", "Other OOB file"};

template <std::size_t N>
void Fill(CWnd& list, const char* const (&lines)[N]) {
    for (const char* line : lines) {
        list.Lines().AddString(line);
    }
}
}  // namespace

CGetDataDlg::CGetDataDlg(CSession& session)
    : CDialog(DialogResource(IDD_GET_DATA)), m_session(session) {
    OnClicked(IDC_GD_DATA_PICK, [this] { OnPickDataFile(); });
    OnClicked(IDC_GD_OUTPUT_PICK, [this] { OnPickOutputFile(); });
    OnSelChange(IDC_GD_OUTPUT_TO, [this] { OnOutputToChanged(); });
    OnClicked(IDC_GD_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_GD_CANCEL, [this] { EndDialog(0); });
}

int CGetDataDlg::ImportFlags() const {
    const int missing = m_nNotExisting == 0   ? IMPORT_REMOVE_MISSING
                        : m_nNotExisting == 1 ? IMPORT_ZERO_MISSING
                                              : 0;
    return missing | (m_nEmptyStructures == 0 ? IMPORT_REMOVE_EMPTY : 0);
}

void CGetDataDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_GD_OUTPUT_FILE, m_strOutputFile);
    DDX_Text(pDX, IDC_GD_DATA_FILE, m_strDataFile);
    DDX_CBIndex(pDX, IDC_GD_OUTPUT_TO, m_nOutputTo);
    DDX_CBIndex(pDX, IDC_GD_EMPTY_STRUCTURES, m_nEmptyStructures);
    DDX_CBIndex(pDX, IDC_GD_NOT_EXISTING, m_nNotExisting);
}

// Accept and the output file's picker and path start disabled (the template's doing).
bool CGetDataDlg::OnInitDialog() {
    Fill(*GetDlgItem(IDC_GD_NOT_EXISTING), kNotExistingLines);
    Fill(*GetDlgItem(IDC_GD_EMPTY_STRUCTURES), kEmptyStructureLines);
    Fill(*GetDlgItem(IDC_GD_OUTPUT_TO), kOutputLines);
    m_nNotExisting = m_nEmptyStructures = 0;
    m_nOutputTo = kThisFile;
    return CDialog::OnInitDialog();
}

// Enter without a focused button does nothing: the import, which may remove entries, runs only
// from Accept, and a dialog closed by Enter would report an import that never ran.
void CGetDataDlg::OnOK() {}

void CGetDataDlg::OnCancel() {
    EndDialog(0);
}

void CGetDataDlg::Validate() {
    UpdateData(true);
    const bool ready =
        !m_strDataFile.empty() && (m_nOutputTo != kOtherFile || !m_strOutputFile.empty());
    GetDlgItem(IDC_GD_ACCEPT)->EnableWindow(ready);
}

// The fields are taken first, so that the choices made before a picker survive it.
void CGetDataDlg::PickFile(std::string& field, bool open, const char* defExt, const char* filter) {
    UpdateData(true);
    CFileDialog picker(open, defExt, "", kPickerFlags, filter, this);
    picker.m_strInitialDir = m_strInitialDir;
    if (picker.DoModal() == IDOK) {
        field = picker.GetPathName();
        UpdateData(false);
    }
    Validate();
}

void CGetDataDlg::OnPickDataFile() {
    PickFile(m_strDataFile, true, "scn", kGameFilter);
}

void CGetDataDlg::OnPickOutputFile() {
    PickFile(m_strOutputFile, false, "oob", kOobFilter);
}

void CGetDataDlg::OnOutputToChanged() {
    UpdateData(true);
    const bool other = m_nOutputTo == kOtherFile;
    GetDlgItem(IDC_GD_OUTPUT_PICK)->EnableWindow(other);
    GetDlgItem(IDC_GD_OUTPUT_FILE)->EnableWindow(other);
    if (!other) {
        m_strOutputFile.clear();
        UpdateData(false);
    }
    Validate();
}

bool CGetDataDlg::IsWorkspaceFile(const std::string& path) const {
    const CWorkspace* workspace = m_session.Workspace();
    if (!workspace) {
        return false;
    }
    for (const std::string& file : {workspace->m_strOobFile, workspace->m_strBackupFile}) {
        std::error_code error;
        if (std::filesystem::equivalent(path, ResolvePath(file), error)) {
            return true;
        }
    }
    return false;
}

// A game file that does not open, and an output file that cannot be written, keep the dialog
// open with its choices, so that another file can be picked or the import cancelled; the order
// of battle and the output file stay as they were.
// The result is refused when it would go to the open order-of-battle or backup file: the tree
// in the window would stay as it was while its status field said the file holds it.
void CGetDataDlg::OnAccept() {
    UpdateData(true);
    CWriteResult result;
    if (m_nOutputTo == kOtherFile) {
        if (IsWorkspaceFile(m_strOutputFile)) {
            MessageBox(m_strOutputFile +
                           " is a file of the open workspace. Choose another file, or \"This OOB "
                           "file\" to read the data into the open Order of Battle.",
                       "Get Data", MB_ICONEXCLAMATION);
            return;
        }
        result = ImportToFile(m_session.Tree(), m_strDataFile, ImportFlags(),
                              m_session.Document()->m_writer, m_strOutputFile);
    } else {
        result.code = m_session.Edit().ChangeTree([this](CTreeStore& tree) {
            return ImportGameData(m_strDataFile, tree, ImportFlags());
        });
    }
    if (result == RESULT_CANNOT_OPEN) {
        MessageBox("Bad or missing " + m_strDataFile + " file!", "Error", MB_ICONEXCLAMATION);
        return;
    }
    if (!result.Done()) {
        MessageBox("Cannot write " + result.error, "Error", MB_ICONEXCLAMATION);
        return;
    }
    EndDialog(1);
}
