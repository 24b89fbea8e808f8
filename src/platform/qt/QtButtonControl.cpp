#include <QCheckBox>
#include <QPushButton>

#include "platform/DialogDriver.h"
#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"

namespace {
QAbstractButton* NewButton(const CWnd& state, QWidget* parent) {
    if (state.Kind() == ControlKind::CheckBox) {
        return new QCheckBox(parent);
    }
    auto* button = new QPushButton(parent);
    // Enter goes to the framework, which picks the button as the original system did.
    button->setAutoDefault(false);
    button->setDefault(state.HasStyle(STYLE_DEFAULT));
    return button;
}
}  // namespace

CQtButtonControl::CQtButtonControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, NewButton(state, parent), host) {
    QObject::connect(
        static_cast<QAbstractButton*>(m_pWidget), &QAbstractButton::clicked, m_pWidget,
        [this] { m_host.Handle([this](CDialogDriver& driver) { driver.Clicked(Id()); }); });
}

// No accessible name is set: Qt reads out the text the button shows now.
void CQtButtonControl::ShowText(const QString& text) {
    static_cast<QAbstractButton*>(m_pWidget)->setText(text);
}

void CQtButtonControl::SyncKind() {
    if (m_state.Kind() == ControlKind::CheckBox && m_state.GetCheck() != m_nCheck) {
        m_nCheck = m_state.GetCheck();
        static_cast<QCheckBox*>(m_pWidget)->setChecked(m_nCheck != 0);
    }
}
