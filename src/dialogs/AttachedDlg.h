// "Attached Order of Battles" (dialog 104): one of the ready-made orders of battle that the game
// data lists. DoModal gives the 0-based index of the selected line (-1 for none) however the
// dialog closes: Accept, Escape and the close box alike.
#pragma once

#include "platform/Dialog.h"

class CGameDatabase;

class CAttachedDlg : public CDialog {
public:
    explicit CAttachedDlg(CGameDatabase& database);

    CListBox m_list;

protected:
    bool OnInitDialog() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnAccept();

    CGameDatabase& m_database;
};
