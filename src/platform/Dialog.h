// The dialog base: a modal dialog built from a template, its controls' state, data exchange
// and the handlers the logic registers by control id. The logic reads like the behaviour it
// implements: "on focus lost on 1043 recompute", "take the fields", "close with result 1".
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Backend.h"
#include "platform/Controls.h"
#include "platform/DialogTemplate.h"
#include "platform/MessageBox.h"
#include "platform/PaintDC.h"
#include "platform/Wnd.h"

class CDataExchange;

// No control has the focus.
constexpr int kNoFocus = 0;

class CDialog {
public:
    explicit CDialog(const CDialogTemplate& resource);
    virtual ~CDialog();
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    // Shows the dialog and runs it until EndDialog; gives the result passed to EndDialog.
    int DoModal();
    void EndDialog(int result);
    bool IsRunning() const { return m_pWindow != nullptr && !m_bEnded; }

    // Takes the fields from the controls (true) or writes them to the controls (false). Taking
    // stops at the first field that fails its check; gives false then.
    bool UpdateData(bool bSaveAndValidate = true);

    // The control with id, or none.
    CWnd* GetDlgItem(int id);
    const CWnd* GetDlgItem(int id) const;
    // The id of the control that has the focus (kNoFocus for none).
    int GetFocusId() const { return m_nFocus; }
    // Moves the focus to control id; an edit losing it reports its focus-lost first.
    void GotoDlgCtrl(int id) { MoveFocus(id); }

    int MessageBox(const std::string& text, const std::string& caption, unsigned type = MB_OK);
    // Shows popup with its top-left corner at screen and runs the command chosen from it.
    void TrackPopupMenu(const CMenuItem& popup, CPoint screen);

    // The label rectangle of a tree entry, in the tree's client coordinates.
    CRect GetTreeItemRect(int treeId, HTREEITEM entry) const;
    CPoint ClientToScreen(int controlId, CPoint point) const;
    CRect GetClientRect() const;
    bool IsIconic() const;
    void SetIcon(const CPixelImage& icon, bool bigIcon);
    // Shows the controls as they now are and repaints at once (RedrawWindow with update-now).
    void RedrawWindow();

    // Runs the handler given to OnTimer for timerId every elapseMs while the dialog runs; a
    // timer set again starts counting anew. False when the dialog is not running.
    bool SetTimer(int timerId, unsigned elapseMs);
    void KillTimer(int timerId);

    // The commands the menu's list listId offers now (see CMenuItem::list); kept from one run
    // of the dialog to the next.
    void SetMenuList(int listId, std::vector<CMenuItem> entries);
    const std::vector<CMenuItem>& MenuList(int listId) const;
    // Whether the menu offers command id now: in its template or in one of its lists.
    bool HasMenuCommand(int id) const;

    // False for a menu command whose update handler says it is disabled: it is shown greyed
    // and neither its entry nor its keys run it.
    bool IsCommandEnabled(int id) const;

    const CDialogTemplate& Resource() const { return m_resource; }
    std::vector<std::unique_ptr<CWnd>>& Controls() { return m_controls; }

protected:
    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnPaint(CPaintDC& dc);

    // Handlers by control id. A click on a button, check box or notifying static and a menu
    // command with that id are the same event (OnClicked and OnCommand fill one table).
    void OnClicked(int id, std::function<void()> handler);
    void OnCommand(int id, std::function<void()> handler);
    // Whether menu command id can be chosen now (asked whenever the menu or its keys may be
    // used); a command without one always can.
    void OnUpdateCommand(int id, std::function<bool()> enabled);
    void OnKillFocus(int editId, std::function<void()> handler);
    void OnTimer(int timerId, std::function<void()> handler);
    void OnSelChange(int listId, std::function<void()> handler);
    void OnTreeRightClick(int treeId, std::function<void()> handler);
    void OnTreeDoubleClick(int treeId, std::function<void()> handler);
    // Called with the entry and the new text, or none when editing was cancelled; true keeps
    // the new text as the label.
    void OnTreeEndLabelEdit(int treeId, std::function<bool(HTREEITEM, const std::string*)> handler);

private:
    friend class CWnd;
    friend class CDialogDriver;

    enum class Event { Command, KillFocus, SelChange, TreeRightClick, TreeDoubleClick, Timer };

    void MoveFocus(int id);
    void SetInitialFocus();
    void Dispatch(Event event, int id);
    void DispatchCommand(int id);
    bool DispatchEndLabelEdit(int treeId, HTREEITEM entry, const std::string* text);

    const CDialogTemplate& m_resource;
    std::vector<std::unique_ptr<CWnd>> m_controls;
    std::map<std::pair<Event, int>, std::function<void()>> m_handlers;
    std::map<int, std::function<bool(HTREEITEM, const std::string*)>> m_labelEditHandlers;
    std::map<int, std::function<bool()>> m_updateHandlers;
    std::map<int, std::vector<CMenuItem>> m_menuLists;
    std::unique_ptr<CDialogWindow> m_pWindow;
    int m_nFocus = kNoFocus;
    int m_nResult = IDCANCEL;
    bool m_bEnded = false;
};

// The dialog running on top, or none.
CDialog* ActiveDialog();
