// The kinds of control, each created, connected and kept in step with its state in one class:
// its own file holds all three.
#pragma once

#include <string>
#include <vector>

#include "base/TreeStore.h"
#include "platform/qt/QtControl.h"

class CQtTreeModel;
class QLineEdit;
class QModelIndex;
class QTreeView;

// An edit. It follows every change of its text that this control did not make itself: typing,
// and text set from outside (an assistive tool, a paste the widget takes).
class CQtEditControl : public CQtControl {
public:
    CQtEditControl(CWnd& state, QWidget* parent, CQtControlHost& host);

private:
    void ShowText(const QString& text) override;
    void SyncKind() override;
    void OnTextChanged(const QString& text);

    QLineEdit* m_pEdit;
    std::string m_setText;  // the text the program set last, for a path the user changes
    bool m_bShowing = false;
    int m_nLimit = -1;
};

// A push button or check box: a click goes to the framework, which toggles a check box first.
class CQtButtonControl : public CQtControl {
public:
    CQtButtonControl(CWnd& state, QWidget* parent, CQtControlHost& host);

private:
    void ShowText(const QString& text) override;
    void SyncKind() override;

    int m_nCheck = 0;
};

// A static text; a notifying one reports left clicks.
class CQtStaticControl : public CQtControl {
public:
    CQtStaticControl(CWnd& state, QWidget* parent, CQtControlHost& host);

private:
    void ShowText(const QString& text) override;
};

// What only shows: a frame, a bar, a group box, an icon.
class CQtDecorControl : public CQtControl {
public:
    CQtDecorControl(CWnd& state, QWidget* parent, CQtControlHost& host);

private:
    void ShowText(const QString& text) override;
};

// A list box or drop-down list showing the control's line store and its selection.
class CQtLineControl : public CQtControl {
public:
    CQtLineControl(CWnd& state, QWidget* parent, CQtControlHost& host);

private:
    void SyncKind() override;
    int ShownHeight(const CRect& rect) const override;
    void OnSelected(int index);

    bool m_bCombo;
    bool m_bShowing = false;
    std::vector<std::string> m_lines;
    int m_nSelection = -2;
};

// A tree control bound to the control's tree store through a model adapter; the view keeps
// the store's caret and expanded entries, and reports the user's gestures.
class CQtTreeControl : public CQtControl {
public:
    CQtTreeControl(CWnd& state, QWidget* parent, CQtControlHost& host);
    ~CQtTreeControl() override;

    QWidget* Client() const override;
    // The label part of entry's row, in the viewport's coordinates; empty when not shown.
    CRect ItemRect(HTREEITEM entry) const;

private:
    void SyncKind() override;
    void Bind(CTreeStore& store);
    void ShowCaret(HTREEITEM entry);
    void ShowExpanded(HTREEITEM entry);
    void Expand(const QModelIndex& index, TreeExpand code);

    QTreeView* m_pView;
    CQtTreeModel* m_pModel = nullptr;
    bool m_bShowing = false;
};
