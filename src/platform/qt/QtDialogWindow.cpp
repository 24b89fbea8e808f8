#include "platform/qt/QtDialogWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "platform/Dialog.h"
#include "platform/qt/QtPaintDC.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTreeModel.h"
#include "platform/qt/QtWidgets.h"

namespace {
// The dialog font's base units, measured as the original system measured them.
void BaseUnits(const QFont& font, int& baseX, int& baseY) {
    const QFontMetrics metrics(font);
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    baseX = (metrics.horizontalAdvance(alphabet) / 26 + 1) / 2;
    baseY = metrics.height();
}

Qt::Alignment TextAlignment(const CWnd& state) {
    const Qt::Alignment horizontal = state.HasStyle(STYLE_CENTER)  ? Qt::AlignHCenter
                                     : state.HasStyle(STYLE_RIGHT) ? Qt::AlignRight
                                                                   : Qt::AlignLeft;
    return horizontal | Qt::AlignVCenter;
}

QImage ImageOf(const CPixelImage& image) {
    return QImage(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                  image.width * 4, QImage::Format_ARGB32)
        .copy();
}

// The accessible name: the control's own text, or for a control that shows no caption of its
// own, the text of the static just before it.
QString AccessibleName(const CDialogTemplate& resource, std::size_t index) {
    const CControlTemplate& control = resource.controls[index];
    const bool captioned =
        control.kind == ControlKind::Edit || control.kind == ControlKind::ListBox ||
        control.kind == ControlKind::ComboBox || control.kind == ControlKind::TreeView;
    if (captioned && index > 0 && resource.controls[index - 1].kind == ControlKind::Static) {
        return ToQString(resource.controls[index - 1].text);
    }
    return ToQString(control.text);
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
                QObject::connect(menuBar->addAction(ToQString(item.text)), &QAction::triggered,
                                 m_pWindow, [this, id] { Handle([&] { m_driver.Command(id); }); });
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

    m_pWindow->onEnter = [this] { Handle([&] { m_driver.Enter(); }); };
    m_pWindow->onEscape = [this] { Handle([&] { m_driver.Escape(); }); };
    // Without a close box, a close request from the window manager is taken as Escape.
    const bool closeBox = (resource.style & DIALOG_CLOSEBOX) != 0;
    m_pWindow->onClose = [this, closeBox] {
        Handle([&] { closeBox ? m_driver.CloseBox() : m_driver.Escape(); });
    };
    BuildControls();
    QObject::connect(qApp, &QApplication::focusChanged, m_pWindow,
                     [this](QWidget*, QWidget* now) { OnFocusChanged(now); });
}

CQtDialogWindow::~CQtDialogWindow() {
    delete m_pWindow;
    for (Control& control : m_controls) {
        delete control.model;  // takes itself off its store
    }
}

QWidget* CQtDialogWindow::Window() const {
    return m_pWindow;
}

void CQtDialogWindow::BuildMenu(QMenu* menu, const std::vector<CMenuItem>& items) {
    for (const CMenuItem& item : items) {
        if (item.IsSeparator()) {
            menu->addSeparator();
        } else if (item.IsPopup()) {
            BuildMenu(menu->addMenu(ToQString(item.text)), item.popup);
        } else {
            const int id = item.id;
            QObject::connect(menu->addAction(ToQString(item.text)), &QAction::triggered, m_pWindow,
                             [this, id] { Handle([&] { m_driver.Command(id); }); });
        }
    }
}

void CQtDialogWindow::BuildControls() {
    auto& states = m_dialog.Controls();
    m_controls.reserve(states.size());
    for (std::size_t i = 0; i < states.size(); ++i) {
        Control control;
        control.state = states[i].get();
        const CControlTemplate& r = control.state->Resource();
        const int left = DluToPixelsX(r.x, m_nBaseX);
        const int top = DluToPixelsY(r.y, m_nBaseY);
        control.state->MoveWindow(CRect{left, top, left + DluToPixelsX(r.cx, m_nBaseX),
                                        top + DluToPixelsY(r.cy, m_nBaseY)});
        control.widget = CreateWidget(control);
        control.widget->setObjectName(QString::number(r.id));
        control.widget->setAccessibleName(AccessibleName(m_dialog.Resource(), i));
        m_controls.push_back(control);
    }
    for (Control& control : m_controls) {
        Connect(control);
        if (control.state->Kind() == ControlKind::GroupBox) {
            control.widget->lower();
        }
    }
}

QWidget* CQtDialogWindow::CreateWidget(Control& control) {
    const CWnd& state = *control.state;
    switch (state.Kind()) {
        case ControlKind::Edit: {
            auto* edit = new QLineEdit(m_pClient);
            edit->setReadOnly(state.IsReadOnly());
            edit->setAlignment(TextAlignment(state));
            edit->setValidator(new CWindows1252Validator(state.HasStyle(STYLE_DIGITS), edit));
            return edit;
        }
        case ControlKind::Button: {
            auto* button = new QPushButton(m_pClient);
            button->setAutoDefault(false);
            button->setDefault(state.HasStyle(STYLE_DEFAULT));
            return button;
        }
        case ControlKind::CheckBox:
            return new QCheckBox(m_pClient);
        case ControlKind::ListBox: {
            auto* list = new QListWidget(m_pClient);
            list->setSelectionMode(state.HasStyle(STYLE_NOSELECTION)
                                       ? QAbstractItemView::NoSelection
                                       : QAbstractItemView::SingleSelection);
            return list;
        }
        case ControlKind::ComboBox:
            return new QComboBox(m_pClient);
        case ControlKind::TreeView: {
            auto* tree = new QTreeView(m_pClient);
            tree->setHeaderHidden(true);
            tree->setRootIsDecorated(state.HasStyle(STYLE_LINESATROOT));
            tree->setItemsExpandable(state.HasStyle(STYLE_HASBUTTONS));
            tree->setUniformRowHeights(true);
            tree->setSelectionMode(QAbstractItemView::SingleSelection);
            tree->setEditTriggers(state.HasStyle(STYLE_EDITLABELS)
                                      ? QAbstractItemView::SelectedClicked |
                                            QAbstractItemView::EditKeyPressed
                                      : QAbstractItemView::NoEditTriggers);
            tree->setExpandsOnDoubleClick(true);
            return tree;
        }
        case ControlKind::Frame: {
            auto* frame = new QFrame(m_pClient);
            frame->setFrameStyle(state.HasStyle(STYLE_SUNKEN) ? QFrame::WinPanel | QFrame::Sunken
                                                              : QFrame::Box | QFrame::Sunken);
            return frame;
        }
        case ControlKind::Bar: {
            auto* bar = new QFrame(m_pClient);
            bar->setAutoFillBackground(true);
            QPalette palette = bar->palette();
            palette.setColor(QPalette::Window, palette.color(QPalette::Highlight));
            bar->setPalette(palette);
            return bar;
        }
        case ControlKind::GroupBox:
            return new QGroupBox(m_pClient);
        case ControlKind::Icon: {
            auto* icon = new QLabel(m_pClient);
            if (state.Resource().image) {
                icon->setPixmap(QPixmap::fromImage(ImageOf(*state.Resource().image)));
            }
            return icon;
        }
        case ControlKind::Static:
            break;
    }
    auto* label = new QLabel(m_pClient);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(TextAlignment(state));
    if (state.HasStyle(STYLE_SUNKEN)) {
        label->setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
    }
    return label;
}

template <class F>
void CQtDialogWindow::Handle(F&& event) {
    event();
    if (m_pWindow) {
        Sync();
    }
}

void CQtDialogWindow::Connect(Control& control) {
    const int id = control.state->GetDlgCtrlID();
    QWidget* widget = control.widget;
    switch (control.state->Kind()) {
        case ControlKind::Edit:
            QObject::connect(static_cast<QLineEdit*>(widget), &QLineEdit::textEdited, m_pWindow,
                             [this, id](const QString& text) {
                                 std::string bytes;
                                 if (FromQString(text, bytes)) {
                                     Find(id)->shown.text = bytes;
                                     m_driver.TextChanged(id, bytes);
                                 }
                             });
            break;
        case ControlKind::Button:
        case ControlKind::CheckBox:
            QObject::connect(static_cast<QAbstractButton*>(widget), &QAbstractButton::clicked,
                             m_pWindow, [this, id] { Handle([&] { m_driver.Clicked(id); }); });
            break;
        case ControlKind::Static:
            if (control.state->HasStyle(STYLE_NOTIFY)) {
                widget->installEventFilter(new CQtEventFilter(
                    [this, id](QObject*, QEvent* event) {
                        if (event->type() == QEvent::MouseButtonRelease &&
                            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                            Handle([&] { m_driver.Clicked(id); });
                            return true;
                        }
                        return false;
                    },
                    widget));
            }
            break;
        case ControlKind::ComboBox:
            QObject::connect(static_cast<QComboBox*>(widget), &QComboBox::activated, m_pWindow,
                             [this, id](int index) {
                                 Find(id)->shown.selection = index;
                                 Handle([&] { m_driver.SelectionChanged(id, index); });
                             });
            break;
        case ControlKind::ListBox:
            QObject::connect(static_cast<QListWidget*>(widget), &QListWidget::currentRowChanged,
                             m_pWindow, [this, id](int row) {
                                 if (m_bSyncing) {
                                     return;
                                 }
                                 Find(id)->shown.selection = row;
                                 Handle([&] { m_driver.SelectionChanged(id, row); });
                             });
            break;
        case ControlKind::TreeView: {
            auto* tree = static_cast<QTreeView*>(widget);
            // A right click reports and leaves the selection as it is.
            tree->viewport()->installEventFilter(new CQtEventFilter(
                [this, id](QObject*, QEvent* event) {
                    const bool press = event->type() == QEvent::MouseButtonPress;
                    const bool release = event->type() == QEvent::MouseButtonRelease;
                    if ((!press && !release) ||
                        static_cast<QMouseEvent*>(event)->button() != Qt::RightButton) {
                        return false;
                    }
                    if (release) {
                        Handle([&] { m_driver.TreeRightClick(id); });
                    }
                    return true;
                },
                tree));
            QObject::connect(tree, &QTreeView::doubleClicked, m_pWindow,
                             [this, id] { Handle([&] { m_driver.TreeDoubleClick(id); }); });
            QObject::connect(tree, &QTreeView::expanded, m_pWindow,
                             [this, id](const QModelIndex& index) {
                                 Control* c = Find(id);
                                 if (!m_bSyncing && c->model) {
                                     c->model->Store().Expand(c->model->EntryOf(index), TVE_EXPAND);
                                 }
                             });
            QObject::connect(
                tree, &QTreeView::collapsed, m_pWindow, [this, id](const QModelIndex& index) {
                    Control* c = Find(id);
                    if (!m_bSyncing && c->model) {
                        c->model->Store().Expand(c->model->EntryOf(index), TVE_COLLAPSE);
                    }
                });
            break;
        }
        default:
            break;
    }
}

void CQtDialogWindow::BindTree(Control& control) {
    auto* view = static_cast<QTreeView*>(control.widget);
    CTreeStore& store = control.state->Tree();
    if (control.model != nullptr && &control.model->Store() == &store) {
        return;
    }
    const int id = control.state->GetDlgCtrlID();
    QAbstractItemDelegate* oldDelegate = view->itemDelegate();
    view->setModel(nullptr);
    delete control.model;
    control.model = new CQtTreeModel(store, control.state->HasStyle(STYLE_EDITLABELS));
    auto* delegate = new CQtLabelDelegate(*control.model, view);
    delegate->onEndEdit = [this, id](HTREEITEM entry, const std::string* text) {
        Handle([&] { m_driver.TreeEndLabelEdit(id, entry, text); });
    };
    view->setItemDelegate(delegate);
    if (oldDelegate != nullptr && oldDelegate->parent() == view) {
        oldDelegate->deleteLater();
    }
    view->setModel(control.model);

    CQtTreeModel* model = control.model;
    model->onCaretChanged = [this, id](HTREEITEM entry) {
        if (Control* c = Find(id)) {
            ShowCaret(*c, entry);
        }
    };
    model->onExpandChanged = [this, view, model](HTREEITEM entry) {
        const bool syncing = m_bSyncing;
        m_bSyncing = true;
        view->setExpanded(model->IndexOf(entry), entry->Expanded());
        m_bSyncing = syncing;
    };
    model->onChangeDone = [this, id, model] {
        if (Control* c = Find(id)) {
            ShowCaret(*c, model->Store().GetSelectedItem());
        }
    };
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, m_pWindow,
                     [this, id, model](const QModelIndex& current) {
                         if (m_bSyncing || model->Changing()) {
                             return;
                         }
                         Handle([&] { m_driver.TreeSelected(id, model->EntryOf(current)); });
                     });
    // Show the store as it stands: its expanded entries and its caret.
    const bool syncing = m_bSyncing;
    m_bSyncing = true;
    for (HTREEITEM e = store.GetRootItem(); e != nullptr;) {
        if (e->Expanded()) {
            view->setExpanded(model->IndexOf(e), true);
        }
        if (e->ChildCount() > 0) {
            e = e->Child(0);
            continue;
        }
        while (e != nullptr && store.GetNextSiblingItem(e) == nullptr) {
            e = store.GetParentItem(e);
        }
        if (e != nullptr) {
            e = store.GetNextSiblingItem(e);
        }
    }
    m_bSyncing = syncing;
    ShowCaret(control, store.GetSelectedItem());
}

