// The state of one control of a dialog: what the logic sets and reads (text, check state,
// enabled, visible, text limit, position, lines, tree) and what the user changes. The backends
// show it and write the user's changes back into it, so the logic reads the same state whichever
// backend runs the dialog.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/LineStore.h"
#include "base/TreeStore.h"
#include "platform/DialogTemplate.h"
#include "platform/Geometry.h"

class CDialog;

class CWnd {
public:
    CWnd(CDialog& dialog, const CControlTemplate& resource);

    int GetDlgCtrlID() const { return m_resource.id; }
    ControlKind Kind() const { return m_resource.kind; }
    bool HasStyle(unsigned style) const { return (m_resource.style & style) != 0; }
    const CControlTemplate& Resource() const { return m_resource; }

    const std::string& GetWindowText() const { return m_strText; }
    void SetWindowText(std::string text) { m_strText = std::move(text); }

    void EnableWindow(bool enable) { m_bEnabled = enable; }
    bool IsWindowEnabled() const { return m_bEnabled; }
    void ShowWindow(bool show) { m_bVisible = show; }
    bool IsWindowVisible() const { return m_bVisible; }
    // Whether the user can reach the control at all: shown and enabled.
    bool IsReachable() const { return m_bEnabled && m_bVisible; }

    // Check boxes: 0 unchecked, 1 checked.
    int GetCheck() const { return m_nCheck; }
    void SetCheck(int check) { m_nCheck = check; }

    // Edits: the most characters the user can type (0: no limit). Text set by the logic is not
    // cut to it.
    void LimitText(int maxChars) { m_nLimitText = maxChars; }
    int GetLimitText() const { return m_nLimitText; }

    bool IsReadOnly() const { return HasStyle(STYLE_READONLY); }
    // Whether the control takes the keyboard focus when clicked or tabbed to.
    bool TakesFocus() const;

    // Position and size in pixels, in the dialog's client coordinates.
    CRect GetWindowRect() const { return m_rect; }
    void MoveWindow(const CRect& rect) { m_rect = rect; }
    // The client area in the control's own coordinates: its rectangle less a sunken border.
    CRect GetClientRect() const;
    // Puts the control below every other control (SetWindowPos with wndBottom).
    void SendToBack() { ++m_nLowered; }
    unsigned LoweredCount() const { return m_nLowered; }

    // Gives this control the keyboard focus; an edit that loses it reports so first.
    void SetFocus();

    // List boxes and drop-down lists: the lines (the bound member's, or the control's own).
    CLineStore& Lines() { return *m_pLines; }
    const CLineStore& Lines() const { return *m_pLines; }
    // Tree controls: the entries (the bound member's, or the control's own).
    CTreeStore& Tree();
    const CTreeStore* BoundTree() const { return m_pTree; }

    void BindLines(CLineStore& lines) { m_pLines = &lines; }
    void BindTree(CTreeStore& tree) { m_pTree = &tree; }

    // Back to the state the template describes (the start of every modal run).
    void Reset();

private:
    CDialog& m_dialog;
    const CControlTemplate& m_resource;
    std::string m_strText;
    bool m_bEnabled = true;
    bool m_bVisible = true;
    int m_nCheck = 0;
    int m_nLimitText = 0;
    CRect m_rect;
    unsigned m_nLowered = 0;
    CLineStore m_ownLines;
    CLineStore* m_pLines = &m_ownLines;
    std::unique_ptr<CTreeStore> m_pOwnTree;
    CTreeStore* m_pTree = nullptr;
};
