// The unit editor opened from the main window as a user reaches it: typed keys, focus moving on,
// the picture selector stepped, Accept and Undo.
#include <gtest/gtest.h>

#include <QMenu>
#include <QTreeView>

#include "QtRun.h"
#include "QtSampleCopy.h"
#include "app/MainDlg.h"
#include "model/UnitItem.h"
#include "platform/qt/QtBackend.h"

namespace {
void Trigger(QWidget* window, const QString& menu, const QString& command) {
    for (QAction* action : window->findChildren<QAction*>()) {
        auto* owner = qobject_cast<QMenu*>(action->parent());
        if (owner && owner->title() == menu && action->text() == command) {
            action->trigger();
        }
    }
}

// What a field or label shows.
QString TextOf(QWidget* window, int id) {
    return WidgetOf(window, id)->property("text").toString();
}

TEST(QtUnitEditor, TypedStrengthCostsAndAPickedPictureIsOneUndoableChange) {
    CSampleCopy sample;
    CQtBackend backend;
    CMainDlg dlg;
    RunShown(dlg, [&](QWidget* window) {
        ASSERT_EQ(sample.Load(window), 2);
        // The first army's guard brigade: its leader, then its first unit.
        auto* tree = WidgetOf<QTreeView>(window, IDC_TREE);
        const QModelIndex brigade = tree->model()->index(1, 0, tree->model()->index(0, 0));
        tree->setCurrentIndex(tree->model()->index(1, 0, brigade));
        QString cost;
        QString picture;
        WhenShown([&](QWidget* editor) {
            const QString costBefore = TextOf(editor, IDC_ITEM_COST);
            auto* strength = WidgetOf<QLineEdit>(editor, IDC_ITEM_STRENGTH);
            strength->setFocus();
            QTest::keyClick(strength, Qt::Key_A, Qt::ControlModifier);
            // The sample shows this unit in men, a hundred to the strength point.
            QTest::keyClicks(strength, "1700");
            QTest::keyClick(strength, Qt::Key_Tab);
            cost = TextOf(editor, IDC_ITEM_COST);
            EXPECT_NE(cost, costBefore);
            picture = TextOf(editor, IDC_ITEM_PICTURE);
            WhenShown([](QWidget* selector) {
                QTest::mouseClick(WidgetOf<QPushButton>(selector, IDC_PIC_NEXT), Qt::LeftButton);
                QTest::mouseClick(WidgetOf<QPushButton>(selector, IDC_PIC_ACCEPT), Qt::LeftButton);
            });
            QTest::mouseClick(WidgetOf<QPushButton>(editor, IDC_ITEM_PICTURE_PICK), Qt::LeftButton);
            EXPECT_EQ(TextOf(editor, IDC_ITEM_PICTURE).toInt(), picture.toInt() + 1);
            QTest::mouseClick(WidgetOf<QPushButton>(editor, IDC_ITEM_ACCEPT), Qt::LeftButton);
        });
        Trigger(window, "&Edit", "&Properties");
        const auto* unit =
            static_cast<const CUnitItem*>(ItemOf(dlg.m_tree, dlg.m_tree.GetSelectedItem()));
        EXPECT_EQ(unit->m_nStrength, 17);
        EXPECT_EQ(unit->m_nPicture, picture.toInt() + 1);
        EXPECT_EQ(cost, QString::asprintf("%g ", unit->Cost()));
        EXPECT_EQ(TextOf(window, IDC_OOB_STATUS), "*");
        Trigger(window, "&Edit", "&Undo");
        EXPECT_EQ(TextOf(window, IDC_OOB_STATUS), " ");
    });
}
}  // namespace
