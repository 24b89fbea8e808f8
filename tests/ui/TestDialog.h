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
    std::function<void(CTestDialog&)> init = [](CTestDialog&) {};
    // The exchange the dialog runs, and what it paints; nothing by default.
    std::function<void(CDataExchange*)> exchange = [](CDataExchange*) {};
    std::function<void(CPaintDC&)> paint = [](CPaintDC&) {};
    // What happened, in order ("kill 101", "click 200", ...).
    std::vector<std::string> log;

    void Log(std::string event) { log.push_back(std::move(event)); }

    using CDialog::OnClicked;
    using CDialog::OnCommand;
    using CDialog::OnKillFocus;
    using CDialog::OnSelChange;
    using CDialog::OnTimer;
    using CDialog::OnTreeDoubleClick;
    using CDialog::OnTreeEndLabelEdit;
    using CDialog::OnTreeRightClick;

protected:
    bool OnInitDialog() override {
        init(*this);
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override { exchange(pDX); }
    void OnPaint(CPaintDC& dc) override { paint(dc); }
    void OnOK() override {
        Log("OnOK");
        CDialog::OnOK();
    }
    void OnCancel() override {
        Log("OnCancel");
        CDialog::OnCancel();
    }
};

// A dialog with a control of each kind whose handlers log what reaches them, shared by the tests
// of how user actions reach a dialog under the headless and the Qt backends. Its tree holds
// Army > Corps > Brigade, collapsed.
inline const CDialogTemplate kEventsDialog{
    .id = 901,
    .caption = "Events",
    .cx = 240,
    .cy = 160,
    .controls = {
        {101, ControlKind::Edit, 10, 10, 80, 12},
        {102, ControlKind::Edit, 10, 25, 80, 12, "", STYLE_DIGITS},
        {103, ControlKind::CheckBox, 10, 40, 80, 10, "Fanatic"},
        {104, ControlKind::ComboBox, 10, 55, 80, 40},
        {105, ControlKind::Static, 10, 70, 80, 12, "Status", STYLE_NOTIFY | STYLE_SUNKEN},
        {106, ControlKind::Static, 10, 85, 80, 12, "Label"},
        {107, ControlKind::TreeView, 100, 10, 130, 100, "",
         STYLE_EDITLABELS | STYLE_HASBUTTONS | STYLE_LINESATROOT},
        {200, ControlKind::Button, 10, 100, 50, 14, "Accept"},
        {201, ControlKind::Button, 10, 120, 50, 14, "Disabled", STYLE_DISABLED},
        {1000, ControlKind::Button, 10, 10, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN},
    }};

class CEventsDialog : public CTestDialog {
public:
    CEventsDialog() : CTestDialog(kEventsDialog) {
        init = [this](CTestDialog&) {
            for (const char* line : {"Infantry", "Cavalry", "Artillery"}) {
                GetDlgItem(104)->Lines().AddString(line);
            }
            CTreeStore& tree = GetDlgItem(107)->Tree();
            army = tree.InsertItem("Army");
            corps = tree.InsertItem("Corps", army);
            tree.InsertItem("Brigade", corps);
        };
        OnKillFocus(101, [this] { Log("kill 101"); });
        OnKillFocus(102, [this] { Log("kill 102"); });
        OnClicked(200, [this] { Log("click 200"); });
        // The hidden default button moves the focus, as the editor's does.
        OnClicked(1000, [this] {
            Log("click 1000");
            GotoDlgCtrl(200);
        });
        OnClicked(103, [this] { Log("check " + std::to_string(GetDlgItem(103)->GetCheck())); });
        OnClicked(105, [this] { Log("click 105"); });
        OnSelChange(
            104, [this] { Log("select " + std::to_string(GetDlgItem(104)->Lines().GetCurSel())); });
        OnTreeRightClick(107, [this] { Log("right click"); });
        OnTreeDoubleClick(107, [this] { Log("double click"); });
        OnTreeEndLabelEdit(107, [this](HTREEITEM entry, const std::string* text) {
            Log("end edit " + std::string(entry->Label()) + (text ? " -> " + *text : " cancelled"));
            return text != nullptr && *text != "Refused";
        });
    }

    HTREEITEM army = nullptr;
    HTREEITEM corps = nullptr;
};
