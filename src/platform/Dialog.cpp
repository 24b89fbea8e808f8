#include "platform/Dialog.h"

#include "platform/DataExchange.h"

namespace {
std::vector<CDialog*>& RunningDialogs() {
    static std::vector<CDialog*> running;
    return running;
}
}  // namespace

CDialog* ActiveDialog() {
    return RunningDialogs().empty() ? nullptr : RunningDialogs().back();
}

CDialog::CDialog(const CDialogTemplate& resource) : m_resource(resource) {
    for (const CControlTemplate& control : m_resource.controls) {
        m_controls.push_back(std::make_unique<CWnd>(*this, control));
    }
}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
    for (auto& control : m_controls) {
        control->Reset();
    }
    m_bEnded = false;
    m_nResult = IDCANCEL;
    m_nFocus = kNoFocus;
    m_pWindow = Backend().CreateDialogWindow(*this, ActiveDialog());
    RunningDialogs().push_back(this);
    if (OnInitDialog() && !m_bEnded) {
        SetInitialFocus();
    }
    if (!m_bEnded) {
        m_pWindow->RunModalLoop();
    }
    RunningDialogs().pop_back();
    m_pWindow.reset();
    return m_nResult;
}

void CDialog::EndDialog(int result) {
    m_nResult = result;
    m_bEnded = true;
    if (m_pWindow) {
        m_pWindow->EndModalLoop();
    }
}

bool CDialog::UpdateData(bool bSaveAndValidate) {
    CDataExchange dx(this, bSaveAndValidate);
    DoDataExchange(&dx);
    return dx.Finish();
}

CWnd* CDialog::GetDlgItem(int id) {
    for (auto& control : m_controls) {
        if (control->GetDlgCtrlID() == id) {
            return control.get();
        }
    }
    return nullptr;
}

const CWnd* CDialog::GetDlgItem(int id) const {
    return const_cast<CDialog*>(this)->GetDlgItem(id);
}

int CDialog::MessageBox(const std::string& text, const std::string& caption, unsigned type) {
    return Backend().MessageBox(this, text, caption, type);
}

void CDialog::TrackPopupMenu(const CMenuItem& popup, CPoint screen) {
    const int command = Backend().TrackPopupMenu(*this, popup, screen);
    if (command != 0) {
        DispatchCommand(command);
    }
}

CRect CDialog::GetTreeItemRect(int treeId, HTREEITEM entry) const {
    return m_pWindow ? m_pWindow->GetTreeItemRect(treeId, entry) : CRect{};
}

CPoint CDialog::ClientToScreen(int controlId, CPoint point) const {
    return m_pWindow ? m_pWindow->ClientToScreen(controlId, point) : point;
}

CRect CDialog::GetClientRect() const {
    return m_pWindow ? m_pWindow->GetClientRect() : CRect{};
}

bool CDialog::IsIconic() const {
    return m_pWindow && m_pWindow->IsIconic();
}

void CDialog::SetIcon(const CPixelImage& icon, bool bigIcon) {
    if (m_pWindow) {
        m_pWindow->SetIcon(icon, bigIcon);
    }
}

void CDialog::RedrawWindow() {
    if (m_pWindow) {
        m_pWindow->Redraw();
    }
}

bool CDialog::SetTimer(int timerId, unsigned elapseMs) {
    if (!IsRunning()) {
        return false;
    }
    m_pWindow->SetTimer(timerId, elapseMs);
    return true;
}

void CDialog::KillTimer(int timerId) {
    if (m_pWindow) {
        m_pWindow->KillTimer(timerId);
    }
}

void CDialog::SetMenuList(int listId, std::vector<CMenuItem> entries) {
    m_menuLists[listId] = std::move(entries);
    if (m_pWindow) {
        m_pWindow->MenuListChanged(listId);
    }
}

const std::vector<CMenuItem>& CDialog::MenuList(int listId) const {
    static const std::vector<CMenuItem> none;
    auto found = m_menuLists.find(listId);
    return found == m_menuLists.end() ? none : found->second;
}

