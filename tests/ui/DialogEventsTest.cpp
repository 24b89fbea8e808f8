// How user actions reach a dialog's handlers: focus, clicks, Enter and Escape, lists, the tree's
// gestures, and what the headless backend refuses or reports.
#include <gtest/gtest.h>

#include "HeadlessTest.h"
#include "TestDialog.h"
#include "platform/FileDialog.h"

#include <array>

namespace {
using K = ControlKind;

const CDialogTemplate kEventsDialog{
    .id = 901,
    .caption = "Events",
    .cx = 240,
    .cy = 160,
    .controls = {
        {101, K::Edit, 10, 10, 80, 12},
        {102, K::Edit, 10, 25, 80, 12},
        {103, K::CheckBox, 10, 40, 80, 10, "Fanatic"},
        {104, K::ComboBox, 10, 55, 80, 40},
        {105, K::Static, 10, 70, 80, 12, "Status", STYLE_NOTIFY},
        {106, K::Static, 10, 85, 80, 12, "Label"},
        {107, K::TreeView, 100, 10, 100, 100, "", STYLE_EDITLABELS | STYLE_HASBUTTONS},
        {200, K::Button, 10, 100, 50, 14, "Accept"},
        {201, K::Button, 10, 120, 50, 14, "Disabled", STYLE_DISABLED},
        {1000, K::Button, 10, 10, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN},
    }};

const CDialogTemplate kPlainDialog{.id = 902,
                                   .caption = "Plain",
                                   .cx = 100,
                                   .cy = 50,
                                   .style = DIALOG_CENTERED,
                                   .controls = {{101, K::Edit, 10, 10, 80, 12}}};

class DialogEventsTest : public HeadlessTest {
protected:
    DialogEventsTest() : dlg(kEventsDialog) {
        dlg.init = [](CTestDialog& d) {
            for (const char* line : {"Infantry", "Cavalry", "Artillery"}) {
                d.GetDlgItem(104)->Lines().AddString(line);
            }
        };
        dlg.OnKillFocus(101, [this] { dlg.Log("kill 101"); });
        dlg.OnKillFocus(102, [this] { dlg.Log("kill 102"); });
        dlg.OnClicked(200, [this] { dlg.Log("click 200"); });
        dlg.OnClicked(1000, [this] {
            dlg.Log("click 1000");
            dlg.GotoDlgCtrl(200);
        });
        dlg.OnClicked(
            103, [this] { dlg.Log("check " + std::to_string(dlg.GetDlgItem(103)->GetCheck())); });
        dlg.OnClicked(105, [this] { dlg.Log("click 105"); });
        dlg.OnSelChange(104, [this] {
            dlg.Log("select " + std::to_string(dlg.GetDlgItem(104)->Lines().GetCurSel()));
        });
    }

    // Collects the backend's failures instead of failing the test, for the tests of refusals.
    void CollectFailures() {
        ui.SetFailureHandler([this](const std::string& p) { collected.push_back(p); });
    }

    CTestDialog dlg;
    std::vector<std::string> collected;
};

TEST_F(DialogEventsTest, TheFirstFocusableControlHasTheFocusAtStart) {
    ui.OnDialog(901, [](CHeadlessUser& user) {
        EXPECT_EQ(user.FocusId(), 101);
        user.Escape();
    });
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
}

TEST_F(DialogEventsTest, FocusLostRunsBeforeTheClickThatTookTheFocus) {
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Type(102, "12");
        user.Click(200);
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "kill 102", "click 200", "OnCancel"}));
}

TEST_F(DialogEventsTest, EnterPressesTheHiddenDefaultButtonThenTheFocusedButton) {
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Type(101, "7");
        user.Enter();
        EXPECT_EQ(user.FocusId(), 200);
        user.Enter();
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log,
              (std::vector<std::string>{"click 1000", "kill 101", "click 200", "OnCancel"}));
}

TEST_F(DialogEventsTest, EnterWithShiftIsSeenByTheHandler) {
    dlg.OnClicked(1000, [this] { dlg.Log(GetKeyState(VK_SHIFT) < 0 ? "shift" : "no shift"); });
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Enter(true);
        user.Enter();
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"shift", "no shift", "OnCancel"}));
}

TEST_F(DialogEventsTest, EnterWithoutADefaultButtonIsOk) {
    CTestDialog plain(kPlainDialog);
    ui.OnDialog(902, [](CHeadlessUser& user) { user.Enter(); });
    EXPECT_EQ(plain.DoModal(), IDOK);
    EXPECT_EQ(plain.log, std::vector<std::string>{"OnOK"});
}

