// The events a backend hands to a running dialog, mapped to its handlers the way the original
// system did: a click on a check box toggles it first; Enter presses the focused push button,
// else the default button (hidden or not), else OK, and never a disabled button; Escape and the
// close box are Cancel.
#pragma once

#include <string>

#include "base/TreeStore.h"
#include "platform/PaintDC.h"

class CDialog;

class CDialogDriver {
public:
    explicit CDialogDriver(CDialog& dialog) : m_dialog(dialog) {}

    // The user moved the focus to control id; an edit that lost it reports.
    void FocusMovedTo(int id);
    // The user changed an edit's text.
    void TextChanged(int id, std::string text);
    // A click on a button, check box or notifying static.
    void Clicked(int id);
    // The user selected line index of a list box or drop-down list.
    void SelectionChanged(int id, int index);
    // A menu command.
    void Command(int id);
    void Enter();
    void Escape();
    void CloseBox();
    // The user made entry the tree's selected one.
    void TreeSelected(int treeId, HTREEITEM entry);
    void TreeRightClick(int treeId);
    void TreeDoubleClick(int treeId);
    // In-place editing of entry's label ended with text, or none when cancelled. The label
    // becomes text when the handler keeps it; gives whether it did.
    bool TreeEndLabelEdit(int treeId, HTREEITEM entry, const std::string* text);
    void Paint(CPaintDC& dc);
    // Timer id has fired.
    void Timer(int id);

private:
    CDialog& m_dialog;
};
