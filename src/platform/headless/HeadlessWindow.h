// The window of a dialog under the headless backend: the controls' rectangles measured with
// fixed base units, the test's script as the modal loop, and paints recorded.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "platform/Backend.h"
#include "platform/headless/RecordingPaintDC.h"

class CHeadlessBackend;

class CHeadlessWindow : public CDialogWindow {
public:
    CHeadlessWindow(CDialog& dialog, CHeadlessBackend& backend);

    void RunModalLoop() override;
    void EndModalLoop() override {}
    void FocusMoved(int) override {}
    void Redraw() override;
    bool IsIconic() const override { return m_bIconic; }
    CRect GetClientRect() const override;
    CRect GetTreeItemRect(int treeId, HTREEITEM entry) const override;
    CPoint ClientToScreen(int id, CPoint point) const override;
    void SetIcon(const CPixelImage& icon, bool big) override;
    void SetTimer(int id, unsigned elapseMs) override;
    void KillTimer(int id) override { m_timers.erase(id); }
    void MenuListChanged(int) override {}

    // The scripted clock moves on by ms: every timer due by then fires, in the order they fall
    // due, as often as they fall due.
    void Wait(unsigned ms);

    void SetIconic(bool iconic) { m_bIconic = iconic; }
    const CPixelImage* Icon(bool big) const { return big ? m_pBigIcon : m_pSmallIcon; }
    const CRecordingPaintDC& LastPaint() const { return *m_pLastPaint; }

    // Tree rows are this high; an entry's label starts one indent per level in, plus one for
    // the lines at the root, and is this wide per character.
    static constexpr int kRowHeight = 16;
    static constexpr int kIndent = 19;
    static constexpr int kCharWidth = 6;

private:
    struct CTimer {
        unsigned elapse = 0;
        std::uint64_t due = 0;
    };

    CDialog& m_dialog;
    CHeadlessBackend& m_backend;
    std::unique_ptr<CRecordingPaintDC> m_pLastPaint;
    const CPixelImage* m_pBigIcon = nullptr;
    const CPixelImage* m_pSmallIcon = nullptr;
    bool m_bIconic = false;
    std::map<int, CTimer> m_timers;
};
