#include "dialogs/FindDlg.h"

#include <cstdint>

#include "base/TreeWalk.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr int kMaxSearch = 50;
}

CFindDlg::CFindDlg(const CTreeStore& tree) : CDialog(DialogResource(IDD_FIND)), m_tree(tree) {
    OnClicked(IDC_FIND_SEARCH, [this] { OnSearch(); });
    OnClicked(IDC_FIND_GOTO, [this] { OnGoto(); });
    OnClicked(IDC_CHOICE_CANCEL, [this] { EndDialog(0); });
}

void CFindDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CHOICE_LIST, m_list);
    DDX_Text(pDX, IDC_FIND_TEXT, m_strSearch);
    DDV_MaxChars(pDX, m_strSearch, kMaxSearch);
}

bool CFindDlg::OnInitDialog() {
    m_hChosen = nullptr;
    m_list.ResetContent();
    m_strSearch.clear();
    CDialog::OnInitDialog();
    return true;
}

void CFindDlg::OnCancel() {
    EndDialog(0);
}

// Labels are compared case-sensitively; an empty text matches every entry. Goto follows the
// list: a search that finds nothing disables it again, so it never returns a stale line.
void CFindDlg::OnSearch() {
    if (!UpdateData(true)) {
        return;
    }
    m_list.ResetContent();
    for (CTreeWalk walk(m_tree, nullptr); !walk.Done(); walk.Step()) {
        const HTREEITEM entry = walk.Current();
        if (m_tree.GetItemText(entry).find(m_strSearch) != std::string::npos) {
            const int line = m_list.AddString(std::string(m_tree.GetItemText(entry)));
            m_list.SetItemData(line, reinterpret_cast<std::uintptr_t>(entry));
        }
    }
    GetDlgItem(IDC_FIND_GOTO)->EnableWindow(m_list.GetCount() > 0);
    m_list.SetCurSel(0);
}

void CFindDlg::OnGoto() {
    const int line = m_list.GetCurSel();
    if (line == LB_ERR) {
        return;
    }
    m_hChosen = reinterpret_cast<HTREEITEM>(m_list.GetItemData(line));
    EndDialog(1);
}