bool CDialog::HasMenuCommand(int id) const {
    if (m_resource.menu == nullptr) {
        return false;
    }
    if (m_resource.menu->HasCommand(id)) {
        return true;
    }
    for (const auto& [listId, entries] : m_menuLists) {
        for (const CMenuItem& entry : entries) {
            if (entry.id == id && m_resource.menu->HasList(listId)) {
                return true;
            }
        }
    }
    return false;
}

bool CDialog::OnInitDialog() {
    UpdateData(false);
    return true;
}

void CDialog::OnOK() {
    if (UpdateData(true)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::DoDataExchange(CDataExchange*) {}

void CDialog::OnPaint(CPaintDC&) {}

void CDialog::OnClicked(int id, std::function<void()> handler) {
    m_handlers[{Event::Command, id}] = std::move(handler);
}

void CDialog::OnCommand(int id, std::function<void()> handler) {
    m_handlers[{Event::Command, id}] = std::move(handler);
}

void CDialog::OnKillFocus(int editId, std::function<void()> handler) {
    m_handlers[{Event::KillFocus, editId}] = std::move(handler);
}

void CDialog::OnTimer(int timerId, std::function<void()> handler) {
    m_handlers[{Event::Timer, timerId}] = std::move(handler);
}

void CDialog::OnUpdateCommand(int id, std::function<bool()> enabled) {
    m_updateHandlers[id] = std::move(enabled);
}

bool CDialog::IsCommandEnabled(int id) const {
    auto found = m_updateHandlers.find(id);
    return found == m_updateHandlers.end() || found->second();
}

void CDialog::OnSelChange(int listId, std::function<void()> handler) {
    m_handlers[{Event::SelChange, listId}] = std::move(handler);
}

void CDialog::OnTreeRightClick(int treeId, std::function<void()> handler) {
    m_handlers[{Event::TreeRightClick, treeId}] = std::move(handler);
}

void CDialog::OnTreeDoubleClick(int treeId, std::function<void()> handler) {
    m_handlers[{Event::TreeDoubleClick, treeId}] = std::move(handler);
}

void CDialog::OnTreeEndLabelEdit(int treeId,
                                 std::function<bool(HTREEITEM, const std::string*)> handler) {
    m_labelEditHandlers[treeId] = std::move(handler);
}

// The focus moves first and the edit that lost it reports after, so a handler that puts the
// focus back (a failed check) has the last word. A disabled or hidden control refuses the
// focus, as it would refuse a click.
void CDialog::MoveFocus(int id) {
    const CWnd* target = GetDlgItem(id);
    if (id == m_nFocus || (target && !target->IsReachable())) {
        return;
    }
    const int previous = m_nFocus;
    m_nFocus = id;
    if (m_pWindow) {
        m_pWindow->FocusMoved(id);
    }
    const CWnd* lost = GetDlgItem(previous);
    if (lost && lost->Kind() == ControlKind::Edit) {
        Dispatch(Event::KillFocus, previous);
    }
}

void CDialog::SetInitialFocus() {
    for (auto& control : m_controls) {
        if (control->TakesFocus() && control->IsReachable()) {
            MoveFocus(control->GetDlgCtrlID());
            return;
        }
    }
}

void CDialog::Dispatch(Event event, int id) {
    auto found = m_handlers.find({event, id});
    if (found != m_handlers.end()) {
        // A copy, so that a handler may replace itself while it runs.
        std::function<void()> handler = found->second;
        handler();
    }
}

void CDialog::DispatchCommand(int id) {
    if (!IsCommandEnabled(id)) {
        return;
    }
    if (m_handlers.count({Event::Command, id}) != 0) {
        Dispatch(Event::Command, id);
    } else if (id == IDOK) {
        OnOK();
    } else if (id == IDCANCEL) {
        OnCancel();
    }
}

bool CDialog::DispatchEndLabelEdit(int treeId, HTREEITEM entry, const std::string* text) {
    auto found = m_labelEditHandlers.find(treeId);
    if (found == m_labelEditHandlers.end()) {
        return false;
    }
    std::function<bool(HTREEITEM, const std::string*)> handler = found->second;
    return handler(entry, text);
}
