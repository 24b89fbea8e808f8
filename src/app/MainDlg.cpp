#include "app/MainDlg.h"

#include <fstream>
#include <istream>

#include "app/UserFolders.h"
#include "base/TextLines.h"
#include "dialogs/AboutDlg.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr std::size_t kMaxStartDir = 249;
}

std::string ReadStartDir(std::istream& in) {
    std::string line;
    std::getline(in, line);
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    if (line.size() > kMaxStartDir) {
        line.resize(kMaxStartDir);
    }
    return line;
}

CMainDlg::CMainDlg()
    : CDialog(DialogResource(IDD_HARNWICK_DIALOG)), m_hIcon(&IconResource(IDR_MAINFRAME)) {
    MapCommands();
    m_session.Edit().m_onChanged = [this] { OnTreeChanged(); };
}

CMainDlg::~CMainDlg() = default;

void CMainDlg::MapCommands() {
    OnCommand(ID_FILE_NEW_EMPTY, [this] { OnNewEmptyOob(); });
    OnCommand(ID_FILE_NEW_ATTACHED, [this] { OnNewAttachedOob(); });
    OnCommand(ID_FILE_NEW_EXISTING, [this] { OnNewExistingOob(); });
    OnCommand(ID_FILE_LOAD, [this] { OnLoad(); });
    OnCommand(ID_FILE_SAVE, [this] { OnSave(); });
    OnCommand(ID_FILE_SAVE_AS, [this] { OnSaveAs(); });
    OnCommand(ID_FILE_PROPERTIES, [this] { OnWorkspaceProperties(); });
    OnCommand(ID_FILE_EXIT, [this] { OnExit(); });
    OnCommand(ID_EDIT_PROPERTIES, [this] { OnItemProperties(); });
    OnCommand(ID_EDIT_COPY, [this] { OnCopy(); });
    OnCommand(ID_EDIT_CUT, [this] { OnCut(); });
    for (int command :
         {ID_ADD_NEXT_UNIT, ID_ADD_NEXT_LEADER, ID_ADD_NEXT_SUPPLY, ID_ADD_NEXT_STRUCTURE}) {
        OnCommand(command, [this, command] { OnAddNext(command); });
    }
    OnCommand(ID_ADD_NEXT_PASTE, [this] { OnPasteNext(); });
    OnCommand(ID_ADD_NEXT_TEMPLATE, [this] { OnAddTemplateNext(); });
    for (int command :
         {ID_ADD_CHILD_UNIT, ID_ADD_CHILD_LEADER, ID_ADD_CHILD_SUPPLY, ID_ADD_CHILD_STRUCTURE}) {
        OnCommand(command, [this, command] { OnAddChild(command); });
    }
    OnCommand(ID_ADD_CHILD_PASTE, [this] { OnPasteChild(); });
    OnCommand(ID_ADD_CHILD_TEMPLATE, [this] { OnAddTemplateChild(); });
    OnCommand(ID_DELETE_ITEM, [this] { OnDeleteItem(); });
    OnCommand(ID_DELETE_CHILDREN, [this] { OnDeleteChildren(); });
    OnCommand(ID_EDIT_SAVE_TO_FILE, [this] { OnSaveItemToFile(); });
    OnCommand(ID_EDIT_SAVE_AS_TEMPLATE, [this] { OnSaveAsTemplate(); });
    OnCommand(ID_OPTIONS_ARMIES_SUMMARY, [this] { OnArmiesSummary(); });
    OnCommand(ID_OPTIONS_FIND, [this] { OnFindItem(); });
    OnCommand(ID_BACKUP_SAVE, [this] { OnBackupSave(); });
    OnCommand(ID_BACKUP_RESTORE, [this] { OnBackupRestore(); });
    OnCommand(ID_OPTIONS_GET_DATA, [this] { OnGetData(); });
    OnCommand(ID_OPTIONS_SAVE_TARGET, [this] { OnSaveTargetFile(); });
    for (int command : {ID_REPORT_HTML, ID_REPORT_LEADER, ID_REPORT_COST, ID_REPORT_KEY}) {
        OnCommand(command, [this, command] { OnReport(command); });
    }
    OnCommand(ID_ABOUT, [this] { OnAbout(); });
    OnCommand(ID_EDIT_UNDO, [this] { OnUndo(); });
    OnCommand(ID_EDIT_REDO, [this] { OnRedo(); });
    for (std::size_t i = 0; i < CRecentList::kMax; ++i) {
        OnCommand(ID_FILE_MRU_FILE1 + static_cast<int>(i), [this, i] { OnRecentWorkspace(i); });
    }
    OnTimer(kRecoveryTimer, [this] { WriteRecoveryCopy(); });
    OnTimer(kOfferTimer, [this] {
        KillTimer(kOfferTimer);
        OfferRecoveredCopies();
    });
    OnUpdateCommand(ID_EDIT_UNDO, [this] { return m_session.Edit().CanUndo(); });
    OnUpdateCommand(ID_EDIT_REDO, [this] { return m_session.Edit().CanRedo(); });

    OnClicked(IDC_OOB_STATUS, [this] { OnSave(); });
    OnClicked(IDC_BACKUP_STATUS, [this] { OnBackupSave(); });
    OnClicked(IDC_ENTER, [this] { OnEnterKey(); });
    OnTreeRightClick(IDC_TREE, [this] { OnContextMenu(); });
    OnTreeDoubleClick(IDC_TREE, [this] { OnTreeDblClick(); });
    OnTreeEndLabelEdit(IDC_TREE, [this](HTREEITEM entry, const std::string* text) {
        return OnRenameEntry(entry, text);
    });
}

