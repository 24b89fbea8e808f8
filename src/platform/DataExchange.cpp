#include "platform/DataExchange.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/Dialog.h"
#include "platform/Wnd.h"

CDataExchange::CDataExchange(CDialog* dialog, bool bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(dialog) {}

CWnd* CDataExchange::PrepareCtrl(int id) {
    FlushParseFailure();
    m_undo = nullptr;
    if (m_bFailed) {
        return nullptr;
    }
    m_pLastControl = m_pDlgWnd->GetDlgItem(id);
    return m_pLastControl;
}

void CDataExchange::Fail(std::string message) {
    m_strParseFailure.clear();
    if (m_undo) {
        m_undo();
        m_undo = nullptr;
    }
    m_bFailed = true;
    AfxMessageBox(message, MB_ICONEXCLAMATION);
    if (m_pLastControl) {
        m_pLastControl->SetFocus();
    }
}

void CDataExchange::FailParse(std::string message) {
    m_strParseFailure = std::move(message);
}

void CDataExchange::FlushParseFailure() {
    if (!m_strParseFailure.empty()) {
        Fail(std::move(m_strParseFailure));
    }
}

bool CDataExchange::Finish() {
    FlushParseFailure();
    return !m_bFailed;
}

namespace {
std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {};
    }
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

// Whether the check that follows a field may look at it: the exchange is taking fields, has
// not failed, and the field was read.
bool Checking(CDataExchange* pDX) {
    return pDX->m_bSaveAndValidate && !pDX->Failed();
}
}  // namespace

bool ParseUnsigned(const std::string& text, unsigned& value) {
    const std::string digits = Trimmed(text);
    if (digits.empty()) {
        return false;
    }
    const char* end = digits.data() + digits.size();
    auto [ptr, error] = std::from_chars(digits.data(), end, value);
    return error == std::errc() && ptr == end;
}

bool ParseDouble(const std::string& text, double& value) {
    std::string number = Trimmed(text);
    if (!number.empty() && number.front() == '+') {
        number.erase(0, 1);
    }
    if (number.empty()) {
        return false;
    }
    const char* end = number.data() + number.size();
    double read = 0.0;
    auto [ptr, error] = std::from_chars(number.data(), end, read);
    if (error != std::errc() || ptr != end || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

std::string FormatUnsigned(unsigned value) {
    return std::to_string(value);
}

std::string FormatDouble(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return buffer;
}

void DDX_Text(CDataExchange* pDX, int id, std::string& value) {
    CWnd* control = pDX->PrepareCtrl(id);
    if (control == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        pDX->SetUndo([&value, old = value] { value = old; });
        value = control->GetWindowText();
    } else {
        control->SetWindowText(value);
    }
}

void DDX_Text(CDataExchange* pDX, int id, unsigned& value) {
    CWnd* control = pDX->PrepareCtrl(id);
    if (control == nullptr) {
        return;
    }
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(FormatUnsigned(value));
        return;
    }
    unsigned read = 0;
    if (!ParseUnsigned(control->GetWindowText(), read)) {
        pDX->FailParse("Please enter a whole number.");
        return;
    }
    pDX->SetUndo([&value, old = value] { value = old; });
    value = read;
}

void DDX_Text(CDataExchange* pDX, int id, double& value) {
    CWnd* control = pDX->PrepareCtrl(id);
    if (control == nullptr) {
        return;
    }
    if (!pDX->m_bSaveAndValidate) {
        control->SetWindowText(FormatDouble(value));
        return;
    }
    double read = 0.0;
    if (!ParseDouble(control->GetWindowText(), read)) {
        pDX->FailParse("Please enter a number.");
        return;
    }
    pDX->SetUndo([&value, old = value] { value = old; });
    value = read;
}

void DDX_Check(CDataExchange* pDX, int id, int& value) {
    CWnd* control = pDX->PrepareCtrl(id);
    if (control == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        value = control->GetCheck();
    } else {
        control->SetCheck(value);
    }
}

void DDX_CBIndex(CDataExchange* pDX, int id, int& index) {
    CWnd* control = pDX->PrepareCtrl(id);
    if (control == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        index = control->Lines().GetCurSel();
    } else {
        control->Lines().SetCurSel(index);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CListBox& control) {
    if (CWnd* wnd = pDX->PrepareCtrl(id)) {
        wnd->BindLines(control);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CComboBox& control) {
    if (CWnd* wnd = pDX->PrepareCtrl(id)) {
        wnd->BindLines(control);
    }
}

void DDX_Control(CDataExchange* pDX, int id, CTreeStore& control) {
    if (CWnd* wnd = pDX->PrepareCtrl(id)) {
        wnd->BindTree(control);
    }
}

void DDV_MaxChars(CDataExchange* pDX, const std::string& value, int maxChars) {
    CWnd* control = pDX->LastControl();
    if (!pDX->m_bSaveAndValidate) {
        if (control && !pDX->Failed() && control->Kind() == ControlKind::Edit) {
            control->LimitText(maxChars);
        }
        return;
    }
    if (Checking(pDX) && value.size() > static_cast<std::size_t>(maxChars)) {
        pDX->Fail("Please enter at most " + std::to_string(maxChars) + " characters.");
    }
}

void DDV_MinMaxUInt(CDataExchange* pDX, unsigned value, unsigned minVal, unsigned maxVal) {
    if (!Checking(pDX)) {
        return;
    }
    if (pDX->HasParseFailure() || value < minVal || value > maxVal) {
        pDX->Fail("Please enter a whole number from " + FormatUnsigned(minVal) + " to " +
                  FormatUnsigned(maxVal) + ".");
    }
}

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal) {
    if (!Checking(pDX)) {
        return;
    }
    if (pDX->HasParseFailure() || value < minVal || value > maxVal) {
        pDX->Fail("Please enter a number from " + FormatDouble(minVal) + " to " +
                  FormatDouble(maxVal) + ".");
    }
}