TEST_F(DialogEventsTest, EscapeAndTheCloseBoxAreCancel) {
    ui.OnDialog(901, [](CHeadlessUser& user) { user.CloseBox(); });
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
    EXPECT_EQ(dlg.log, std::vector<std::string>{"OnCancel"});

    CTestDialog plain(kPlainDialog);
    CollectFailures();
    ui.OnDialog(902, [](CHeadlessUser& user) {
        user.CloseBox();
        user.Escape();
    });
    EXPECT_EQ(plain.DoModal(), IDCANCEL);
    ASSERT_EQ(collected.size(), 1u);
    EXPECT_EQ(collected[0], "close box of dialog 902: it has none");
}

TEST_F(DialogEventsTest, ChecksToggleBeforeTheirHandlerAndNotifyingStaticsReportClicks) {
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Click(103);
        user.Click(103);
        user.Click(105);
        EXPECT_EQ(user.FocusId(), 103);  // a static takes no focus
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "check 1", "check 0", "click 105",
                                                 "OnCancel"}));
}

TEST_F(DialogEventsTest, ASelectionChangeSeesTheNewSelection) {
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Pick(104, "Artillery");
        user.Pick(104, 0);
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "select 2", "select 0", "OnCancel"}));
}

TEST_F(DialogEventsTest, TheUserCannotReachHiddenDisabledOrSilentControls) {
    CollectFailures();
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Click(201);
        user.Click(1000);
        user.Click(106);
        user.Type(103, "x");
        user.Pick(104, 3);
        user.Command(32777);
        user.Escape();
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(collected, (std::vector<std::string>{
                             "click control 201 of dialog 901: it is disabled",
                             "click control 1000 of dialog 901: it is hidden",
                             "click control 106: it reports no clicks",
                             "type into control 103: not an edit that takes text",
                             "pick line 3 of control 104: there is no such line to select",
                             "menu command 32777: not in the menu of dialog 901",
                             "Escape in dialog 901 after it closed",
                         }));
    EXPECT_EQ(dlg.log, std::vector<std::string>{"OnCancel"});
}

class TreeGestureTest : public DialogEventsTest {
protected:
    TreeGestureTest() {
        dlg.init = [this](CTestDialog& d) {
            CTreeStore& tree = d.GetDlgItem(107)->Tree();
            army = tree.InsertItem("Army");
            corps = tree.InsertItem("Corps", army);
            tree.InsertItem("Brigade", corps);
        };
        dlg.OnTreeRightClick(107, [this] { dlg.Log("right click"); });
        dlg.OnTreeDoubleClick(107, [this] { dlg.Log("double click"); });
        dlg.OnTreeEndLabelEdit(107, [this](HTREEITEM entry, const std::string* text) {
            dlg.Log("end edit " + entry->Label() + (text ? " -> " + *text : " cancelled"));
            return text != nullptr && *text != "Refused";
        });
    }
    HTREEITEM army = nullptr;
    HTREEITEM corps = nullptr;
};

TEST_F(TreeGestureTest, ARightClickLeavesTheSelectionAndADoubleClickExpands) {
    ui.OnDialog(901, [this](CHeadlessUser& user) {
        CTreeStore& tree = dlg.GetDlgItem(107)->Tree();
        user.SelectEntry(107, army);
        user.RightClick(107);
        EXPECT_EQ(tree.GetSelectedItem(), army);
        user.DoubleClick(107, corps);
        EXPECT_EQ(tree.GetSelectedItem(), corps);
        EXPECT_TRUE(corps->Expanded());
        user.DoubleClick(107, corps);
        EXPECT_FALSE(corps->Expanded());
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "right click", "double click",
                                                 "double click", "OnCancel"}));
}

TEST_F(TreeGestureTest, ALabelEditKeepsTheTextOnlyWhenTheHandlerAccepts) {
    ui.OnDialog(901, [this](CHeadlessUser& user) {
        EXPECT_TRUE(user.EditLabel(107, corps, std::string("II Corps")));
        EXPECT_EQ(corps->Label(), "II Corps");
        EXPECT_FALSE(user.EditLabel(107, corps, std::string("Refused")));
        EXPECT_FALSE(user.EditLabel(107, corps, std::nullopt));
        EXPECT_EQ(corps->Label(), "II Corps");
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "end edit Corps -> II Corps",
                                                 "end edit II Corps -> Refused",
                                                 "end edit II Corps cancelled", "OnCancel"}));
}

