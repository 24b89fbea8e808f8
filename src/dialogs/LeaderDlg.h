// "Edit leader" (dialog 116): name, command, leadership, and where the game data allows them
// (its leader extras flag is 1) the third value and the position, the leader's number in tree
// order, which is never written to the order-of-battle file.
#pragma once

#include <string>

#include "dialogs/ItemEditorDlg.h"
#include "model/LeaderItem.h"

class CLeaderDlg : public CItemEditorDlg {
public:
    CLeaderDlg(CGameDatabase& database, const CLeaderItem& leader);

    std::string m_strName;
    unsigned m_nPosition = 0;
    unsigned m_nLeadership = 0;
    unsigned m_nThird = 0;
    CComboBox m_commands;  // the types of class 4; each line carries its record

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void Recompute();
    bool ExtrasAllowed() const;
    void OnCommandSelected();
    void OnLeadershipChanged();
    void OnThirdChanged();
    void OnPositionChanged();
    void OnAccept();

    const CLeaderItem& m_leader;
    CLeaderItem m_copy;
};
