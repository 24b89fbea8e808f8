#include "platform/qt/QtControl.h"

#include <QLabel>
#include <QWidget>
#include <algorithm>
#include <cctype>

#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtText.h"

CQtControl::CQtControl(CWnd& state, QWidget* widget, CQtControlHost& host)
    : m_state(state), m_pWidget(widget), m_host(host) {
    m_pWidget->setObjectName(QString::number(state.GetDlgCtrlID()));
}

CQtControl::~CQtControl() = default;

int CQtControl::Id() const {
    return m_state.GetDlgCtrlID();
}

void CQtControl::NameAfter(const CQtControl* describer, bool withOwnText) {
    m_pDescriber = describer ? &describer->m_state : nullptr;
    m_pDescriberWidget = describer ? describer->m_pWidget : nullptr;
    m_bWithOwnText = withOwnText;
    m_bNamed = true;
}

QString CQtControl::NameNow() const {
    if (m_pDescriber == nullptr) {
        return ToQString(m_state.Resource().text);
    }
    const QString described = ToQString(m_pDescriber->GetWindowText());
    return m_bWithOwnText ? described + " " + ToQString(m_state.GetWindowText()) : described;
}

// On Linux a drop-down list's accessible name is the line it shows, and a screen reader finds
// its label through the label's relation instead; the first control a static describes gets it.
void CQtControl::LabelledBy() {
    auto* label = qobject_cast<QLabel*>(m_pDescriberWidget);
    if (label != nullptr && label->buddy() == nullptr) {
        label->setBuddy(m_pWidget);
    }
}

void CQtControl::TextShown(std::string text) {
    m_shownText = std::move(text);
    m_bTextShown = true;
}

void CQtControl::ShowStateText() {
    m_bTextShown = false;
    Sync();
}

void CQtControl::Sync() {
    const CRect rect = m_state.GetWindowRect();
    if (rect != m_rect) {
        m_pWidget->setGeometry(rect.left, rect.top, rect.Width(), ShownHeight(rect));
        m_rect = rect;
    }
    if (m_state.LoweredCount() != m_nLowered) {
        m_pWidget->lower();
        m_nLowered = m_state.LoweredCount();
    }
    if (!m_bTextShown || m_state.GetWindowText() != m_shownText) {
        ShowText(ControlTextToQString(m_state, m_state.GetWindowText()));
        TextShown(m_state.GetWindowText());
    }
    if (m_state.IsWindowEnabled() != m_bEnabled) {
        m_bEnabled = m_state.IsWindowEnabled();
        m_pWidget->setEnabled(m_bEnabled);
    }
    if (m_state.IsWindowVisible() != m_bVisible) {
        m_bVisible = m_state.IsWindowVisible();
        m_pWidget->setVisible(m_bVisible);
    }
    // A control named after itself needs nothing: Qt reads out the text it shows.
    if (m_bNamed) {
        const QString name = NameNow();
        if (!m_bNameShown || name != m_shownName) {
            m_pWidget->setAccessibleName(name);
            if (!m_bNameShown) {
                LabelledBy();
            }
            m_shownName = name;
            m_bNameShown = true;
        }
    }
    SyncKind();
}

std::unique_ptr<CQtControl> CreateQtControl(CWnd& state, QWidget* parent, CQtControlHost& host) {
    switch (state.Kind()) {
        case ControlKind::Edit:
            return std::make_unique<CQtEditControl>(state, parent, host);
        case ControlKind::Button:
        case ControlKind::CheckBox:
            return std::make_unique<CQtButtonControl>(state, parent, host);
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            return std::make_unique<CQtLineControl>(state, parent, host);
        case ControlKind::TreeView:
            return std::make_unique<CQtTreeControl>(state, parent, host);
        case ControlKind::Static:
            return std::make_unique<CQtStaticControl>(state, parent, host);
        case ControlKind::Frame:
        case ControlKind::Bar:
        case ControlKind::GroupBox:
        case ControlKind::Icon:
            break;
    }
    return std::make_unique<CQtDecorControl>(state, parent, host);
}

namespace {
bool Describes(const CWnd& control) {
    return control.Kind() == ControlKind::Static || control.Kind() == ControlKind::CheckBox;
}

// Text made only of symbols ("...", "+") says nothing to a listener.
bool SaysNothing(const std::string& text) {
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return std::isalnum(static_cast<unsigned char>(c)); });
}

// The nearest check box or static whose row overlaps the control's, left of it; positions in
// dialog units, as the template lays the rows out.
const CQtControl* OnTheRow(const std::vector<std::unique_ptr<CQtControl>>& controls,
                           const CControlTemplate& own) {
    const CQtControl* best = nullptr;
    for (const auto& control : controls) {
        const CControlTemplate& other = control->State().Resource();
        const bool sameRow = other.y < own.y + own.cy && own.y < other.y + other.cy;
        if (!Describes(control->State()) || !sameRow || other.x + other.cx > own.x) {
            continue;
        }
        if (best == nullptr || other.x > best->State().Resource().x) {
            best = control.get();
        }
    }
    return best;
}
}  // namespace

void NameControls(const std::vector<std::unique_ptr<CQtControl>>& controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const CWnd& state = controls[i]->State();
        const bool symbolButton =
            state.Kind() == ControlKind::Button && SaysNothing(state.Resource().text);
        if (!state.TakesFocus() || Describes(state) ||
            (state.Kind() == ControlKind::Button && !symbolButton)) {
            continue;
        }
        const CQtControl* describer = OnTheRow(controls, state.Resource());
        if (describer == nullptr && state.Resource().text.empty() && i > 0 &&
            controls[i - 1]->State().Kind() == ControlKind::Static) {
            describer = controls[i - 1].get();
        }
        if (describer != nullptr || !symbolButton) {
            controls[i]->NameAfter(describer, symbolButton);
        }
    }
}
