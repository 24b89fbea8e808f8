#include "platform/headless/HeadlessWindow.h"

#include "platform/Dialog.h"
#include "platform/DialogDriver.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessUser.h"

namespace {
constexpr int kX = CHeadlessBackend::kBaseUnitX;
constexpr int kY = CHeadlessBackend::kBaseUnitY;

std::string Named(const CDialog& dialog) {
    return "dialog " + std::to_string(dialog.Resource().id) + " \"" + dialog.Resource().caption +
           "\"";
}
}  // namespace

CHeadlessWindow::CHeadlessWindow(CDialog& dialog, CHeadlessBackend& backend)
    : m_dialog(dialog), m_backend(backend), m_pLastPaint(std::make_unique<CRecordingPaintDC>()) {
    for (auto& control : dialog.Controls()) {
        const CControlTemplate& r = control->Resource();
        const int left = DluToPixelsX(r.x, kX);
        const int top = DluToPixelsY(r.y, kY);
        control->MoveWindow(
            CRect{left, top, left + DluToPixelsX(r.cx, kX), top + DluToPixelsY(r.cy, kY)});
    }
}

void CHeadlessWindow::RunModalLoop() {
    std::optional<CDialogScript> script = m_backend.TakeScript(m_dialog.Resource().id);
    if (!script) {
        m_backend.Fail(Named(m_dialog) + " opened without a script");
        m_dialog.EndDialog(IDCANCEL);
        return;
    }
    CHeadlessUser user(m_dialog, *this, m_backend);
    (*script)(user);
    if (m_dialog.IsRunning()) {
        m_backend.Fail(Named(m_dialog) + " still open at the end of its script");
        m_dialog.EndDialog(IDCANCEL);
    }
}

void CHeadlessWindow::Redraw() {
    m_pLastPaint = std::make_unique<CRecordingPaintDC>();
    CDialogDriver(m_dialog).Paint(*m_pLastPaint);
}

CRect CHeadlessWindow::GetClientRect() const {
    return CRect{0, 0, DluToPixelsX(m_dialog.Resource().cx, kX),
                 DluToPixelsY(m_dialog.Resource().cy, kY)};
}

// Rows are laid out as the tree shows them: every entry whose ancestors are all expanded, in
// pre-order.
CRect CHeadlessWindow::GetTreeItemRect(int treeId, HTREEITEM entry) const {
    CWnd* tree = m_dialog.GetDlgItem(treeId);
    if (tree == nullptr || entry == nullptr) {
        return CRect{};
    }
    const CTreeStore& store = tree->Tree();
    int row = 0;
    int depth = 0;
    HTREEITEM current = store.GetRootItem();
    while (current != nullptr) {
        if (current == entry) {
            const int left = kIndent * (depth + 1);
            const int width = kCharWidth * static_cast<int>(current->Label().size()) + 4;
            return CRect{left, row * kRowHeight, left + width, (row + 1) * kRowHeight};
        }
        ++row;
        if (current->Expanded() && current->ChildCount() > 0) {
            current = current->Child(0);
            ++depth;
            continue;
        }
        while (current != nullptr && store.GetNextSiblingItem(current) == nullptr) {
            current = store.GetParentItem(current);
            --depth;
        }
        if (current != nullptr) {
            current = store.GetNextSiblingItem(current);
        }
    }
    return CRect{};
}

// The dialog's client area sits at the screen's origin.
CPoint CHeadlessWindow::ClientToScreen(int id, CPoint point) const {
    const CWnd* control = m_dialog.GetDlgItem(id);
    if (control == nullptr) {
        return point;
    }
    return CPoint{control->GetWindowRect().left + point.x, control->GetWindowRect().top + point.y};
}

void CHeadlessWindow::SetIcon(const CPixelImage& icon, bool big) {
    (big ? m_pBigIcon : m_pSmallIcon) = &icon;
}

void CHeadlessWindow::SetTimer(int id, unsigned elapseMs) {
    m_timers[id] = CTimer{elapseMs, m_backend.Now() + elapseMs};
}

// A timer of no interval fires once a millisecond, so that waiting always ends.
void CHeadlessWindow::Wait(unsigned ms) {
    const std::uint64_t end = m_backend.Now() + ms;
    while (m_dialog.IsRunning()) {
        auto next = m_timers.end();
        for (auto it = m_timers.begin(); it != m_timers.end(); ++it) {
            if (it->second.due <= end &&
                (next == m_timers.end() || it->second.due < next->second.due)) {
                next = it;
            }
        }
        if (next == m_timers.end()) {
            break;
        }
        const int id = next->first;
        m_backend.SetNow(next->second.due);
        next->second.due += next->second.elapse == 0 ? 1 : next->second.elapse;
        CDialogDriver(m_dialog).Timer(id);
    }
    m_backend.SetNow(end);
}
