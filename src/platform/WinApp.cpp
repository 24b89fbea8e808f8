#include "platform/WinApp.h"

#include "platform/Dialog.h"

namespace {
CWinApp* g_pApp = nullptr;
}

CWinApp::CWinApp(std::string appName) : m_strAppName(std::move(appName)) {
    g_pApp = this;
}

CWinApp::~CWinApp() {
    if (g_pApp == this) {
        g_pApp = nullptr;
    }
}

CWinApp* AfxGetApp() {
    return g_pApp;
}

int AfxMessageBox(const std::string& text, unsigned type) {
    const std::string caption = g_pApp ? g_pApp->m_strAppName : std::string();
    return Backend().MessageBox(ActiveDialog(), text, caption, type);
}

short GetKeyState(int virtualKey) {
    return virtualKey == VK_SHIFT && Backend().IsShiftDown() ? static_cast<short>(-128) : 0;
}
