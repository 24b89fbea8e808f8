#include "platform/headless/HeadlessUser.h"

#include <cctype>

#include "platform/Dialog.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessWindow.h"

CHeadlessUser::CHeadlessUser(CDialog& dialog, CHeadlessWindow& window, CHeadlessBackend& backend)
    : m_dialog(dialog), m_window(window), m_backend(backend), m_driver(dialog) {}

bool CHeadlessUser::Open(const char* action) {
    if (m_dialog.IsRunning()) {
        return true;
    }
    m_backend.Fail(std::string(action) + " in dialog " + std::to_string(m_dialog.Resource().id) +
                   " after it closed");
    return false;
}

CWnd* CHeadlessUser::Reach(int id, const char* action) {
    if (!Open(action)) {
        return nullptr;
    }
    CWnd* control = m_dialog.GetDlgItem(id);
    std::string problem;
    if (control == nullptr) {
        problem = "there is no such control";
    } else if (!control->IsWindowVisible()) {
        problem = "it is hidden";
    } else if (!control->IsWindowEnabled()) {
        problem = "it is disabled";
    }
    if (problem.empty()) {
        return control;
    }
    m_backend.Fail(std::string(action) + " control " + std::to_string(id) + " of dialog " +
                   std::to_string(m_dialog.Resource().id) + ": " + problem);
    return nullptr;
}

void CHeadlessUser::Type(int id, const std::string& text) {
    CWnd* control = Reach(id, "type into");
    if (control == nullptr) {
        return;
    }
    if (control->Kind() != ControlKind::Edit || control->IsReadOnly()) {
        m_backend.Fail("type into control " + std::to_string(id) + ": not an edit that takes text");
        return;
    }
    Focus(id);
    std::string typed;
    for (char c : text) {
        const bool digit = std::isdigit(static_cast<unsigned char>(c)) != 0;
        const int limit = control->GetLimitText();
        if ((control->HasStyle(STYLE_DIGITS) && !digit) ||
            (limit > 0 && typed.size() >= static_cast<std::size_t>(limit))) {
            continue;
        }
        typed.push_back(c);
    }
    m_driver.TextChanged(id, typed);
}

void CHeadlessUser::Focus(int id) {
    CWnd* control = Reach(id, "move the focus to");
    if (control == nullptr) {
        return;
    }
    if (!control->TakesFocus()) {
        m_backend.Fail("move the focus to control " + std::to_string(id) + ": it takes none");
        return;
    }
    m_driver.FocusMovedTo(id);
}

void CHeadlessUser::Pick(int id, int index) {
    CWnd* control = Reach(id, "pick a line of");
    if (control == nullptr) {
        return;
    }
    if (index < 0 || index >= control->Lines().GetCount() || control->HasStyle(STYLE_NOSELECTION)) {
        m_backend.Fail("pick line " + std::to_string(index) + " of control " + std::to_string(id) +
                       ": there is no such line to select");
        return;
    }
    Focus(id);
    m_driver.SelectionChanged(id, index);
}

void CHeadlessUser::Pick(int id, const std::string& text) {
    CWnd* control = Reach(id, "pick a line of");
    if (control == nullptr) {
        return;
    }
    for (int i = 0; i < control->Lines().GetCount(); ++i) {
        if (control->Lines().GetText(i) == text) {
            Pick(id, i);
            return;
        }
    }
    m_backend.Fail("pick \"" + text + "\" in control " + std::to_string(id) + ": no such line");
}

void CHeadlessUser::Click(int id) {
    CWnd* control = Reach(id, "click");
    if (control == nullptr) {
        return;
    }
    const bool clickable =
        control->Kind() == ControlKind::Button || control->Kind() == ControlKind::CheckBox ||
        (control->Kind() == ControlKind::Static && control->HasStyle(STYLE_NOTIFY));
    if (!clickable) {
        m_backend.Fail("click control " + std::to_string(id) + ": it reports no clicks");
        return;
    }
    if (control->TakesFocus()) {
        m_driver.FocusMovedTo(id);
        if (m_dialog.GetFocusId() != id || !m_dialog.IsRunning()) {
            return;
        }
    }
    m_driver.Clicked(id);
}

