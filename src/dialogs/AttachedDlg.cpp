#include "dialogs/AttachedDlg.h"

#include "gamedata/GameDatabase.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

CAttachedDlg::CAttachedDlg(CGameDatabase& database)
    : CDialog(DialogResource(IDD_ATTACHED)), m_database(database) {
    OnClicked(IDC_CHOICE_ACCEPT, [this] { OnAccept(); });
}

void CAttachedDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CHOICE_LIST, m_list);
}

bool CAttachedDlg::OnInitDialog() {
    m_list.ResetContent();
    for (CDataListNode* node = m_database.m_AttachedOobs.Head(); node; node = node->m_pNext) {
        m_list.AddString(std::string(node->m_pPayload->m_strName));
    }
    m_list.SetCurSel(0);
    CDialog::OnInitDialog();
    return true;
}

void CAttachedDlg::OnCancel() {
    OnAccept();
}

void CAttachedDlg::OnAccept() {
    EndDialog(m_list.GetCurSel());
}