void CQtDialogWindow::ShowCaret(Control& control, HTREEITEM entry) {
    auto* view = static_cast<QTreeView*>(control.widget);
    const bool syncing = m_bSyncing;
    m_bSyncing = true;
    const QModelIndex index = control.model->IndexOf(entry);
    if (index.isValid()) {
        view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        view->scrollTo(index);
    } else {
        view->selectionModel()->clear();
    }
    m_bSyncing = syncing;
}

void CQtDialogWindow::SyncLines(Control& control) {
    const CLineStore& lines = control.state->Lines();
    std::vector<std::string> now;
    now.reserve(static_cast<std::size_t>(lines.GetCount()));
    for (int i = 0; i < lines.GetCount(); ++i) {
        now.push_back(lines.GetText(i));
    }
    const bool combo = control.state->Kind() == ControlKind::ComboBox;
    if (now != control.shown.lines) {
        QStringList items;
        for (const std::string& line : now) {
            items.push_back(ToQString(line));
        }
        if (combo) {
            auto* box = static_cast<QComboBox*>(control.widget);
            box->clear();
            box->addItems(items);
        } else {
            auto* list = static_cast<QListWidget*>(control.widget);
            list->clear();
            list->addItems(items);
        }
        control.shown.lines = std::move(now);
        control.shown.selection = -2;
    }
    const int selection = lines.GetCurSel();
    if (selection != control.shown.selection) {
        if (combo) {
            static_cast<QComboBox*>(control.widget)->setCurrentIndex(selection);
        } else {
            static_cast<QListWidget*>(control.widget)->setCurrentRow(selection);
        }
        control.shown.selection = selection;
    }
}

