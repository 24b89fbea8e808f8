// "Select unit class" (dialog 105): asked while an order of battle is read, when a unit names a
// type the game data does not have. Shows the unit's line; gives 1 Infantry, 2 Cavalry or
// 3 Artillery, and 1 for Escape or the close box.
#pragma once

#include <string>

#include "platform/Dialog.h"

class CUnitClassDlg : public CDialog {
public:
    explicit CUnitClassDlg(std::string line);

    std::string m_strLine;

protected:
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;
};
