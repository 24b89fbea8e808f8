// The user's hands inside one running dialog: what a script does and reads. Every action is
// checked as a real user would be stopped: a hidden, disabled or read-only control cannot be
// typed into or clicked, and doing so is a failure of the test.
#pragma once

#include <optional>
#include <string>

#include "base/TreeStore.h"
#include "platform/DialogDriver.h"
#include "platform/headless/RecordingPaintDC.h"

class CDialog;
class CHeadlessBackend;
class CHeadlessWindow;
class CLineStore;
class CWnd;

class CHeadlessUser {
public:
    CHeadlessUser(CDialog& dialog, CHeadlessWindow& window, CHeadlessBackend& backend);

    // Clicks into edit id and replaces its text, typed one character at a time: a digits-only
    // edit refuses other characters and no edit takes more than its limit.
    void Type(int id, const std::string& text);
    // Moves the focus to control id (a click into it, or Tab).
    void Focus(int id);
    // Selects line index (or the first line with text) of a list box or drop-down list.
    void Pick(int id, int index);
    void Pick(int id, const std::string& text);
    // Clicks a button, check box or notifying static. A control that takes the focus takes it
    // first; when a focus-lost check puts the focus back elsewhere, the click is lost.
    void Click(int id);
    void Enter(bool shift = false);
    void Escape();
    void CloseBox();
    // Chooses command id from the dialog's menu bar.
    void Command(int id);
    // Tree gestures: clicking an entry selects it; a double click selects it, reports, and
    // the tree expands or collapses it when it has children; a right click changes nothing.
    void SelectEntry(int treeId, HTREEITEM entry);
    void DoubleClick(int treeId, HTREEITEM entry);
    void RightClick(int treeId);
    // Edits entry's label in place, ending with text or (none) with Escape. Gives whether the
    // tree kept the text.
    bool EditLabel(int treeId, HTREEITEM entry, const std::optional<std::string>& text);
    void Minimise(bool iconic);
    // Lets ms milliseconds pass on the scripted clock; the dialog's timers fire as they fall due.
    void Wait(unsigned ms);

    std::string Text(int id) const;
    bool IsEnabled(int id) const;
    bool IsVisible(int id) const;
    int Check(int id) const;
    int FocusId() const;
    const CLineStore& Lines(int id) const;
    CDialog& Dialog() { return m_dialog; }
    // Paints the dialog now and gives what was drawn.
    const CRecordingPaintDC& Paint();

private:
    // The control id, when it exists and the user can reach it; a failure otherwise.
    CWnd* Reach(int id, const char* action);
    bool Open(const char* action);

    CDialog& m_dialog;
    CHeadlessWindow& m_window;
    CHeadlessBackend& m_backend;
    CDialogDriver m_driver;
};