TEST_F(TreeGestureTest, TheHeadlessTreeMeasuresTheRowsShown) {
    ui.OnDialog(901, [this](CHeadlessUser&) {
        CTreeStore& tree = dlg.GetDlgItem(107)->Tree();
        const HTREEITEM brigade = tree.GetChildItem(corps);
        EXPECT_EQ(dlg.GetTreeItemRect(107, army), (CRect{19, 0, 19 + 6 * 4 + 4, 16}));
        EXPECT_EQ(dlg.GetTreeItemRect(107, corps), CRect{});
        tree.Expand(army, TVE_EXPAND);
        tree.Expand(corps, TVE_EXPAND);
        EXPECT_EQ(dlg.GetTreeItemRect(107, brigade), (CRect{57, 32, 57 + 6 * 7 + 4, 48}));
        // The tree sits at 100, 10 dialog units: 150, 16 pixels.
        EXPECT_EQ(dlg.ClientToScreen(107, CPoint{1, 2}), (CPoint{151, 18}));
        dlg.EndDialog(IDOK);
    });
    EXPECT_EQ(dlg.DoModal(), IDOK);
}

TEST_F(DialogEventsTest, WhatTheTestDidNotScriptFailsNamingWhatItShowed) {
    CollectFailures();
    CTestDialog plain(kPlainDialog);
    EXPECT_EQ(plain.DoModal(), IDCANCEL);
    ui.OnDialog(901, [](CHeadlessUser& user) {
        EXPECT_EQ(
            user.Dialog().MessageBox("Do you want to quit?", "Exit", MB_YESNO | MB_ICONQUESTION),
            IDNO);
        CFileDialog chooser(true, "txt", "", OFN_HIDEREADONLY, "Workspace Files (*.txt)|*.txt|");
        EXPECT_EQ(chooser.DoModal(), IDCANCEL);
    });
    dlg.DoModal();
    ui.AnswerMessage(IDYES);
    ui.OnDialog(902, [](CHeadlessUser&) {});
    ui.CheckAllUsed();
    EXPECT_EQ(collected,
              (std::vector<std::string>{
                  "dialog 902 \"Plain\" opened without a script",
                  "message box not scripted: \"Do you want to quit?\" (caption \"Exit\")",
                  "file chooser not scripted: open \"Workspace Files (*.txt)|*.txt|\"",
                  "dialog 901 \"Events\" still open at the end of its script",
                  "script for dialog 902 never used: the dialog did not open",
                  "message box answer 6 never used",
              }));
}

