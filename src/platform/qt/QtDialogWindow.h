// A running dialog shown with Qt Widgets: widgets built from the template (dialog units scaled
// by the font), the user's actions handed to the framework, and the controls' state shown
// again after every event.
#pragma once

#include <QPointer>
#include <memory>
#include <string>
#include <vector>

#include "platform/Backend.h"
#include "platform/DialogDriver.h"
#include "platform/Geometry.h"

class CDialog;
class CWnd;
class CQtDialog;
class CQtClientArea;
class CQtTreeModel;
class QMenu;
class QPainter;
class QTreeView;
class QWidget;
struct CMenuItem;

class CQtDialogWindow : public CDialogWindow {
public:
    CQtDialogWindow(CDialog& dialog, QWidget* owner);
    ~CQtDialogWindow() override;

    void RunModalLoop() override;
    void EndModalLoop() override;
    void FocusMoved(int id) override;
    void Redraw() override;
    bool IsIconic() const override;
    CRect GetClientRect() const override;
    CRect GetTreeItemRect(int treeId, HTREEITEM entry) const override;
    CPoint ClientToScreen(int id, CPoint point) const override;
    void SetIcon(const CPixelImage& icon, bool big) override;

    QWidget* Window() const;
    CDialog& Dialog() const { return m_dialog; }
    // Shows every control's state as the logic left it.
    void Sync();

private:
    // What a control showed when last synchronised, so only changes are pushed.
    struct Shown {
        std::string text;
        bool enabled = true;
        bool visible = true;
        int check = 0;
        int limit = -1;
        CRect rect{-1, -1, -1, -1};
        unsigned lowered = 0;
        std::vector<std::string> lines;
        int selection = -2;
    };
    struct Control {
        CWnd* state = nullptr;
        QWidget* widget = nullptr;
        Shown shown;
        CQtTreeModel* model = nullptr;  // tree controls
    };

    void BuildControls();
    QWidget* CreateWidget(Control& control);
    void Connect(Control& control);
    void SyncControl(Control& control);
    void SyncLines(Control& control);
    void BindTree(Control& control);
    void ShowCaret(Control& control, HTREEITEM entry);
    void BuildMenu(QMenu* menu, const std::vector<CMenuItem>& items);
    void OnFocusChanged(QWidget* now);
    // Runs a user event, then shows the state it left.
    template <class F>
    void Handle(F&& event);
    const Control* Find(int id) const;
    Control* Find(int id);
    QTreeView* TreeView(int id) const;

    CDialog& m_dialog;
    CDialogDriver m_driver;
    QPointer<CQtDialog> m_pWindow;
    CQtClientArea* m_pClient = nullptr;
    std::vector<Control> m_controls;
    int m_nBaseX = 6;
    int m_nBaseY = 13;
    bool m_bSyncing = false;
    bool m_bMovingFocus = false;
};
