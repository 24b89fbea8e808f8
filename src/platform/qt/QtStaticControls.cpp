// The controls that show text or pictures: statics, frames, bars, group boxes and icons.
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>

#include "platform/DialogDriver.h"
#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtWidgets.h"

namespace {
QLabel* NewLabel(const CWnd& state, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(TextAlignment(state));
    if (state.HasStyle(STYLE_SUNKEN)) {
        label->setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
    }
    return label;
}

QWidget* NewDecor(const CWnd& state, QWidget* parent) {
    switch (state.Kind()) {
        case ControlKind::GroupBox:
            return new QGroupBox(parent);
        case ControlKind::Icon: {
            auto* icon = new QLabel(parent);
            if (state.Resource().image) {
                icon->setPixmap(QPixmap::fromImage(ImageOf(*state.Resource().image)));
            }
            return icon;
        }
        case ControlKind::Bar: {
            auto* bar = new QFrame(parent);
            bar->setAutoFillBackground(true);
            QPalette palette = bar->palette();
            palette.setColor(QPalette::Window, palette.color(QPalette::Highlight));
            bar->setPalette(palette);
            return bar;
        }
        default: {
            auto* frame = new QFrame(parent);
            frame->setFrameStyle(state.HasStyle(STYLE_SUNKEN) ? QFrame::WinPanel | QFrame::Sunken
                                                              : QFrame::Box | QFrame::Sunken);
            return frame;
        }
    }
}
}  // namespace

CQtStaticControl::CQtStaticControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, NewLabel(state, parent), host) {
    if (!state.HasStyle(STYLE_NOTIFY)) {
        return;
    }
    m_pWidget->installEventFilter(new CQtEventFilter(
        [this](QObject*, QEvent* event) {
            if (event->type() == QEvent::MouseButtonRelease &&
                static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                m_host.Handle([this](CDialogDriver& driver) { driver.Clicked(Id()); });
                return true;
            }
            return false;
        },
        m_pWidget));
}

// No accessible name is set: Qt reads out the text the label shows now.
void CQtStaticControl::ShowText(const QString& text) {
    static_cast<QLabel*>(m_pWidget)->setText(text);
}

// A group box stays below the controls it frames.
CQtDecorControl::CQtDecorControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, NewDecor(state, parent), host) {
    if (state.Kind() == ControlKind::GroupBox) {
        m_pWidget->lower();
    }
}

void CQtDecorControl::ShowText(const QString& text) {
    if (auto* box = qobject_cast<QGroupBox*>(m_pWidget)) {
        box->setTitle(text);
    }
}
