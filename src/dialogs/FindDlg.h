// "Find item" (dialog 106): lists the tree entries whose label contains the search text, in
// tree order, and closes on Goto with the chosen one.
#pragma once

#include <string>

#include "platform/Dialog.h"

class CFindDlg : public CDialog {
public:
    explicit CFindDlg(const CTreeStore& tree);

    // The entry chosen with Goto; none after Cancel, Escape or the close box. DoModal gives 1
    // after Goto and 0 otherwise.
    HTREEITEM ChosenEntry() const { return m_hChosen; }

    std::string m_strSearch;
    CListBox m_list;  // the matches; each line carries its entry

protected:
    bool OnInitDialog() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnSearch();
    void OnGoto();

    const CTreeStore& m_tree;
    HTREEITEM m_hChosen = nullptr;
};
