// "Add new list" (dialog 115): the type of a new item, chosen from the game data's types of a
// class range, in file order.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Dialog.h"

class CGameDatabase;
class CTypeRecord;

class CAddListDlg : public CDialog {
public:
    // Offers the types whose class code lies between lowest and highest. With the stop switch
    // on, the offer ends before the first such type whose name is stopName, so a new structure
    // can only be of a type that comes before its parent's.
    CAddListDlg(CGameDatabase& database, std::uint8_t lowest, std::uint8_t highest,
                bool stopSwitch = false, std::string stopName = {});

    // The type chosen with Accept; none after Cancel, Escape, the close box, or an Accept on an
    // empty list. DoModal gives 1 when a type was chosen and 0 otherwise.
    CTypeRecord* ChosenType() const { return m_pChosen; }

    CListBox m_list;  // each line carries its type record

protected:
    bool OnInitDialog() override;
    // Enter accepts the selected line, as the Accept button does.
    void OnOK() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnAccept();

    CGameDatabase& m_database;
    std::uint8_t m_nLowest;
    std::uint8_t m_nHighest;
    bool m_bStop;
    std::string m_strStopName;
    CTypeRecord* m_pChosen = nullptr;
};
