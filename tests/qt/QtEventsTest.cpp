// The Qt face maps the user's real events to the dialog's handlers as the original system did,
// shows what the program sets, and paints what it draws.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "QtRun.h"
#include "platform/qt/QtBackend.h"
#include "ui/TestDialog.h"

namespace {
// Types text as key presses carrying the characters (QTest's own typing knows only ASCII).
void Type(QWidget* widget, const QString& text) {
    for (const QChar c : text) {
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

class QtEventsTest : public ::testing::Test {
protected:
    QtEventsTest() {
        dlg.init = [this, shared = dlg.init](CTestDialog& d) {
            shared(d);
            d.GetDlgItem(104)->Lines().SetCurSel(0);
            d.GetDlgItem(102)->LimitText(4);
            d.GetDlgItem(107)->Tree().Expand(dlg.army, TVE_EXPAND);
            d.GetDlgItem(107)->Tree().SelectItem(dlg.corps);
        };
    }

    CQtBackend backend;
    CEventsDialog dlg;
};

// Typing drops what Windows-1252 cannot hold and what the limit or the digits style refuses;
// focus lost runs before the click that took the focus, and Enter presses the hidden default
// button, which moves the focus, then the focused one. A notifying static reports clicks and a
// plain one does not; a check box and a drop-down list change before their handlers see them,
// and a list selected by the program shows it.
TEST_F(QtEventsTest, FocusClicksEnterAndSelectionsReachTheirHandlers) {
    RunShown(dlg, [&](QWidget* window) {
        auto* edit = WidgetOf<QLineEdit>(window, 101);
        EXPECT_EQ(QApplication::focusWidget(), edit);
        Type(edit, QString::fromUtf8("Gen. Lef\u00E8vre\u041A\u043E"));
        EXPECT_EQ(dlg.GetDlgItem(101)->GetWindowText(), "Gen. Lef\xE8vre");
        auto* strength = WidgetOf<QLineEdit>(window, 102);
        QTest::mouseClick(strength, Qt::LeftButton);
        QTest::keyClicks(strength, "12a345");
        EXPECT_EQ(dlg.GetDlgItem(102)->GetWindowText(), "1234");
        QTest::mouseClick(WidgetOf<QPushButton>(window, 200), Qt::LeftButton);
        QTest::mouseClick(strength, Qt::LeftButton);
        QTest::keyClick(strength, Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), WidgetOf<QPushButton>(window, 200));
        QTest::keyClick(WidgetOf<QPushButton>(window, 200), Qt::Key_Return);
        QTest::mouseClick(WidgetOf<QLabel>(window, 105), Qt::LeftButton);
        QTest::mouseClick(WidgetOf<QLabel>(window, 106), Qt::LeftButton);
        auto* check = WidgetOf<QCheckBox>(window, 103);
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(4, check->height() / 2));
        EXPECT_EQ(dlg.GetDlgItem(103)->GetCheck(), 1);
        auto* combo = WidgetOf<QComboBox>(window, 104);
        QTest::keyClick(combo, Qt::Key_Down);
        EXPECT_EQ(dlg.GetDlgItem(104)->Lines().GetCurSel(), 1);
        dlg.GetDlgItem(104)->Lines().SetCurSel(2);
        dlg.RedrawWindow();
        EXPECT_EQ(combo->currentText(), "Artillery");
    });
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "kill 102", "click 200", "click 1000",
                                                 "kill 102", "click 200", "click 105", "check 1",
                                                 "select 1"}));
}

