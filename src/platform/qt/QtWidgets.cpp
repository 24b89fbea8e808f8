#include "platform/qt/QtWidgets.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>

#include "platform/PixelImage.h"
#include "platform/Wnd.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTreeModel.h"

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

void CQtDialog::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        onEnter();
    } else if (event->modifiers() == Qt::NoModifier && event->key() == Qt::Key_Escape) {
        onEscape();
    } else {
        QWidget::keyPressEvent(event);
    }
}

// The window closes only through the framework's EndDialog.
void CQtDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    onClose();
}

void CQtClientArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (onPaint) {
        onPaint(painter);
    }
}

CQtLabelDelegate::CQtLabelDelegate(const CQtTreeModel& model, QObject* parent)
    : QStyledItemDelegate(parent), m_model(model) {
    QObject::connect(this, &QAbstractItemDelegate::closeEditor, this, [this](QWidget*) {
        if (!m_bCommitted && m_hEditing != nullptr && onEndEdit) {
            onEndEdit(m_hEditing, nullptr);
        }
        m_hEditing = nullptr;
        m_bCommitted = false;
    });
}

QWidget* CQtLabelDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
    auto* editor = new QLineEdit(parent);
    editor->setValidator(new CWindows1252Validator(false, editor));
    // Every key goes to the label while it is edited, none to the menu's keys: Delete, Ctrl+C
    // and the like edit the text, not the tree. Alt with a letter still opens a menu.
    editor->installEventFilter(new CQtEventFilter(
        [](QObject*, QEvent* event) {
            if (event->type() != QEvent::ShortcutOverride ||
                (static_cast<QKeyEvent*>(event)->modifiers() & Qt::AltModifier) != 0) {
                return false;
            }
            event->accept();
            return true;
        },
        editor));
    m_hEditing = m_model.EntryOf(index);
    m_bCommitted = false;
    return editor;
}

void CQtLabelDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                    const QModelIndex& index) const {
    std::string text;
    if (!FromQString(static_cast<QLineEdit*>(editor)->text(), text)) {
        return;
    }
    m_bCommitted = true;
    if (onEndEdit) {
        onEndEdit(m_model.EntryOf(index), &text);
    }
}