void CQtDialogWindow::SyncControl(Control& control) {
    CWnd& state = *control.state;
    QWidget* widget = control.widget;
    Shown& shown = control.shown;
    if (state.GetWindowRect() != shown.rect) {
        const CRect r = state.GetWindowRect();
        const int height = state.Kind() == ControlKind::ComboBox
                               ? std::min(r.Height(), widget->sizeHint().height())
                               : r.Height();
        widget->setGeometry(r.left, r.top, r.Width(), height);
        shown.rect = r;
    }
    if (state.LoweredCount() != shown.lowered) {
        widget->lower();
        shown.lowered = state.LoweredCount();
    }
    if (state.GetWindowText() != shown.text) {
        const QString text = ToQString(state.GetWindowText());
        switch (state.Kind()) {
            case ControlKind::Edit:
                static_cast<QLineEdit*>(widget)->setText(text);
                break;
            case ControlKind::Static:
                static_cast<QLabel*>(widget)->setText(text);
                break;
            case ControlKind::Button:
            case ControlKind::CheckBox:
                static_cast<QAbstractButton*>(widget)->setText(text);
                break;
            case ControlKind::GroupBox:
                static_cast<QGroupBox*>(widget)->setTitle(text);
                break;
            default:
                break;
        }
        shown.text = state.GetWindowText();
    }
    if (state.IsWindowEnabled() != shown.enabled) {
        widget->setEnabled(state.IsWindowEnabled());
        shown.enabled = state.IsWindowEnabled();
    }
    if (state.IsWindowVisible() != shown.visible) {
        widget->setVisible(state.IsWindowVisible());
        shown.visible = state.IsWindowVisible();
    }
    switch (state.Kind()) {
        case ControlKind::CheckBox:
            if (state.GetCheck() != shown.check) {
                static_cast<QCheckBox*>(widget)->setChecked(state.GetCheck() != 0);
                shown.check = state.GetCheck();
            }
            break;
        case ControlKind::Edit:
            if (state.GetLimitText() != shown.limit) {
                const int limit = state.GetLimitText();
                static_cast<QLineEdit*>(widget)->setMaxLength(limit > 0 ? limit : 32767);
                shown.limit = limit;
            }
            break;
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            SyncLines(control);
            break;
        case ControlKind::TreeView:
            BindTree(control);
            break;
        default:
            break;
    }
}

