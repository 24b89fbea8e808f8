// The main window's menu under the Qt face: each key runs its command, unless a label is being
// edited; a menu list runs the commands the dialog gives it; a timer fires.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include "QtRun.h"
#include "platform/qt/QtBackend.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"
#include "ui/TestDialog.h"

namespace {

// clang-format off
const std::pair<const char*, int> kKeys[] = {
    {"Ctrl+S", ID_FILE_SAVE}, {"Ctrl+O", ID_FILE_LOAD}, {"Ctrl+N", ID_FILE_NEW_EMPTY},
    {"Ctrl+Q", ID_FILE_EXIT}, {"Ctrl+Z", ID_EDIT_UNDO}, {"Ctrl+F", ID_OPTIONS_FIND},
    {"Ctrl+X", ID_EDIT_CUT}, {"Ctrl+V", ID_ADD_NEXT_PASTE}, {"Del", ID_DELETE_ITEM},
    {"Ctrl+C", ID_EDIT_COPY}, {"Ctrl+Shift+V", ID_ADD_CHILD_PASTE}};
// clang-format on

void Press(QWidget* widget, const char* key) {
    const QKeyCombination keys = QKeySequence(key)[0];
    QTest::keyClick(widget, keys.key(), keys.keyboardModifiers());
}

constexpr int kTimer = 7;

TEST(QtShortcutsTest, EachKeyRunsItsCommandButALabelBeingEditedTakesThem) {
    CQtBackend backend;
    CTestDialog dlg(DialogResource(IDD_HARNWICK_DIALOG));
    std::vector<int> ran;
    for (const auto& [key, command] : kKeys) {
        dlg.OnCommand(command, [&ran, id = command] { ran.push_back(id); });
    }
    dlg.OnCommand(ID_FILE_MRU_FILE1, [&ran] { ran.push_back(ID_FILE_MRU_FILE1); });
    dlg.OnTimer(kTimer, [&] {
        ran.push_back(kTimer);
        dlg.KillTimer(kTimer);
    });
    dlg.init = [](CTestDialog& d) {
        CTreeStore& tree = d.GetDlgItem(IDC_TREE)->Tree();
        tree.SelectItem(tree.InsertItem("First Army"));
    };
    RunShown(dlg, [&](QWidget* window) {
        auto* view = WidgetOf<QTreeView>(window, IDC_TREE);
        view->setFocus();
        for (const auto& [key, command] : kKeys) {
            ran.clear();
            Press(view, key);
            EXPECT_EQ(ran, std::vector<int>{command}) << key;
        }
        ran.clear();
        QTest::keyClick(view, Qt::Key_F2);
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr);
        for (const char* key : {"Del", "Ctrl+C", "Ctrl+Shift+V"}) {
            Press(editor, key);
        }
        EXPECT_EQ(editor->text(), "");
        QTest::keyClick(editor, Qt::Key_Escape);
        EXPECT_TRUE(ran.empty());

        // A path's UTF-8 shown as such.
        dlg.SetMenuList(ID_FILE_RECENT,
                        {{"&1 /C\xC3\xA9", ID_FILE_MRU_FILE1, {}, {}, false, true}});
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->text() == QString::fromUtf8("&1 /C\u00E9")) {
                action->trigger();
            }
        }
        dlg.SetTimer(kTimer, 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ran.size() == 2; }));
        EXPECT_EQ(ran, (std::vector<int>{ID_FILE_MRU_FILE1, kTimer}));
        QTest::keyClick(view, Qt::Key_F2);
        Press(QApplication::focusWidget(), "Alt+F");  // a menu's mnemonic still opens its menu
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QApplication::activePopupWidget()->close();
    });
}

}  // namespace
