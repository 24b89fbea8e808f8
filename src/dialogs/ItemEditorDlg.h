// What the item editors share (unit, leader, supply, gunboat and structure): a working copy
// edited by the fields with its figures beside them, Reset, Cancel, and Enter moving the
// focus to Accept so that it commits the field being typed without closing the dialog. Accept
// leaves the edited item as a changed clone for the caller to hand to the edit layer; the item
// itself is never touched.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/Dialog.h"

class CGameDatabase;
class COobItem;
class CWorkspace;

class CItemEditorDlg : public CDialog {
public:
    // The item as Accept left it; none after Cancel, Escape or the close box.
    std::unique_ptr<COobItem> TakeEdited() { return std::move(m_pEdited); }

    std::string m_strModifier = "0";
    std::string m_strCost = "0";
    // The open workspace, set before DoModal: its picture switches and paths serve the "..."
    // buttons, which do nothing without one.
    const CWorkspace* m_pWorkspace = nullptr;

protected:
    CItemEditorDlg(int dialogId, CGameDatabase& database);

    void OnCancel() override { EndDialog(0); }
    void DoDataExchange(CDataExchange* pDX) override;

    // Fills the working copy from the item and writes the fields.
    virtual void Reset() = 0;
    void ShowFigures(double modifier, double cost);
    // Closes with 1, keeping edited for TakeEdited.
    void Finish(std::unique_ptr<COobItem> edited);
    // Opens "Select picture" on the workspace's strip picture (a CWorkspace::Picture) with the
    // game data's geometry for it, when the strip's switch is exactly 1. Gives the number chosen,
    // or none when the switch is off or the selector is not accepted.
    std::optional<unsigned> PickPicture(int picture, unsigned number, int acceptEnabled = 1);

    CGameDatabase& m_database;

private:
    std::unique_ptr<COobItem> m_pEdited;
};

// The name, kind and records of from, as the editors copy them.
void CopyRecords(const COobItem& from, COobItem& to);
// An unsigned field's value for a number stored in 16 bits: values the field takes above
// 32767 keep to 32767 rather than turning negative, a negative stored value shows as 0.
std::int16_t StoredShort(unsigned field);
unsigned ShownNumber(int stored);
