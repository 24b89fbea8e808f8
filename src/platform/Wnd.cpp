#include "platform/Wnd.h"

#include "platform/Dialog.h"

CWnd::CWnd(CDialog& dialog, const CControlTemplate& resource)
    : m_dialog(dialog), m_resource(resource) {
    Reset();
}

void CWnd::Reset() {
    m_strText = m_resource.kind == ControlKind::Icon ? std::string() : m_resource.text;
    m_bEnabled = !HasStyle(STYLE_DISABLED);
    m_bVisible = !HasStyle(STYLE_HIDDEN);
    m_nCheck = 0;
    m_nLimitText = 0;
    m_ownLines.ResetContent();
}

bool CWnd::TakesFocus() const {
    switch (Kind()) {
        case ControlKind::Edit:
        case ControlKind::Button:
        case ControlKind::CheckBox:
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
        case ControlKind::TreeView:
            return true;
        default:
            return false;
    }
}

CRect CWnd::GetClientRect() const {
    const int border = HasStyle(STYLE_SUNKEN) ? 2 : 0;
    const int width = m_rect.Width() - 2 * border;
    const int height = m_rect.Height() - 2 * border;
    return CRect{0, 0, width > 0 ? width : 0, height > 0 ? height : 0};
}

void CWnd::SetFocus() {
    m_dialog.MoveFocus(GetDlgCtrlID());
}

CTreeStore& CWnd::Tree() {
    if (m_pTree == nullptr) {
        m_pOwnTree = std::make_unique<CTreeStore>();
        m_pTree = m_pOwnTree.get();
    }
    return *m_pTree;
}
