#include "base/TreeStore.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "TestTrees.h"
#include "base/TreeWalk.h"

namespace {

// Entry data that counts its destructions.
class CCountedData : public CTreeItemData {
public:
    explicit CCountedData(int& destroyed) : m_destroyed(destroyed) {}
    ~CCountedData() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

TEST(TreeStore, InsertsAfterSiblingFirstAndLastKeepingRowsRight) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " A1", "  A11", "B", "C"});
    HTREEITEM x = tree.InsertItem("X", TVI_ROOT, e["A"]);
    HTREEITEM f = tree.InsertItem("F", TVI_ROOT, TVI_FIRST);
    tree.InsertItem("Y", TVI_ROOT, x);
    // An insert-after position that is no child of the parent puts the entry last.
    tree.InsertItem("Z", TVI_ROOT, e["A11"]);
    tree.InsertItem("A0", e["A"], TVI_FIRST);
    tree.InsertItem("A2", e["A"], e["A1"]);
    EXPECT_EQ(Shape(tree), "F A(A0 A1(A11) A2) X Y B C Z");
    EXPECT_EQ(tree.InsertItem("bad", TVI_FIRST, TVI_LAST), nullptr);
    tree.DeleteItem(x);
    tree.DeleteItem(f);
    tree.InsertItem("W", TVI_ROOT, e["B"]);
    tree.DeleteItem(e["A1"]);
    EXPECT_EQ(Shape(tree), "A(A0 A2) Y B W C Z");
    EXPECT_EQ(tree.GetCount(), 8u);
}

// Siblings and parents are every Shape's own checks.
TEST(TreeStore, NavigatesFromTheRootAndToTheCaret) {
    CTreeStore tree;
    EXPECT_EQ(tree.GetRootItem(), nullptr);
    auto e = BuildTree(tree, {"A", " B", "  C", " D", "E"});
    EXPECT_EQ(tree.GetNextItem(e["D"], TVGN_ROOT), e["A"]);
    EXPECT_EQ(tree.GetChildItem(e["C"]), nullptr);
    EXPECT_EQ(tree.GetNextItem(e["C"], TVGN_CARET), nullptr);
    for (HTREEITEM root : {TVI_ROOT, tree.HiddenRoot()}) {
        EXPECT_EQ(tree.GetChildItem(root), e["A"]);
        for (TreeNext code : {TVGN_NEXT, TVGN_PREVIOUS, TVGN_PARENT}) {
            EXPECT_EQ(tree.GetNextItem(root, code), nullptr) << code;
        }
        EXPECT_FALSE(tree.SelectItem(root));
    }
    EXPECT_EQ(tree.GetParentItem(nullptr), nullptr);
    EXPECT_TRUE(tree.SelectItem(e["C"]));
    EXPECT_EQ(tree.GetNextItem(nullptr, TVGN_CARET), e["C"]);
}

// The caret survives the deletion of another subtree, and goes with its own.
TEST(TreeStore, DeleteTakesTheCaretOnlyWithItsSubtree) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " B", "  C", "  D", " E", "F"});
    tree.SelectItem(e["E"]);
    EXPECT_TRUE(tree.DeleteItem(e["B"]));
    EXPECT_EQ(tree.GetSelectedItem(), e["E"]);
    EXPECT_EQ(Shape(tree), "A(E) F");
    tree.DeleteItem(e["A"]);
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
    EXPECT_FALSE(tree.DeleteItem(nullptr));
}

// Records every notification with the entry count and the data destroyed at that moment.
class CRecordingObserver : public CTreeObserver {
public:
    CRecordingObserver(const CTreeStore& tree, const int& destroyed)
        : m_tree(tree), m_destroyed(destroyed) {}

    void BeforeInsert(HTREEITEM parent, std::size_t row) override {
        Log("before insert " + Name(parent) + " " + std::to_string(row) + " children " +
            std::to_string(parent->ChildCount()));
    }
    void AfterInsert(HTREEITEM entry) override {
        Log("after insert " + std::string(entry->Label()) + " children " +
            std::to_string(entry->Parent()->ChildCount()));
    }
    void BeforeRemove(HTREEITEM entry) override {
        Log("before remove " + std::string(entry->Label()));
    }
    void AfterRemove() override { Log("after remove"); }
    void BeforeReset() override { Log("before reset"); }
    void AfterReset() override { Log("after reset"); }
    void LabelChanged(HTREEITEM entry) override { Log("label " + std::string(entry->Label())); }
    void CaretChanged(HTREEITEM entry) override { Log("caret " + Name(entry)); }
    void ExpandChanged(HTREEITEM entry) override { Log("expand " + Name(entry)); }

    std::string m_log;  // one line a notification

private:
    std::string Name(HTREEITEM entry) const {
        return !entry                         ? "none"
               : entry == m_tree.HiddenRoot() ? "root"
                                              : std::string(entry->Label());
    }
    void Log(const std::string& what) {
        m_log += what + " [" + std::to_string(m_tree.GetCount()) + "/" +
                 std::to_string(m_destroyed) + "]\n";
    }
    const CTreeStore& m_tree;
    const int& m_destroyed;
};

TEST(TreeStore, ObserverSeesTheStoreBeforeAndAfterEveryChange) {
    int destroyed = 0;
    CTreeStore tree;
    CRecordingObserver observer(tree, destroyed);
    tree.SetObserver(&observer);
    HTREEITEM a = tree.InsertItem("A");
    HTREEITEM b = tree.InsertItem("B", a, TVI_LAST);
    tree.SetItemData(a, std::make_unique<CCountedData>(destroyed));
    tree.SetItemData(b, std::make_unique<CCountedData>(destroyed));
    tree.InsertItem("C", TVI_ROOT, TVI_FIRST);
    tree.SetItemText(b, "B2");
    tree.SelectItem(b);
    tree.Expand(a, TVE_EXPAND);
    tree.Expand(a, TVE_EXPAND);
    tree.DeleteItem(a);
    tree.DeleteItem(TVI_ROOT);
    tree.SetObserver(nullptr);
    EXPECT_EQ(observer.m_log, ReadBytes(HW_TEST_DATA "/tree-observer.txt"));
}

// Neither the walk nor the delete recurses into the chain.
TEST(TreeStore, WalksAndDeletesAVeryDeepChain) {
    constexpr int kDepth = 100000;
    int destroyed = 0;
    int deepest = 0;
    CTreeStore tree;
    HTREEITEM top = BuildChain(tree, kDepth);
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        tree.SetItemData(walk.Current(), std::make_unique<CCountedData>(destroyed));
        deepest = walk.Depth();
    }
    EXPECT_EQ(deepest, kDepth - 1);
    EXPECT_TRUE(tree.DeleteItem(top));
    EXPECT_EQ(destroyed, kDepth);  // every entry walked and deleted
    EXPECT_EQ(tree.GetCount(), 0u);
    BuildChain(tree, kDepth);  // left for the store's destructor
}

}  // namespace
