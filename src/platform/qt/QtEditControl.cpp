#include <QLineEdit>

#include "platform/DialogDriver.h"
#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtWidgets.h"

CQtEditControl::CQtEditControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, new QLineEdit(parent), host), m_pEdit(static_cast<QLineEdit*>(m_pWidget)) {
    m_pEdit->setReadOnly(state.IsReadOnly());
    m_pEdit->setAlignment(TextAlignment(state));
    // A path takes any character: what Windows-1252 cannot hold goes into it as UTF-8.
    if (!state.HasStyle(STYLE_PATH)) {
        m_pEdit->setValidator(new CWindows1252Validator(state.HasStyle(STYLE_DIGITS), m_pEdit));
    }
    // textChanged, not textEdited: text an assistive tool sets must reach the dialog as typing
    // does, or Accept would take the stale text.
    QObject::connect(m_pEdit, &QLineEdit::textChanged, m_pEdit,
                     [this](const QString& text) { OnTextChanged(text); });
}

void CQtEditControl::OnTextChanged(const QString& text) {
    if (m_bShowing) {
        return;
    }
    std::string bytes;
    if (m_state.HasStyle(STYLE_PATH)) {
        bytes = PathFromDisplay(text, m_setText);
    } else if (!FromQString(text, bytes)) {
        ShowStateText();  // set from outside with characters Windows-1252 cannot hold
        return;
    }
    TextShown(bytes);
    m_host.Driver().TextChanged(Id(), bytes);
}

void CQtEditControl::ShowText(const QString& text) {
    m_setText = m_state.GetWindowText();
    m_bShowing = true;
    m_pEdit->setText(text);
    m_bShowing = false;
}

void CQtEditControl::SyncKind() {
    // A new limit cuts the text shown, not the text the logic set.
    if (m_state.GetLimitText() != m_nLimit) {
        m_nLimit = m_state.GetLimitText();
        m_bShowing = true;
        m_pEdit->setMaxLength(m_nLimit > 0 ? m_nLimit : 32767);
        m_bShowing = false;
    }
}