// A label edit ends with the new text (less what Windows-1252 cannot hold) or, on Escape,
// cancelled; a right click keeps the selection, a left click moves it, and the view follows the
// store's inserts, selection, deletes and collapses.
TEST_F(QtEventsTest, TheTreesGesturesAndTheViewFollowingTheStore) {
    RunShown(dlg, [&](QWidget* window) {
        auto* view = WidgetOf<QTreeView>(window, 107);
        CTreeStore& tree = dlg.GetDlgItem(107)->Tree();
        EXPECT_EQ(view->currentIndex().data().toString(), "Corps");
        view->setFocus();
        for (const auto& [text, end] : {std::pair{"II Corps \u2013 \u0416", Qt::Key_Return},
                                        std::pair{"x", Qt::Key_Escape}}) {
            QTest::keyClick(view, Qt::Key_F2);
            auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            ASSERT_NE(editor, nullptr);
            editor->selectAll();
            Type(editor, QString::fromUtf8(text));
            QTest::keyClick(editor, end);
            QCoreApplication::processEvents();
            EXPECT_EQ(dlg.corps->Label(), "II Corps \x96 ");
        }
        EXPECT_EQ(view->currentIndex().data().toString(), QString::fromUtf8("II Corps \u2013 "));
        EXPECT_TRUE(dlg.IsRunning());  // Escape ended the edit, not the dialog

        const QRect armyRow = view->visualRect(view->model()->index(0, 0));
        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, armyRow.center());
        EXPECT_EQ(tree.GetSelectedItem(), dlg.corps);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, armyRow.center());
        EXPECT_EQ(tree.GetSelectedItem(), dlg.army);
        const HTREEITEM added = tree.InsertItem("Reserve", dlg.army);
        tree.SelectItem(added);
        EXPECT_EQ(view->currentIndex().data().toString(), "Reserve");
        tree.DeleteItem(added);
        EXPECT_EQ(tree.GetSelectedItem(), nullptr);
        EXPECT_FALSE(view->selectionModel()->hasSelection());
        tree.Expand(dlg.army, TVE_COLLAPSE);
        EXPECT_FALSE(view->isExpanded(view->model()->index(0, 0)));
        const CRect label = dlg.GetTreeItemRect(107, dlg.army);
        EXPECT_EQ(label.top, armyRow.top());
        EXPECT_LT(label.right, view->viewport()->width());
        // A double click on the selected entry: its first click arms the label editor, which
        // must not open once the double click has been handled.
        dlg.OnTreeDoubleClick(107, [&] {  // as a handler that opens a dialog would
            dlg.Log("double click");
            QTest::qWait(QApplication::doubleClickInterval() + 100);
        });
        tree.SelectItem(dlg.army);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, armyRow.center());
        // The second press of a double click reaches the view as the double click alone.
        QMouseEvent second(QEvent::MouseButtonDblClick, armyRow.center(),
                           view->viewport()->mapToGlobal(armyRow.center()), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &second);
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, armyRow.center());
        QTest::qWait(QApplication::doubleClickInterval() + 100);
        for (const QLineEdit* editor : view->viewport()->findChildren<QLineEdit*>()) {
            EXPECT_FALSE(editor->isVisible());
        }
    });
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 101", "end edit Corps -> II Corps \x96 ",
                                                 "end edit II Corps \x96  cancelled", "right click",
                                                 "double click"}));
}

// Drawing reaches the screen with the colours it was given, and a resized control follows.
TEST_F(QtEventsTest, PaintingAndMovingShowOnTheWindow) {
    const CPixelImage strip{4,
                            2,
                            {0xFF000000, 0xFF000000, 0xFFB3262E, 0xFFB3262E,  //
                             0xFF000000, 0xFF000000, 0xFFB3262E, 0xFFB3262E}};
    dlg.paint = [&](CPaintDC& dc) { dc.BitBlt(0, 0, 2, 2, strip, 2, 0); };
    RunShown(dlg, [&](QWidget* window) {
        QWidget* client = WidgetOf<QLabel>(window, 106)->parentWidget();
        const QImage shot = client->grab().toImage();
        EXPECT_EQ(shot.pixel(1, 1), 0xFFB3262Eu);
        CWnd* label = dlg.GetDlgItem(106);
        label->MoveWindow(CRect{5, 6, 55, 26});
        dlg.RedrawWindow();
        EXPECT_EQ(WidgetOf<QLabel>(window, 106)->geometry(), QRect(5, 6, 50, 20));
    });
}
}  // namespace
