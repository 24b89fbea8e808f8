// The application object: started once by main, it runs the main window.
#pragma once

#include <string>

class CDialog;

class CWinApp {
public:
    explicit CWinApp(std::string appName);
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    // Runs the program; false ends it without a message loop of its own.
    virtual bool InitInstance() = 0;

    const std::string m_strAppName;
    CDialog* m_pMainWnd = nullptr;
};

// The application object, or none (tests that run one dialog alone).
CWinApp* AfxGetApp();