void CHeadlessUser::Enter(bool shift) {
    if (!Open("Enter")) {
        return;
    }
    m_backend.SetShiftDown(shift);
    m_driver.Enter();
    m_backend.SetShiftDown(false);
}

void CHeadlessUser::Escape() {
    if (Open("Escape")) {
        m_driver.Escape();
    }
}

void CHeadlessUser::CloseBox() {
    if (!Open("close box")) {
        return;
    }
    if ((m_dialog.Resource().style & DIALOG_CLOSEBOX) == 0) {
        m_backend.Fail("close box of dialog " + std::to_string(m_dialog.Resource().id) +
                       ": it has none");
        return;
    }
    m_driver.CloseBox();
}

void CHeadlessUser::Command(int id) {
    if (!Open("menu command")) {
        return;
    }
    if (!m_dialog.HasMenuCommand(id)) {
        m_backend.Fail("menu command " + std::to_string(id) + ": not in the menu of dialog " +
                       std::to_string(m_dialog.Resource().id));
        return;
    }
    if (!m_dialog.IsCommandEnabled(id)) {
        m_backend.Fail("menu command " + std::to_string(id) + ": disabled");
        return;
    }
    m_driver.Command(id);
}

void CHeadlessUser::SelectEntry(int treeId, HTREEITEM entry) {
    if (Reach(treeId, "select an entry of")) {
        Focus(treeId);
        m_driver.TreeSelected(treeId, entry);
    }
}

void CHeadlessUser::DoubleClick(int treeId, HTREEITEM entry) {
    CWnd* tree = Reach(treeId, "double-click");
    if (tree == nullptr) {
        return;
    }
    Focus(treeId);
    m_driver.TreeSelected(treeId, entry);
    m_driver.TreeDoubleClick(treeId);
    if (m_dialog.IsRunning() && tree->Tree().ItemHasChildren(entry)) {
        tree->Tree().Expand(entry, TVE_TOGGLE);
    }
}

void CHeadlessUser::RightClick(int treeId) {
    if (Reach(treeId, "right-click")) {
        m_driver.TreeRightClick(treeId);
    }
}

bool CHeadlessUser::EditLabel(int treeId, HTREEITEM entry, const std::optional<std::string>& text) {
    CWnd* tree = Reach(treeId, "edit a label of");
    if (tree == nullptr) {
        return false;
    }
    if (!tree->HasStyle(STYLE_EDITLABELS)) {
        m_backend.Fail("edit a label of control " + std::to_string(treeId) +
                       ": its labels cannot be edited");
        return false;
    }
    Focus(treeId);
    return m_driver.TreeEndLabelEdit(treeId, entry, text ? &*text : nullptr);
}

void CHeadlessUser::Minimise(bool iconic) {
    m_window.SetIconic(iconic);
}

void CHeadlessUser::Wait(unsigned ms) {
    if (Open("wait")) {
        m_window.Wait(ms);
    }
}

std::string CHeadlessUser::Text(int id) const {
    const CWnd* control = m_dialog.GetDlgItem(id);
    return control ? control->GetWindowText() : std::string();
}

bool CHeadlessUser::IsEnabled(int id) const {
    const CWnd* control = m_dialog.GetDlgItem(id);
    return control && control->IsWindowEnabled();
}

bool CHeadlessUser::IsVisible(int id) const {
    const CWnd* control = m_dialog.GetDlgItem(id);
    return control && control->IsWindowVisible();
}

int CHeadlessUser::Check(int id) const {
    const CWnd* control = m_dialog.GetDlgItem(id);
    return control ? control->GetCheck() : 0;
}

int CHeadlessUser::FocusId() const {
    return m_dialog.GetFocusId();
}

const CLineStore& CHeadlessUser::Lines(int id) const {
    static const CLineStore kNone;
    const CWnd* control = m_dialog.GetDlgItem(id);
    return control ? control->Lines() : kNone;
}

const CRecordingPaintDC& CHeadlessUser::Paint() {
    m_window.Redraw();
    return m_window.LastPaint();
}
