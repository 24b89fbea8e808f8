// What a face of the program must provide for the framework: windows for running dialogs,
// message boxes, file choosers and pop-up menus. The Qt backend shows them; the headless backend
// plays a test's script through them.
#pragma once

#include <memory>
#include <string>

#include "base/TreeStore.h"
#include "platform/DialogTemplate.h"
#include "platform/Geometry.h"
#include "platform/PixelImage.h"

class CDialog;
class CFileDialog;

// The window of one running dialog.
class CDialogWindow {
public:
    virtual ~CDialogWindow() = default;
    // Runs the modal loop until EndModalLoop.
    virtual void RunModalLoop() = 0;
    virtual void EndModalLoop() = 0;
    // The logic has moved the focus to control id.
    virtual void FocusMoved(int id) = 0;
    // Shows the controls' state and repaints the client area at once.
    virtual void Redraw() = 0;
    virtual bool IsIconic() const = 0;
    virtual CRect GetClientRect() const = 0;
    // The label part of a tree entry's row, in the tree control's client coordinates; an empty
    // rectangle when the entry is not shown.
    virtual CRect GetTreeItemRect(int treeId, HTREEITEM entry) const = 0;
    // A point in control id's client coordinates, in screen coordinates.
    virtual CPoint ClientToScreen(int id, CPoint point) const = 0;
    virtual void SetIcon(const CPixelImage& icon, bool big) = 0;
    // Timer id fires every elapseMs from now on (set again: from now on), until killed.
    virtual void SetTimer(int id, unsigned elapseMs) = 0;
    virtual void KillTimer(int id) = 0;
    // The entries of the menu's list listId have changed.
    virtual void MenuListChanged(int listId) = 0;
};

class CBackend {
public:
    virtual ~CBackend() = default;
    // A window for dialog (not yet shown) on top of owner (none for the main window). It sets
    // every control's rectangle in pixels.
    virtual std::unique_ptr<CDialogWindow> CreateDialogWindow(CDialog& dialog, CDialog* owner) = 0;
    virtual int MessageBox(CDialog* owner, const std::string& text, const std::string& caption,
                           unsigned type) = 0;
    // True with the chosen path, false when cancelled.
    virtual bool RunFileDialog(const CFileDialog& request, std::string& path) = 0;
    // The command chosen from the pop-up, or 0 when it was dismissed.
    virtual int TrackPopupMenu(CDialog& owner, const CMenuItem& popup, CPoint screen) = 0;
    virtual bool IsShiftDown() const = 0;
};

// The backend in force; the program and every test put one in place before any dialog runs.
void SetBackend(CBackend* backend);
CBackend& Backend();
