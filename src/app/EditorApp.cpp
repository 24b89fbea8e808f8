#include "app/EditorApp.h"

#include "app/MainDlg.h"

bool CEditorApp::InitInstance() {
    CMainDlg dlg;
    m_pMainWnd = &dlg;
    dlg.DoModal();
    m_pMainWnd = nullptr;
    return false;
}
