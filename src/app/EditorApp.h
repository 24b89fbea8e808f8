// The application object: runs the main window for the whole life of the process.
#pragma once

#include "platform/WinApp.h"

class CEditorApp : public CWinApp {
public:
    CEditorApp() : CWinApp("Harnwick") {}

    // Runs the main window modally; false, so the program ends when it closes.
    bool InitInstance() override;
};
