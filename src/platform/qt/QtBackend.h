// The Qt 6 Widgets face of the framework: real windows, message boxes, file choosers and
// menus. Put in force as the backend while it lives.
#pragma once

#include <map>

#include "platform/Backend.h"

class CQtDialogWindow;
class QWidget;

class CQtBackend : public CBackend {
public:
    CQtBackend();
    ~CQtBackend() override;

    std::unique_ptr<CDialogWindow> CreateDialogWindow(CDialog& dialog, CDialog* owner) override;
    int MessageBox(CDialog* owner, const std::string& text, const std::string& caption,
                   unsigned type) override;
    bool RunFileDialog(const CFileDialog& request, std::string& path) override;
    int TrackPopupMenu(CDialog& owner, const CMenuItem& popup, CPoint screen) override;
    bool IsShiftDown() const override;

    // The window a running dialog is shown in, or none.
    QWidget* WindowOf(const CDialog* dialog) const;

private:
    friend class CQtBackendWindow;
    // Every open window shows its state before another modal loop takes over.
    void SyncAll();

    std::map<const CDialog*, CQtDialogWindow*> m_windows;
};
