#include "dialogs/AddListDlg.h"

#include <utility>

#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

CAddListDlg::CAddListDlg(CGameDatabase& database, std::uint8_t lowest, std::uint8_t highest,
                         bool stopSwitch, std::string stopName)
    : CDialog(DialogResource(IDD_ADD_LIST)),
      m_database(database),
      m_nLowest(lowest),
      m_nHighest(highest),
      m_bStop(stopSwitch),
      m_strStopName(std::move(stopName)) {
    OnClicked(IDC_CHOICE_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_CHOICE_CANCEL, [this] { EndDialog(0); });
}

void CAddListDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CHOICE_LIST, m_list);
}

bool CAddListDlg::OnInitDialog() {
    m_pChosen = nullptr;
    m_list.ResetContent();
    for (CDataListNode* node = m_database.m_Types.Head(); node; node = node->m_pNext) {
        auto& type = static_cast<CTypeRecord&>(*node->m_pPayload);
        if (type.ClassCode() < m_nLowest || type.ClassCode() > m_nHighest) {
            continue;
        }
        if (m_bStop && type.m_strType == m_strStopName) {
            break;
        }
        const int line = m_list.AddString(std::string(type.m_strName));
        m_list.SetItemData(line, reinterpret_cast<std::uintptr_t>(&type));
    }
    m_list.SetCurSel(0);
    CDialog::OnInitDialog();
    return true;
}

void CAddListDlg::OnOK() {
    OnAccept();
}

void CAddListDlg::OnCancel() {
    EndDialog(0);
}

void CAddListDlg::OnAccept() {
    const int line = m_list.GetCurSel();
    if (line == LB_ERR) {
        EndDialog(0);
        return;
    }
    m_pChosen = reinterpret_cast<CTypeRecord*>(m_list.GetItemData(line));
    EndDialog(1);
}