TEST_F(DialogEventsTest, AMessageBoxShowingOtherTextThanExpectedFails) {
    CollectFailures();
    ui.AnswerMessage("Do you want to quit?", IDYES);
    ui.OnDialog(901, [](CHeadlessUser& user) {
        EXPECT_EQ(user.Dialog().MessageBox("Quit?", "Exit", MB_YESNO), IDYES);
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(collected, std::vector<std::string>{
                             "message box showed \"Quit?\", the test expected \"Do you want to "
                             "quit?\""});
}

TEST_F(DialogEventsTest, FileChoosersTakeTheScriptedPathWithTheDefaultExtension) {
    ui.AnswerFileDialog("/data/army");
    ui.AnswerFileDialog("/data/army.txt");
    ui.CancelFileDialog();
    ui.OnDialog(901, [](CHeadlessUser& user) {
        CFileDialog save(false, "oob", "", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         "OOB Files (*.oob)|*.oob|Text Files (*.txt)|*.txt|", &user.Dialog());
        save.m_strInitialDir = "/data";
        ASSERT_EQ(save.DoModal(), IDOK);
        EXPECT_EQ(save.GetPathName(), "/data/army.oob");
        ASSERT_EQ(save.DoModal(), IDOK);
        EXPECT_EQ(save.GetPathName(), "/data/army.txt");
        EXPECT_EQ(save.DoModal(), IDCANCEL);
        user.Escape();
    });
    dlg.DoModal();
    ASSERT_EQ(ui.FileDialogs().size(), 3u);
    const CShownFileDialog& shown = ui.FileDialogs()[0];
    EXPECT_FALSE(shown.open);
    EXPECT_EQ(shown.defaultExtension, "oob");
    EXPECT_EQ(shown.initialDir, "/data");
    EXPECT_EQ(shown.flags, unsigned{OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT});
    ASSERT_EQ(shown.filters.size(), 2u);
    EXPECT_EQ(shown.filters[1].description, "Text Files (*.txt)");
    EXPECT_EQ(shown.filters[1].pattern, "*.txt");
}

// The structure summary's pattern: bars sized from a frame's client area, moved to the back.
TEST_F(DialogEventsTest, AFrameGivesItsClientSizeAndAControlCanBeMovedAndResized) {
    const CDialogTemplate bars{.id = 903,
                               .caption = "Bars",
                               .cx = 200,
                               .cy = 80,
                               .controls = {{1072, K::Frame, 10, 10, 100, 16, "", STYLE_SUNKEN},
                                            {1066, K::Bar, 12, 12, 10, 12, "", STYLE_HIDDEN}}};
    CTestDialog summary(bars);
    ui.OnDialog(903, [&](CHeadlessUser& user) {
        const CRect client = summary.GetDlgItem(1072)->GetClientRect();
        EXPECT_EQ(client, (CRect{0, 0, 150 - 4, 26 - 4}));
        CWnd* bar = summary.GetDlgItem(1066);
        const CRect at = bar->GetWindowRect();
        bar->MoveWindow(
            CRect{at.left, at.top, at.left + client.Width() / 2, at.top + client.Height()});
        bar->ShowWindow(true);
        bar->SendToBack();
        EXPECT_EQ(bar->GetWindowRect(), (CRect{18, 20, 18 + 73, 20 + 22}));
        EXPECT_TRUE(user.IsVisible(1066));
        EXPECT_EQ(bar->LoweredCount(), 1u);
        user.Escape();
    });
    summary.DoModal();
}

TEST_F(DialogEventsTest, PaintingDrawsWhatTheDialogPaints) {
    const CPixelImage strip{4, 2, std::vector<std::uint32_t>(8, 0xFF336699)};
    dlg.paint = [&](CPaintDC& dc) { dc.BitBlt(10, 10, 2, 2, strip, 2, 0); };
    ui.OnDialog(901, [&](CHeadlessUser& user) {
        const auto& ops = user.Paint().Ops();
        ASSERT_EQ(ops.size(), 1u);
        EXPECT_EQ(ops[0].kind, CPaintOp::Kind::BitBlt);
        EXPECT_EQ((std::array{ops[0].x, ops[0].y, ops[0].width, ops[0].srcX}),
                  (std::array{10, 10, 2, 2}));
        EXPECT_EQ(ops[0].image, &strip);
        user.Escape();
    });
    dlg.DoModal();
}

TEST(FileFilter, SplitsIntoDescriptionAndPatternPairs) {
    const auto filters = ParseFileFilter("HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|");
    ASSERT_EQ(filters.size(), 2u);
    EXPECT_EQ(filters[0].description, "HTML Files (*.html)");
    EXPECT_EQ(filters[1].pattern, "*.htm");
    EXPECT_EQ(ParseFileFilter("A|*.a|Dangling").size(), 1u);
    EXPECT_EQ(ParseFileFilter("A|*.a").size(), 1u);
    EXPECT_TRUE(ParseFileFilter("").empty());
    EXPECT_EQ(AddDefaultExtension("/x.y/army", "oob"), "/x.y/army.oob");
    EXPECT_EQ(AddDefaultExtension("army.", "oob"), "army.");
    EXPECT_EQ(AddDefaultExtension("army", ""), "army");
}

TEST_F(DialogEventsTest, APopupMenuRunsTheChosenCommand) {
    const CMenuItem popup{"&Edit", 0, {{"&Copy", 200}, {}, {"Cu&t", 105}}};
    ui.AnswerPopupMenu(200);
    ui.AnswerPopupMenu(0);
    ui.OnDialog(901, [&](CHeadlessUser& user) {
        user.Dialog().TrackPopupMenu(popup, CPoint{5, 6});
        user.Dialog().TrackPopupMenu(popup, CPoint{7, 8});
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"click 200", "OnCancel"}));
    ASSERT_EQ(ui.Popups().size(), 2u);
    EXPECT_EQ(ui.Popups()[0].point, (CPoint{5, 6}));
    EXPECT_EQ(ui.Popups()[0].menu.popup.size(), 3u);
}

TEST_F(DialogEventsTest, ADialogOpenedFromAHandlerRunsItsOwnScript) {
    CTestDialog plain(kPlainDialog);
    dlg.OnClicked(200, [&] { dlg.Log("inner " + std::to_string(plain.DoModal())); });
    ui.OnDialog(902, [](CHeadlessUser& user) {
        EXPECT_EQ(ActiveDialog()->Resource().id, 902);
        user.Type(101, "x");
        user.Enter();
    });
    ui.OnDialog(901, [](CHeadlessUser& user) {
        user.Click(200);
        EXPECT_EQ(ActiveDialog()->Resource().id, 901);
        user.Escape();
    });
    dlg.DoModal();
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "inner 1", "OnCancel"}));
}
}  // namespace
