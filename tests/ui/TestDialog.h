// A dialog built in the test from its own template, whose handlers the test sets, for testing
// the framework apart from the editor's dialogs.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/DataExchange.h"
#include "platform/Dialog.h"

class CTestDialog : public CDialog {
public:
    explicit CTestDialog(const CDialogTemplate& resource) : CDialog(resource) {}

    // Runs first when the dialog opens (fills lists, say).
    std::function<void(CTestDialog&)> init;
    // The exchange the dialog runs; none by default.
    std::function<void(CDataExchange*)> exchange;
    // Paints the client area; nothing by default.
    std::function<void(CPaintDC&)> paint;
    // What happened, in order ("kill 101", "click 200", ...).
    std::vector<std::string> log;

    void Log(std::string event) { log.push_back(std::move(event)); }

    using CDialog::OnClicked;
    using CDialog::OnCommand;
    using CDialog::OnKillFocus;
    using CDialog::OnSelChange;
    using CDialog::OnTreeDoubleClick;
    using CDialog::OnTreeEndLabelEdit;
    using CDialog::OnTreeRightClick;

protected:
    bool OnInitDialog() override {
        if (init) {
            init(*this);
        }
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override {
        if (exchange) {
            exchange(pDX);
        }
    }
    void OnPaint(CPaintDC& dc) override {
        if (paint) {
            paint(dc);
        }
    }
    void OnOK() override {
        Log("OnOK");
        CDialog::OnOK();
    }
    void OnCancel() override {
        Log("OnCancel");
        CDialog::OnCancel();
    }
};
