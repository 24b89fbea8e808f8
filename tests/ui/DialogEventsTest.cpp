// How user actions reach a dialog's handlers: focus, clicks, Enter and Escape, lists, the tree's
// gestures, and what the headless backend refuses or reports.
#include <gtest/gtest.h>

#include "HeadlessTest.h"
#include "TestDialog.h"
#include "platform/FileDialog.h"

namespace {
using Log = std::vector<std::string>;

const CDialogTemplate kPlainDialog{.id = 902,
                                   .caption = "Plain",
                                   .cx = 100,
                                   .cy = 50,
                                   .style = DIALOG_CENTERED,
                                   .controls = {{101, ControlKind::Edit, 10, 10, 80, 12}}};

class DialogEventsTest : public HeadlessTest {
protected:
    // Runs the events dialog with script, closed by Escape afterwards; gives its log.
    Log Run(const std::function<void(CHeadlessUser&)>& script) {
        ui.OnDialog(901, [&](CHeadlessUser& user) {
            script(user);
            user.Escape();
        });
        EXPECT_EQ(dlg.DoModal(), IDCANCEL);
        return dlg.log;
    }
    // Collects the backend's failures instead of failing the test, for the tests of refusals.
    void CollectFailures() {
        ui.SetFailureHandler([this](const std::string& p) { collected.push_back(p); });
    }

