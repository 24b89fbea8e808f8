// The tree adapter under Qt's own model checker while the store changes in every way the
// editor changes it.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QTreeView>

#include "platform/qt/QtTreeModel.h"

namespace {
// A broken rule stops the run with the checker's message.
TEST(TreeModel, PassesQtsModelCheckerThroughEveryKindOfChange) {
    CTreeStore store;
    CQtTreeModel model(store, true);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QTreeView view;
    view.setModel(&model);
    view.expandAll();

    const HTREEITEM north = store.InsertItem("North");
    const HTREEITEM south = store.InsertItem("South");
    const HTREEITEM corps = store.InsertItem("I Corps", north);
    store.InsertItem("1st Brigade", corps);
    store.InsertItem("2nd Brigade", corps, TVI_FIRST);
    const HTREEITEM between = store.InsertItem("Reserve", TVI_ROOT, north);
    store.InsertItem("Cavalry", corps, store.GetChildItem(corps));
    for (int i = 0; i < 20; ++i) {
        store.InsertItem("Unit " + std::to_string(i), south, i % 2 ? TVI_FIRST : TVI_LAST);
    }
    view.expandAll();
    store.SetItemText(corps, "II Corps");
    store.SelectItem(corps);
    store.Expand(corps, TVE_TOGGLE);
    store.DeleteItem(store.GetChildItem(corps));
    store.DeleteItem(north);
    EXPECT_EQ(store.GetSelectedItem(), nullptr);
    store.DeleteItem(between);
    // What undo and redo do: a subtree out and back, an item exchanged. Rows are announced, not
    // a reset, and the subtree comes back as expanded as it left.
    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    model.onExpandChanged = [&](HTREEITEM e) { view.setExpanded(model.IndexOf(e), e->Expanded()); };
    const HTREEITEM reserve = store.InsertItem("Reserve", south, TVI_FIRST);
    store.InsertItem("Battery", store.InsertItem("Artillery", reserve));
    store.Expand(reserve, TVE_EXPAND);
    store.Attach(store.Detach(reserve), south, 3);
    EXPECT_TRUE(view.isExpanded(model.IndexOf(reserve)));
    EXPECT_EQ(store.GetCount(), 24u);
    store.ExchangeItemData(reserve, nullptr);
    EXPECT_EQ(resets, 0);
    store.DeleteAllItems();
    store.InsertItem("After the reset");
    EXPECT_EQ(model.rowCount(), 1);
}
}  // namespace
