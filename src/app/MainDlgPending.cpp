// Commands of the main window whose behaviour comes with later work on the editor. Each is
// wired to its menu entry or gesture already and, until then, does nothing and shows nothing
// (README.md lists them as not yet available).
#include "app/MainDlg.h"

void CMainDlg::OnCopy() {}
void CMainDlg::OnCut() {}
void CMainDlg::OnAddNext(int) {}
void CMainDlg::OnAddChild(int) {}
void CMainDlg::OnPasteNext() {}
void CMainDlg::OnPasteChild() {}
void CMainDlg::OnDeleteItem() {}
void CMainDlg::OnDeleteChildren() {}
bool CMainDlg::OnRenameEntry(HTREEITEM, const std::string*) {
    return false;
}

