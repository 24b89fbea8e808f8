#include "platform/DialogDriver.h"

#include "platform/Dialog.h"

void CDialogDriver::FocusMovedTo(int id) {
    m_dialog.MoveFocus(id);
}

void CDialogDriver::TextChanged(int id, std::string text) {
    if (CWnd* control = m_dialog.GetDlgItem(id)) {
        control->SetWindowText(std::move(text));
    }
}

void CDialogDriver::Clicked(int id) {
    CWnd* control = m_dialog.GetDlgItem(id);
    if (control && control->Kind() == ControlKind::CheckBox) {
        control->SetCheck(control->GetCheck() == 0 ? 1 : 0);
    }
    m_dialog.DispatchCommand(id);
}

void CDialogDriver::SelectionChanged(int id, int index) {
    if (CWnd* control = m_dialog.GetDlgItem(id)) {
        control->Lines().SetCurSel(index);
        m_dialog.Dispatch(CDialog::Event::SelChange, id);
    }
}

void CDialogDriver::Command(int id) {
    m_dialog.DispatchCommand(id);
}

void CDialogDriver::Enter() {
    const CWnd* focus = m_dialog.GetDlgItem(m_dialog.GetFocusId());
    if (focus && focus->Kind() == ControlKind::Button && focus->IsWindowEnabled()) {
        m_dialog.DispatchCommand(focus->GetDlgCtrlID());
        return;
    }
    const CWnd* target = m_dialog.GetDlgItem(IDOK);
    for (const auto& control : m_dialog.Controls()) {
        if (control->Kind() == ControlKind::Button && control->HasStyle(STYLE_DEFAULT)) {
            target = control.get();
            break;
        }
    }
    // The default button is pressed even when hidden, never when disabled; without one, OK is
    // pressed even when the dialog shows no OK button.
    if (target == nullptr || target->IsWindowEnabled()) {
        m_dialog.DispatchCommand(target ? target->GetDlgCtrlID() : IDOK);
    }
}

void CDialogDriver::Escape() {
    m_dialog.DispatchCommand(IDCANCEL);
}

void CDialogDriver::CloseBox() {
    m_dialog.DispatchCommand(IDCANCEL);
}

void CDialogDriver::TreeSelected(int treeId, HTREEITEM entry) {
    if (CWnd* control = m_dialog.GetDlgItem(treeId)) {
        control->Tree().SelectItem(entry);
    }
}

void CDialogDriver::TreeRightClick(int treeId) {
    m_dialog.Dispatch(CDialog::Event::TreeRightClick, treeId);
}

void CDialogDriver::TreeDoubleClick(int treeId) {
    m_dialog.Dispatch(CDialog::Event::TreeDoubleClick, treeId);
}

bool CDialogDriver::TreeEndLabelEdit(int treeId, HTREEITEM entry, const std::string* text) {
    const bool keep = m_dialog.DispatchEndLabelEdit(treeId, entry, text);
    CWnd* control = m_dialog.GetDlgItem(treeId);
    // A handler that renamed the entry itself (the item whose name the label shows) leaves
    // nothing to do: the store takes no second copy of the text.
    if (keep && text && control && control->Tree().GetItemText(entry) != *text) {
        control->Tree().SetItemText(entry, *text);
    }
    return keep;
}

void CDialogDriver::Paint(CPaintDC& dc) {
    m_dialog.OnPaint(dc);
}

void CDialogDriver::Timer(int id) {
    if (m_dialog.IsRunning()) {
        m_dialog.Dispatch(CDialog::Event::Timer, id);
    }
}
