// The tree control: the view bound to the control's tree store through the model adapter.
#include <QEvent>
#include <QMouseEvent>
#include <QTreeView>

#include "platform/DialogDriver.h"
#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTreeModel.h"
#include "platform/qt/QtWidgets.h"

namespace {
QTreeView* NewTree(const CWnd& state, QWidget* parent) {
    auto* tree = new QTreeView(parent);
    tree->setHeaderHidden(true);
    tree->setRootIsDecorated(state.HasStyle(STYLE_LINESATROOT));
    tree->setItemsExpandable(state.HasStyle(STYLE_HASBUTTONS));
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setEditTriggers(state.HasStyle(STYLE_EDITLABELS) ? QAbstractItemView::SelectedClicked |
                                                                 QAbstractItemView::EditKeyPressed
                                                           : QAbstractItemView::NoEditTriggers);
    tree->setExpandsOnDoubleClick(true);
    return tree;
}
}  // namespace

CQtTreeControl::CQtTreeControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, NewTree(state, parent), host), m_pView(static_cast<QTreeView*>(m_pWidget)) {
    // A right click reports and leaves the selection as it is.
    m_pView->viewport()->installEventFilter(new CQtEventFilter(
        [this](QObject*, QEvent* event) {
            const bool press = event->type() == QEvent::MouseButtonPress;
            const bool release = event->type() == QEvent::MouseButtonRelease;
            if ((!press && !release) ||
                static_cast<QMouseEvent*>(event)->button() != Qt::RightButton) {
                return false;
            }
            if (release) {
                m_host.Handle([this](CDialogDriver& driver) { driver.TreeRightClick(Id()); });
            }
            return true;
        },
        m_pView));
    // Queued, so that the view has finished with the double click before the logic runs: the
    // first click of a double click on the selected entry arms the delayed label editing, and
    // only the view's own handling of the double click disarms it. A handler that opens a modal
    // dialog straight from the signal would see the label editor open under its dialog.
    QObject::connect(
        m_pView, &QTreeView::doubleClicked, m_pView,
        [this] { m_host.Handle([this](CDialogDriver& driver) { driver.TreeDoubleClick(Id()); }); },
        Qt::QueuedConnection);
    QObject::connect(m_pView, &QTreeView::expanded, m_pView,
                     [this](const QModelIndex& index) { Expand(index, TVE_EXPAND); });
    QObject::connect(m_pView, &QTreeView::collapsed, m_pView,
                     [this](const QModelIndex& index) { Expand(index, TVE_COLLAPSE); });
}

CQtTreeControl::~CQtTreeControl() {
    // The view goes with the window; the model takes itself off its store.
    delete m_pModel;
}

QWidget* CQtTreeControl::Client() const {
    return m_pView->viewport();
}

void CQtTreeControl::Expand(const QModelIndex& index, TreeExpand code) {
    if (!m_bShowing && m_pModel) {
        m_pModel->Store().Expand(m_pModel->EntryOf(index), code);
    }
}

// The label's own width, not the row's: the tree's only column spans the whole view.
CRect CQtTreeControl::ItemRect(HTREEITEM entry) const {
    if (m_pModel == nullptr) {
        return CRect{};
    }
    const QRect row = m_pView->visualRect(m_pModel->IndexOf(entry));
    if (!row.isValid()) {
        return CRect{};
    }
    const int width = m_pView->fontMetrics().horizontalAdvance(ToQString(entry->Label())) + 6;
    return CRect{row.left(), row.top(), row.left() + width, row.bottom() + 1};
}

void CQtTreeControl::SyncKind() {
    CTreeStore& store = m_state.Tree();
    if (m_pModel == nullptr || &m_pModel->Store() != &store) {
        Bind(store);
    }
}

void CQtTreeControl::Bind(CTreeStore& store) {
    QAbstractItemDelegate* oldDelegate = m_pView->itemDelegate();
    m_pView->setModel(nullptr);
    delete m_pModel;
    m_pModel = new CQtTreeModel(store, m_state.HasStyle(STYLE_EDITLABELS));
    auto* delegate = new CQtLabelDelegate(*m_pModel, m_pView);
    delegate->onEndEdit = [this](HTREEITEM entry, const std::string* text) {
        m_host.Handle([&](CDialogDriver& driver) { driver.TreeEndLabelEdit(Id(), entry, text); });
    };
    m_pView->setItemDelegate(delegate);
    if (oldDelegate != nullptr && oldDelegate->parent() == m_pView) {
        oldDelegate->deleteLater();
    }
    m_pView->setModel(m_pModel);

    m_pModel->onCaretChanged = [this](HTREEITEM entry) { ShowCaret(entry); };
    m_pModel->onExpandChanged = [this](HTREEITEM entry) { ShowExpanded(entry); };
    m_pModel->onChangeDone = [this] { ShowCaret(m_pModel->Store().GetSelectedItem()); };
    QObject::connect(m_pView->selectionModel(), &QItemSelectionModel::currentChanged, m_pView,
                     [this, model = m_pModel](const QModelIndex& current) {
                         if (m_bShowing || model->Changing()) {
                             return;
                         }
                         m_host.Handle([&](CDialogDriver& driver) {
                             driver.TreeSelected(Id(), model->EntryOf(current));
                         });
                     });
    // Show the store as it stands: its expanded entries and its caret.
    for (HTREEITEM e = store.GetRootItem(); e != nullptr;) {
        if (e->Expanded()) {
            ShowExpanded(e);
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
    ShowCaret(store.GetSelectedItem());
}

void CQtTreeControl::ShowExpanded(HTREEITEM entry) {
    const bool showing = m_bShowing;
    m_bShowing = true;
    m_pView->setExpanded(m_pModel->IndexOf(entry), entry->Expanded());
    m_bShowing = showing;
}

void CQtTreeControl::ShowCaret(HTREEITEM entry) {
    const bool showing = m_bShowing;
    m_bShowing = true;
    const QModelIndex index = m_pModel->IndexOf(entry);
    if (index.isValid()) {
        m_pView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        m_pView->scrollTo(index);
    } else {
        m_pView->selectionModel()->clear();
    }
    m_bShowing = showing;
}
