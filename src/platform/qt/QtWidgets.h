// Small Qt pieces the dialog windows are built from.
#pragma once

#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <functional>
#include <string>

#include "base/TreeStore.h"

class CWnd;
struct CPixelImage;

class CQtTreeModel;

// A control's text alignment from its style; vertically centred.
Qt::Alignment TextAlignment(const CWnd& state);
// A copy of image's pixels.
QImage ImageOf(const CPixelImage& image);

// Hands a watched object's events to a function; true eats the event.
class CQtEventFilter : public QObject {
public:
    CQtEventFilter(std::function<bool(QObject*, QEvent*)> filter, QObject* parent)
        : QObject(parent), m_filter(std::move(filter)) {}
    bool eventFilter(QObject* watched, QEvent* event) override { return m_filter(watched, event); }

private:
    std::function<bool(QObject*, QEvent*)> m_filter;
};

// The dialog's own window: Enter, Escape and the close box go to the framework, which decides
// as the original system did; the client area is painted by the dialog's logic.
class CQtDialog : public QDialog {
public:
    explicit CQtDialog(QWidget* owner) : QDialog(owner) {}

    std::function<void()> onEnter;
    std::function<void()> onEscape;
    std::function<void()> onClose;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

class CQtClientArea : public QWidget {
public:
    explicit CQtClientArea(QWidget* parent) : QWidget(parent) {}
    std::function<void(QPainter&)> onPaint;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// In-place editing of a tree label: an editor that takes Windows-1252 only, and the end of
// editing reported with the new text or, when cancelled, with none.
class CQtLabelDelegate : public QStyledItemDelegate {
public:
    CQtLabelDelegate(const CQtTreeModel& model, QObject* parent);

    std::function<void(HTREEITEM, const std::string*)> onEndEdit;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    const CQtTreeModel& m_model;
    mutable HTREEITEM m_hEditing = nullptr;
    mutable bool m_bCommitted = false;
};
