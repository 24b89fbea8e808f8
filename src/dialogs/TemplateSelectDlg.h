// "Select template to add" (dialog 107): the game data's templates, filtered by country and by
// the position of a kind among the kinds of units, leaders, supply and structures.
#pragma once

#include "platform/Dialog.h"

class CGameDatabase;
class CTemplateRecord;

class CTemplateSelectDlg : public CDialog {
public:
    explicit CTemplateSelectDlg(CGameDatabase& database);

    // The template chosen with Accept; none after Cancel, Escape or the close box. DoModal gives
    // 1 when a template was chosen and 0 otherwise.
    CTemplateRecord* ChosenTemplate() const { return m_pChosen; }

    CComboBox m_countries;
    CComboBox m_kinds;
    CListBox m_list;  // each line carries its template record
    int m_nCountry = 0;
    int m_nKind = 0;
    double m_dCost = 0.0;

protected:
    bool OnInitDialog() override;
    // Cancel is the default button: Enter closes without a template.
    void OnOK() override { OnCancel(); }
    void OnCancel() override { EndDialog(0); }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void Refill();
    void OnTemplateSelected();
    void OnAccept();
    CTemplateRecord* Selected() const;

    CGameDatabase& m_database;
    CTemplateRecord* m_pChosen = nullptr;
};
