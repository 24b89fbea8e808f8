#include "platform/qt/QtDialogWindow.h"

#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/Dialog.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtMenus.h"
#include "platform/qt/QtPaintDC.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtWidgets.h"

namespace {
// The dialog font's base units, measured as the original system measured them.
void BaseUnits(const QFont& font, int& baseX, int& baseY) {
    const QFontMetrics metrics(font);
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    baseX = (metrics.horizontalAdvance(alphabet) / 26 + 1) / 2;
    baseY = metrics.height();
}
}  // namespace

CQtDialogWindow::CQtDialogWindow(CDialog& dialog, QWidget* owner)
    : m_dialog(dialog), m_driver(dialog), m_pWindow(new CQtDialog(owner)) {
    const CDialogTemplate& resource = dialog.Resource();
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (resource.style & DIALOG_CLOSEBOX) {
        flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    }
    m_pWindow->setWindowFlags(flags);
    m_pWindow->setWindowTitle(ToQString(resource.caption));
    m_pWindow->setModal(true);
    BaseUnits(m_pWindow->font(), m_nBaseX, m_nBaseY);

    auto* layout = new QVBoxLayout(m_pWindow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (resource.menu != nullptr) {
        auto* menuBar = new QMenuBar(m_pWindow);
        for (const CMenuItem& item : resource.menu->items) {
            if (item.IsPopup()) {
                BuildMenu(menuBar->addMenu(ToQString(item.text)), item.popup);
            } else {
                const int id = item.id;
                QObject::connect(
                    menuBar->addAction(ToQString(item.text)), &QAction::triggered, m_pWindow,
                    [this, id] { Handle([id](CDialogDriver& driver) { driver.Command(id); }); });
            }
        }
        layout->setMenuBar(menuBar);
    }
    m_pClient = new CQtClientArea(m_pWindow);
    m_pClient->setFixedSize(DluToPixelsX(resource.cx, m_nBaseX),
                            DluToPixelsY(resource.cy, m_nBaseY));
    m_pClient->onPaint = [this](QPainter& painter) {
        CQtPaintDC dc(painter, *m_pClient);
        m_driver.Paint(dc);
    };
    layout->addWidget(m_pClient);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    m_pWindow->onEnter = [this] { Handle([](CDialogDriver& driver) { driver.Enter(); }); };
    m_pWindow->onEscape = [this] { Handle([](CDialogDriver& driver) { driver.Escape(); }); };
    // Without a close box, a close request from the window manager is taken as Escape.
    const bool closeBox = (resource.style & DIALOG_CLOSEBOX) != 0;
    m_pWindow->onClose = [this, closeBox] {
        Handle(
            [closeBox](CDialogDriver& driver) { closeBox ? driver.CloseBox() : driver.Escape(); });
    };
    BuildControls();
    QObject::connect(qApp, &QApplication::focusChanged, m_pWindow,
                     [this](QWidget*, QWidget* now) { OnFocusChanged(now); });
}

// The widgets go first, with the window; the controls then release what they own.
CQtDialogWindow::~CQtDialogWindow() {
    delete m_pWindow;
    m_controls.clear();
}

QWidget* CQtDialogWindow::Window() const {
    return m_pWindow;
}

void CQtDialogWindow::BuildMenu(QMenu* menu, const std::vector<CMenuItem>& items) {
    for (const CMenuItem& item : items) {
        if (item.IsSeparator()) {
            menu->addSeparator();
        } else if (item.list) {
            m_lists[item.id] = menu->addMenu(ToQString(item.text));
            FillList(item.id);
        } else if (item.IsPopup()) {
            BuildMenu(menu->addMenu(ToQString(item.text)), item.popup);
        } else {
            AddCommand(menu, item);
        }
    }
}

void CQtDialogWindow::AddCommand(QMenu* menu, const CMenuItem& item) {
    const int id = item.id;
    QAction* action = AddMenuCommand(*menu, item);
    m_menuCommands.push_back(action);
    QObject::connect(action, &QAction::triggered, m_pWindow,
                     [this, id] { Handle([id](CDialogDriver& driver) { driver.Command(id); }); });
}

// An empty list shows greyed, as a menu with nothing to choose.
void CQtDialogWindow::FillList(int listId) {
    QMenu* menu = m_lists.at(listId);
    for (QAction* old : menu->actions()) {
        std::erase(m_menuCommands, old);
    }
    menu->clear();
    const std::vector<CMenuItem>& entries = m_dialog.MenuList(listId);
    for (const CMenuItem& entry : entries) {
        AddCommand(menu, entry);
    }
    menu->menuAction()->setEnabled(!entries.empty());
}

void CQtDialogWindow::MenuListChanged(int listId) {
    if (m_lists.count(listId) != 0) {
        FillList(listId);
        Sync();
    }
}

void CQtDialogWindow::SetTimer(int id, unsigned elapseMs) {
    QTimer*& timer = m_timers[id];
    if (timer == nullptr) {
        timer = new QTimer(m_pWindow);
        QObject::connect(timer, &QTimer::timeout, m_pWindow,
                         [this, id] { Handle([id](CDialogDriver& driver) { driver.Timer(id); }); });
    }
    timer->start(static_cast<int>(elapseMs));
}

void CQtDialogWindow::KillTimer(int id) {
    if (auto found = m_timers.find(id); found != m_timers.end()) {
        found->second->stop();
    }
}

void CQtDialogWindow::BuildControls() {
    for (auto& state : m_dialog.Controls()) {
        const CControlTemplate& r = state->Resource();
        const int left = DluToPixelsX(r.x, m_nBaseX);
        const int top = DluToPixelsY(r.y, m_nBaseY);
        state->MoveWindow(CRect{left, top, left + DluToPixelsX(r.cx, m_nBaseX),
                                top + DluToPixelsY(r.cy, m_nBaseY)});
        m_controls.push_back(CreateQtControl(*state, m_pClient, *this));
    }
    NameControls(m_controls);
}

void CQtDialogWindow::Handle(const std::function<void(CDialogDriver&)>& event) {
    event(m_driver);
    if (m_pWindow) {
        Sync();
    }
}

void CQtDialogWindow::Sync() {
    for (auto& control : m_controls) {
        control->Sync();
    }
    // Kept current, not only when a menu opens: a disabled entry's keys do nothing.
    for (QAction* action : m_menuCommands) {
        action->setEnabled(m_dialog.IsCommandEnabled(action->data().toInt()));
    }
}

void CQtDialogWindow::RunModalLoop() {
    Sync();
    m_pWindow->exec();
}

void CQtDialogWindow::EndModalLoop() {
    if (m_pWindow) {
        m_pWindow->done(0);
    }
}

void CQtDialogWindow::FocusMoved(int id) {
    if (CQtControl* control = Find(id)) {
        m_bMovingFocus = true;
        control->Widget()->setFocus(Qt::OtherFocusReason);
        m_bMovingFocus = false;
    }
}

// The user moved the focus within the dialog (a click, Tab): the framework hears of it, and an
// edit that lost it reports before the click that took it is handled.
void CQtDialogWindow::OnFocusChanged(QWidget* now) {
    if (m_bMovingFocus || now == nullptr || !m_pWindow || now->window() != m_pWindow) {
        return;
    }
    for (QWidget* w = now; w != nullptr && w != m_pClient; w = w->parentWidget()) {
        for (const auto& control : m_controls) {
            if (control->Widget() == w) {
                const int id = control->Id();
                if (id != m_dialog.GetFocusId()) {
                    Handle([id](CDialogDriver& driver) { driver.FocusMovedTo(id); });
                }
                return;
            }
        }
    }
}

void CQtDialogWindow::Redraw() {
    Sync();
    m_pClient->repaint();
}

bool CQtDialogWindow::IsIconic() const {
    return m_pWindow && m_pWindow->isMinimized();
}

CRect CQtDialogWindow::GetClientRect() const {
    return CRect{0, 0, m_pClient->width(), m_pClient->height()};
}

CRect CQtDialogWindow::GetTreeItemRect(int treeId, HTREEITEM entry) const {
    const auto* tree = dynamic_cast<const CQtTreeControl*>(Find(treeId));
    return tree ? tree->ItemRect(entry) : CRect{};
}

CPoint CQtDialogWindow::ClientToScreen(int id, CPoint point) const {
    const CQtControl* control = Find(id);
    if (control == nullptr) {
        return point;
    }
    const QPoint global = control->Client()->mapToGlobal(QPoint(point.x, point.y));
    return CPoint{global.x(), global.y()};
}

void CQtDialogWindow::SetIcon(const CPixelImage& icon, bool) {
    m_pWindow->setWindowIcon(QIcon(QPixmap::fromImage(ImageOf(icon))));
}

CQtControl* CQtDialogWindow::Find(int id) const {
    for (const auto& control : m_controls) {
        if (control->Id() == id) {
            return control.get();
        }
    }
    return nullptr;
}