void CQtDialogWindow::Sync() {
    const bool syncing = m_bSyncing;
    m_bSyncing = true;
    for (Control& control : m_controls) {
        SyncControl(control);
    }
    m_bSyncing = syncing;
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
    const Control* control = Find(id);
    if (control == nullptr) {
        return;
    }
    m_bMovingFocus = true;
    control->widget->setFocus(Qt::OtherFocusReason);
    m_bMovingFocus = false;
}

// The user moved the focus within the dialog (a click, Tab): the framework hears of it, and an
// edit that lost it reports before the click that took it is handled.
void CQtDialogWindow::OnFocusChanged(QWidget* now) {
    if (m_bMovingFocus || now == nullptr || !m_pWindow || now->window() != m_pWindow) {
        return;
    }
    for (QWidget* w = now; w != nullptr && w != m_pClient; w = w->parentWidget()) {
        for (const Control& control : m_controls) {
            if (control.widget == w) {
                const int id = control.state->GetDlgCtrlID();
                if (id != m_dialog.GetFocusId()) {
                    Handle([&] { m_driver.FocusMovedTo(id); });
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

// The label's own width, not the row's: the tree's only column spans the whole view.
CRect CQtDialogWindow::GetTreeItemRect(int treeId, HTREEITEM entry) const {
    const Control* control = Find(treeId);
    QTreeView* view = TreeView(treeId);
    if (view == nullptr || control->model == nullptr) {
        return CRect{};
    }
    const QRect row = view->visualRect(control->model->IndexOf(entry));
    if (!row.isValid()) {
        return CRect{};
    }
    const int width = view->fontMetrics().horizontalAdvance(ToQString(entry->Label())) + 6;
    return CRect{row.left(), row.top(), row.left() + width, row.bottom() + 1};
}

CPoint CQtDialogWindow::ClientToScreen(int id, CPoint point) const {
    const Control* control = Find(id);
    if (control == nullptr) {
        return point;
    }
    QWidget* client = control->widget;
    if (QTreeView* view = TreeView(id)) {
        client = view->viewport();
    }
    const QPoint global = client->mapToGlobal(QPoint(point.x, point.y));
    return CPoint{global.x(), global.y()};
}

void CQtDialogWindow::SetIcon(const CPixelImage& icon, bool) {
    m_pWindow->setWindowIcon(QIcon(QPixmap::fromImage(ImageOf(icon))));
}

const CQtDialogWindow::Control* CQtDialogWindow::Find(int id) const {
    for (const Control& control : m_controls) {
        if (control.state->GetDlgCtrlID() == id) {
            return &control;
        }
    }
    return nullptr;
}

CQtDialogWindow::Control* CQtDialogWindow::Find(int id) {
    return const_cast<Control*>(std::as_const(*this).Find(id));
}

QTreeView* CQtDialogWindow::TreeView(int id) const {
    const Control* control = Find(id);
    return control && control->state->Kind() == ControlKind::TreeView
               ? static_cast<QTreeView*>(control->widget)
               : nullptr;
}
