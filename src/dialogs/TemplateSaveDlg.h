// "Save new template" (dialog 108): the country, name and cost of a new template made from the
// selected entry. Accept leaves the new template record for the caller, which writes it with the
// entry's subtree.
#pragma once

#include <memory>
#include <string>

#include "platform/Dialog.h"

class CGameDatabase;
class COobItem;
class CTemplateRecord;

class CTemplateSaveDlg : public CDialog {
public:
    CTemplateSaveDlg(const CTreeStore& tree, HTREEITEM entry, CGameDatabase& database,
                     const COobItem& item);
    ~CTemplateSaveDlg() override;

    // The record Accept made (its ordinal still to be given); none after Cancel, Escape or the
    // close box.
    std::unique_ptr<CTemplateRecord> TakeRecord();

    CComboBox m_countries;
    int m_nCountry = 0;
    std::string m_strType;
    double m_dCost = 0.0;
    std::string m_strName;

protected:
    bool OnInitDialog() override;
    // Cancel is the default button: Enter closes without a template.
    void OnOK() override { OnCancel(); }
    void OnCancel() override { EndDialog(0); }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnAccept();

    const CTreeStore& m_tree;
    HTREEITEM m_hEntry;
    CGameDatabase& m_database;
    const COobItem& m_item;
    std::unique_ptr<CTemplateRecord> m_pRecord;
};

// The game data's countries, in order, as lines of list.
void AddCountries(const CGameDatabase& database, CComboBox& list);