// The fields show what the session holds; none of them is the user's to change.
void CMainDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TREE, m_session.ViewStore());
    if (pDX->m_bSaveAndValidate) {
        return;
    }
    std::string oobStatus = m_session.OobStatus();
    DDX_Text(pDX, IDC_OOB_STATUS, oobStatus);
    std::string backupStatus = m_session.BackupStatus();
    DDX_Text(pDX, IDC_BACKUP_STATUS, backupStatus);
    std::string markedName = m_session.MarkedName();
    DDX_Text(pDX, IDC_MARKED_NAME, markedName);
    std::string markedCaption = m_session.MarkedCaption();
    DDX_Text(pDX, IDC_MARKED_CAPTION, markedCaption);
}

bool CMainDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetIcon(*m_hIcon, true);
    SetIcon(*m_hIcon, false);

    std::ifstream startIni;
    if (!OpenToRead("START.INI", startIni)) {
        MessageBox("Bad or missing START.INI file!", "Error", MB_ICONEXCLAMATION);
        EndDialog(-1);
        return true;
    }
    m_strStartDir = ReadStartDir(startIni);
    startIni.close();

    // A run starts with no copy of its own; those earlier runs left are offered once the
    // window is up.
    m_strRecoveryOf.clear();
    m_session.Close();
    LoadRecentWorkspaces();
    m_recovery.reset();
    if (const std::string state = StateFolder(); !state.empty()) {
        m_recovery.emplace(state);
    }
    SetTimer(kOfferTimer, 0);
    UpdateData(false);
    return true;
}

void CMainDlg::OnCancel() {
    OnExit();
}

// Only a minimised window draws anything itself: its icon, centred.
void CMainDlg::OnPaint(CPaintDC& dc) {
    if (!IsIconic()) {
        return;
    }
    dc.EraseIconBackground();
    const CRect client = GetClientRect();
    const int x = (client.Width() - kIconSize + 1) / 2;
    const int y = (client.Height() - kIconSize + 1) / 2;
    dc.DrawIcon(x, y, *m_hIcon);
}

// Quitting saves nothing, but a change still waiting for its recovery copy gets it, so that
// the next start can offer it.
void CMainDlg::OnExit() {
    if (MessageBox("Do you want to quit?", "Exit", MB_YESNO | MB_ICONQUESTION) == IDYES) {
        if (m_bRecoveryDue) {
            WriteRecoveryCopy();
        }
        EndDialog(0);
    }
}

void CMainDlg::OnAbout() {
    CAboutDlg dlg;
    dlg.DoModal();
}

void CMainDlg::OnUndo() {
    m_session.Edit().Undo();
    UpdateData(false);
}

void CMainDlg::OnRedo() {
    m_session.Edit().Redo();
    UpdateData(false);
}

// The Edit menu, 20 pixels right of the selected entry's label and level with its bottom;
// with nothing selected, at the tree's top-left corner.
void CMainDlg::OnContextMenu() {
    const CMenuItem& editMenu = MenuResource(IDR_MAINMENU).GetSubMenu(kEditMenuPosition);
    CPoint corner;
    if (HTREEITEM selected = m_tree.GetSelectedItem()) {
        const CRect label = GetTreeItemRect(IDC_TREE, selected);
        corner = CPoint{label.right + 20, label.bottom};
    }
    TrackPopupMenu(editMenu, ClientToScreen(IDC_TREE, corner));
}
