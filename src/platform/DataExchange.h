// Data exchange between a dialog's members and its controls, with the checks the dialogs put
// on their fields. Taking the fields runs in the dialog's exchange order; the first field that
// fails shows the standard validation message, gets the focus back and stops the exchange, so
// that field and every field after it keep their values. Writing the fields puts the text
// limits on the edits.
#pragma once

#include <functional>
#include <string>

#include "platform/Controls.h"

class CDialog;
class CWnd;

class CDataExchange {
public:
    CDataExchange(CDialog* dialog, bool bSaveAndValidate);

    // The control id of the next field; none once the exchange has failed (every later
    // exchange and check is then passed over).
    CWnd* PrepareCtrl(int id);
    // The field just taken failed: message, focus back, value restored, exchange stopped.
    void Fail(std::string message);
    // A number field just taken could not be read; reported by the range check that follows,
    // which names the range, or at the next field if there is none.
    void FailParse(std::string message);
    // Remembers how to give the field just taken its old value back.
    void SetUndo(std::function<void()> undo) { m_undo = std::move(undo); }
    bool HasParseFailure() const { return !m_strParseFailure.empty(); }
    // Reports a parse failure still pending; true when the whole exchange succeeded.
    bool Finish();

    bool Failed() const { return m_bFailed; }
    CWnd* LastControl() const { return m_pLastControl; }

    const bool m_bSaveAndValidate;
    CDialog* const m_pDlgWnd;

private:
    void FlushParseFailure();

    CWnd* m_pLastControl = nullptr;
    std::function<void()> m_undo;
    std::string m_strParseFailure;
    bool m_bFailed = false;
};

void DDX_Text(CDataExchange* pDX, int id, std::string& value);
void DDX_Text(CDataExchange* pDX, int id, unsigned& value);
void DDX_Text(CDataExchange* pDX, int id, double& value);
// Check boxes: 0 or 1.
void DDX_Check(CDataExchange* pDX, int id, int& value);
// Drop-down lists and list boxes: the selected line's index, -1 for none.
void DDX_CBIndex(CDataExchange* pDX, int id, int& index);
// Binds a member to its control, so the control shows the member's lines or entries.
void DDX_Control(CDataExchange* pDX, int id, CListBox& control);
void DDX_Control(CDataExchange* pDX, int id, CComboBox& control);
void DDX_Control(CDataExchange* pDX, int id, CTreeStore& control);

// Each checks the field exchanged just before it.
void DDV_MaxChars(CDataExchange* pDX, const std::string& value, int maxChars);
void DDV_MinMaxUInt(CDataExchange* pDX, unsigned value, unsigned minVal, unsigned maxVal);
void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal);

// The readers the exchange uses: surrounding blanks allowed, nothing else.
bool ParseUnsigned(const std::string& text, unsigned& value);
bool ParseDouble(const std::string& text, double& value);
// How numbers are written into their controls.
std::string FormatUnsigned(unsigned value);
std::string FormatDouble(double value);