    CEventsDialog dlg;
    Log collected;
};

// Enter presses the focused button, else the default one (hidden here; it moves the focus) and
// its handler sees Shift; never a disabled button, focused or default. A disabled or hidden
// control takes no focus. A check box toggles and a list selects before its handler runs, each
// after the focus it took was lost; a notifying static reports clicks and takes no focus. A
// right click leaves the tree's selection, a double click selects and expands or collapses, and
// a label edit keeps the text only when the handler accepts it.
TEST_F(DialogEventsTest, UserActionsReachTheirHandlersInOrder) {
    dlg.init = [shared = dlg.init](CTestDialog& d) {
        shared(d);
        d.GetDlgItem(101)->EnableWindow(false);
    };
    dlg.OnClicked(1000, [this] {
        dlg.Log(GetKeyState(VK_SHIFT) < 0 ? "shift" : "no shift");
        dlg.GotoDlgCtrl(200);
    });
    EXPECT_EQ(Run([this](CHeadlessUser& user) {
                  EXPECT_EQ(user.FocusId(), 102);
                  dlg.GotoDlgCtrl(201);
                  dlg.GotoDlgCtrl(1000);
                  EXPECT_EQ(user.FocusId(), 102);
                  user.Enter(true);
                  EXPECT_EQ(user.FocusId(), 200);
                  user.Enter();
                  dlg.GetDlgItem(200)->EnableWindow(false);
                  user.Enter();
                  dlg.GetDlgItem(1000)->EnableWindow(false);
                  user.Enter();
                  user.Click(103);
                  user.Click(103);
                  user.Click(105);
                  EXPECT_EQ(user.FocusId(), 103);
                  user.Type(102, "1");
                  user.Pick(104, "Artillery");
                  user.Pick(104, 0);
                  CTreeStore& tree = dlg.GetDlgItem(107)->Tree();
                  user.SelectEntry(107, dlg.army);
                  user.RightClick(107);
                  EXPECT_EQ(tree.GetSelectedItem(), dlg.army);
                  user.DoubleClick(107, dlg.corps);
                  EXPECT_EQ(tree.GetSelectedItem(), dlg.corps);
                  EXPECT_TRUE(dlg.corps->Expanded());
                  user.DoubleClick(107, dlg.corps);
                  EXPECT_FALSE(dlg.corps->Expanded());
                  EXPECT_TRUE(user.EditLabel(107, dlg.corps, std::string("II Corps")));
                  EXPECT_FALSE(user.EditLabel(107, dlg.corps, std::string("Refused")));
                  EXPECT_FALSE(user.EditLabel(107, dlg.corps, std::nullopt));
                  EXPECT_EQ(dlg.corps->Label(), "II Corps");
              }),
              (Log{"shift", "kill 102", "click 200", "no shift", "check 1", "check 0", "click 105",
                   "kill 102", "select 2", "select 0", "right click", "double click",
                   "double click", "end edit Corps -> II Corps", "end edit II Corps -> Refused",
                   "end edit II Corps cancelled", "OnCancel"}));
}

TEST_F(DialogEventsTest, TheUserCannotReachHiddenDisabledOrSilentControls) {
    CollectFailures();
    EXPECT_EQ(Run([](CHeadlessUser& user) {
                  user.Click(201);
                  user.Click(1000);
                  user.Click(106);
                  user.Type(103, "x");
                  user.Pick(104, 3);
                  user.Command(32777);
                  user.Escape();
              }),
              Log{"OnCancel"});
    EXPECT_EQ(collected, (Log{
                             "click control 201 of dialog 901: it is disabled",
                             "click control 1000 of dialog 901: it is hidden",
                             "click control 106: it reports no clicks",
                             "type into control 103: not an edit that takes text",
                             "pick line 3 of control 104: there is no such line to select",
                             "menu command 32777: not in the menu of dialog 901",
                             "Escape in dialog 901 after it closed",
                         }));
}

// Escape and the close box are Cancel; without a default button Enter is OK; a dialog without a
// close box refuses it. What the test did not script fails, naming what the program showed.
TEST_F(DialogEventsTest, CloseBoxEnterAndWhatTheTestDidNotScript) {
    ui.OnDialog(901, [](CHeadlessUser& user) { user.CloseBox(); });
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    CTestDialog plain(kPlainDialog);
    ui.OnDialog(902, [](CHeadlessUser& user) { user.Enter(); });
    EXPECT_EQ(plain.DoModal(), IDOK);
    EXPECT_EQ(dlg.log, Log{"OnCancel"});
    EXPECT_EQ(plain.log, Log{"OnOK"});
    CollectFailures();
    ui.OnDialog(902, [](CHeadlessUser& user) {
        user.CloseBox();
        user.Escape();
    });
    EXPECT_EQ(plain.DoModal(), IDCANCEL);
    EXPECT_EQ(plain.DoModal(), IDCANCEL);
    ui.AnswerMessage("Do you want to quit?", IDYES);
    ui.OnDialog(901, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().MessageBox("Quit?", "Exit", MB_YESNO), IDYES);
        EXPECT_EQ(user.Dialog().MessageBox("Do you want to quit?", "Exit", MB_YESNO), IDNO);
        CFileDialog chooser(true, "txt", "", OFN_HIDEREADONLY, "Workspace Files (*.txt)|*.txt|");
        EXPECT_EQ(chooser.DoModal(), IDCANCEL);
    });
    dlg.DoModal();
    ui.AnswerMessage(IDYES);
    ui.OnDialog(902, [](CHeadlessUser&) {});
    ui.CheckAllUsed();
    EXPECT_EQ(collected,
              (Log{
                  "close box of dialog 902: it has none",
                  "dialog 902 \"Plain\" opened without a script",
                  "message box showed \"Quit?\", the test expected \"Do you want to quit?\"",
                  "message box not scripted: \"Do you want to quit?\" (caption \"Exit\")",
                  "file chooser not scripted: open \"Workspace Files (*.txt)|*.txt|\"",
                  "dialog 901 \"Events\" still open at the end of its script",
                  "script for dialog 902 never used: the dialog did not open",
                  "message box answer 6 never used",
              }));
}

// The structure summary's pattern: bars sized from a frame's client area (less its sunken
// border), moved to the back.
TEST_F(DialogEventsTest, AFrameGivesItsClientSizeAndAControlCanBeMoved) {
    const CDialogTemplate bars{
        .id = 903,
        .caption = "Bars",
        .controls = {{1072, ControlKind::Frame, 10, 10, 100, 16, "", STYLE_SUNKEN},
                     {1066, ControlKind::Bar, 12, 12, 10, 12}}};
    CTestDialog summary(bars);
    ui.OnDialog(903, [&](CHeadlessUser& user) {
        EXPECT_EQ(summary.GetDlgItem(1072)->GetClientRect(), (CRect{0, 0, 150 - 4, 26 - 4}));
        EXPECT_EQ(summary.GetDlgItem(1066)->GetWindowRect(), (CRect{18, 20, 18 + 15, 20 + 20}));
        user.Escape();
    });
    summary.DoModal();
}
}  // namespace
