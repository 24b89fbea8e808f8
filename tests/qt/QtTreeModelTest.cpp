// The tree adapter under Qt's own model checker while the store changes in every way the
// editor changes it.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QTreeView>

#include "platform/qt/QtTreeModel.h"

namespace {
std::vector<QString>* g_pWarnings = nullptr;

void CollectWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg && g_pWarnings) {
        g_pWarnings->push_back(message);
    }
}

class TreeModelTest : public ::testing::Test {
protected:
    TreeModelTest() : model(store, true) {
        g_pWarnings = &warnings;
        previous = qInstallMessageHandler(CollectWarning);
    }
    ~TreeModelTest() override {
        qInstallMessageHandler(previous);
        g_pWarnings = nullptr;
    }

    QString Label(const QModelIndex& index) { return model.data(index).toString(); }

    CTreeStore store;
    CQtTreeModel model;
    std::vector<QString> warnings;
    QtMessageHandler previous = nullptr;
};

TEST_F(TreeModelTest, PassesQtsModelCheckerThroughEveryKindOfChange) {
    QAbstractItemModelTester tester(&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning);
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
    view.expandAll();
    store.SetItemText(corps, "II Corps");
    store.SelectItem(corps);
    store.Expand(corps, TVE_TOGGLE);
    store.DeleteItem(store.GetChildItem(corps));
    store.DeleteItem(north);
    EXPECT_EQ(store.GetSelectedItem(), nullptr);
    store.DeleteItem(between);
    for (int i = 0; i < 20; ++i) {
        store.InsertItem("Unit " + std::to_string(i), south, i % 2 ? TVI_FIRST : TVI_LAST);
    }
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
    EXPECT_TRUE(warnings.empty()) << warnings.front().toStdString();
}

TEST_F(TreeModelTest, ShowsTheStoresShapeAndLabels) {
    const HTREEITEM army = store.InsertItem(
        "Arm\xE9"
        "e du Nord");
    const HTREEITEM corps = store.InsertItem("I Corps", army);
    const HTREEITEM brigade = store.InsertItem("Brigade", corps);
    store.InsertItem("II Corps", army);

    EXPECT_EQ(model.rowCount(), 1);
    const QModelIndex armyIndex = model.index(0, 0);
    EXPECT_EQ(Label(armyIndex), QString::fromUtf8("Arm\u00E9e du Nord"));
    EXPECT_EQ(model.rowCount(armyIndex), 2);
    const QModelIndex brigadeIndex = model.index(0, 0, model.index(0, 0, armyIndex));
    EXPECT_EQ(model.EntryOf(brigadeIndex), brigade);
    EXPECT_EQ(model.EntryOf(model.parent(brigadeIndex)), corps);
    EXPECT_EQ(model.IndexOf(brigade), brigadeIndex);
    EXPECT_FALSE(model.parent(armyIndex).isValid());
    EXPECT_FALSE(model.index(2, 0, armyIndex).isValid());
    EXPECT_TRUE(model.flags(brigadeIndex) & Qt::ItemIsEditable);
}

TEST(TreeModel, TakesItselfOffTheStoreWhenDestroyed) {
    CTreeStore store;
    auto model = std::make_unique<CQtTreeModel>(store, false);
    model.reset();
    store.InsertItem("No one listens");  // no observer left behind to call
    EXPECT_EQ(store.GetCount(), 1u);
}
}  // namespace
