// The About box (dialog 100): the program's icon, its name and version, and OK.
#pragma once

#include "platform/Dialog.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

class CAboutDlg : public CDialog {
public:
    CAboutDlg() : CDialog(DialogResource(IDD_ABOUTBOX)) {}
};
