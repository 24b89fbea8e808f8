// A running dialog shown with Qt Widgets: one control object per control of the template
// (dialog units scaled by the font), the user's actions handed to the framework, and the
// controls' state shown again after every event.
#pragma once

#include <QPointer>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Backend.h"
#include "platform/DialogDriver.h"
#include "platform/Geometry.h"
#include "platform/qt/QtControl.h"

class CDialog;
class CQtDialog;
class CQtClientArea;
class QAction;
class QMenu;
class QTimer;
class QWidget;
struct CMenuItem;

class CQtDialogWindow : public CDialogWindow, private CQtControlHost {
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
    void SetTimer(int id, unsigned elapseMs) override;
    void KillTimer(int id) override;
    void MenuListChanged(int listId) override;

    QWidget* Window() const;
    CDialog& Dialog() const { return m_dialog; }
    // Shows every control's state as the logic left it.
    void Sync();

private:
    void Handle(const std::function<void(CDialogDriver&)>& event) override;
    CDialogDriver& Driver() override { return m_driver; }

    void BuildControls();
    void BuildMenu(QMenu* menu, const std::vector<CMenuItem>& items);
    void AddCommand(QMenu* menu, const CMenuItem& item);
    // A list's entries, in place of those it showed.
    void FillList(int listId);
    void OnFocusChanged(QWidget* now);
    CQtControl* Find(int id) const;

    CDialog& m_dialog;
    CDialogDriver m_driver;
    QPointer<CQtDialog> m_pWindow;
    CQtClientArea* m_pClient = nullptr;
    std::vector<std::unique_ptr<CQtControl>> m_controls;
    std::vector<QAction*> m_menuCommands;  // the menu bar's command entries
    std::map<int, QMenu*> m_lists;         // the menu's lists by id
    std::map<int, QTimer*> m_timers;
    int m_nBaseX = 6;
    int m_nBaseY = 13;
    bool m_bMovingFocus = false;
};
