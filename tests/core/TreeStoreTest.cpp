#include "platform/TreeStore.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TestTrees.h"

namespace {

// Entry data that counts its destructions.
class CCountedData : public CTreeItemData {
public:
    explicit CCountedData(int& destroyed) : m_destroyed(destroyed) {}
    ~CCountedData() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

void GiveCountedData(CTreeStore& tree, const std::map<std::string, HTREEITEM>& entries,
                     int& destroyed) {
    for (const auto& [label, entry] : entries) {
        tree.SetItemData(entry, std::make_unique<CCountedData>(destroyed));
    }
}

TEST(TreeStore, InsertsAfterSiblingFirstAndLast) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " A1", "  A11", "B", "C"});
    HTREEITEM x = tree.InsertItem("X", TVI_ROOT, e["A"]);
    EXPECT_EQ(Shape(tree), "A(A1(A11)) X B C");
    tree.InsertItem("F", TVI_ROOT, TVI_FIRST);
    tree.InsertItem("L", TVI_ROOT, TVI_LAST);
    tree.InsertItem("Y", TVI_ROOT, x);
    EXPECT_EQ(Shape(tree), "F A(A1(A11)) X Y B C L");
    // An insert-after position that is no child of the parent puts the entry last.
    tree.InsertItem("Z", TVI_ROOT, e["A11"]);
    tree.InsertItem("A0", e["A"], TVI_FIRST);
    tree.InsertItem("A2", e["A"], e["A1"]);
    tree.InsertItem("A3", e["A"], TVI_LAST);
    EXPECT_EQ(Shape(tree), "F A(A0 A1(A11) A2 A3) X Y B C L Z");
    EXPECT_EQ(tree.GetCount(), 13u);
    EXPECT_EQ(tree.InsertItem("bad", TVI_FIRST, TVI_LAST), nullptr);
    EXPECT_EQ(tree.GetCount(), 13u);
}

TEST(TreeStore, NavigatesRootSiblingsParentChildAndCaret) {
    CTreeStore tree;
    EXPECT_EQ(tree.GetRootItem(), nullptr);
    EXPECT_EQ(tree.GetChildItem(TVI_ROOT), nullptr);
    auto e = BuildTree(tree, {"A", " B", "  C", " D", "E"});
    struct Case {
        const char* from;
        TreeNext code;
        const char* to;  // none when null
    } cases[] = {
        {"A", TVGN_NEXT, "E"},      {"E", TVGN_NEXT, nullptr},     {"B", TVGN_NEXT, "D"},
        {"D", TVGN_NEXT, nullptr},  {"A", TVGN_PREVIOUS, nullptr}, {"E", TVGN_PREVIOUS, "A"},
        {"D", TVGN_PREVIOUS, "B"},  {"A", TVGN_PARENT, nullptr},   {"E", TVGN_PARENT, nullptr},
        {"B", TVGN_PARENT, "A"},    {"C", TVGN_PARENT, "B"},       {"A", TVGN_CHILD, "B"},
        {"C", TVGN_CHILD, nullptr}, {"D", TVGN_ROOT, "A"},         {"C", TVGN_CARET, nullptr},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(tree.GetNextItem(e[c.from], c.code), c.to ? e[c.to] : nullptr)
            << c.from << " " << c.code;
    }
    for (HTREEITEM root : {TVI_ROOT, tree.HiddenRoot()}) {
        EXPECT_EQ(tree.GetChildItem(root), e["A"]);
        for (TreeNext code : {TVGN_NEXT, TVGN_PREVIOUS, TVGN_PARENT}) {
            EXPECT_EQ(tree.GetNextItem(root, code), nullptr) << code;
        }
        EXPECT_FALSE(tree.SelectItem(root));
    }
    EXPECT_EQ(tree.GetNextItem(nullptr, TVGN_NEXT), nullptr);
    EXPECT_EQ(tree.GetParentItem(nullptr), nullptr);
    EXPECT_TRUE(tree.ItemHasChildren(e["A"]));
    EXPECT_FALSE(tree.ItemHasChildren(e["C"]));
    EXPECT_TRUE(tree.SelectItem(e["C"]));
    EXPECT_EQ(tree.GetSelectedItem(), e["C"]);
    EXPECT_EQ(tree.GetNextItem(nullptr, TVGN_CARET), e["C"]);
    tree.SetItemText(e["C"], "C2");
    EXPECT_EQ(tree.GetItemText(e["C"]), "C2");
}

TEST(TreeStore, DeleteReleasesTheDataOfTheWholeSubtree) {
    int destroyed = 0;
    {
        CTreeStore tree;
        auto e = BuildTree(tree, {"A", " B", "  C", "  D", " E", "F"});
        GiveCountedData(tree, e, destroyed);
        EXPECT_TRUE(tree.DeleteItem(e["B"]));
        EXPECT_EQ(destroyed, 3);
        EXPECT_EQ(tree.GetCount(), 3u);
        EXPECT_EQ(Shape(tree), "A(E) F");
        // Replacing an entry's data releases the old data.
        tree.SetItemData(e["F"], std::make_unique<CCountedData>(destroyed));
        EXPECT_EQ(destroyed, 4);
        EXPECT_TRUE(tree.DeleteItem(TVI_ROOT));
        EXPECT_EQ(destroyed, 7);
        EXPECT_EQ(tree.GetCount(), 0u);
        EXPECT_EQ(tree.GetRootItem(), nullptr);
        EXPECT_FALSE(tree.DeleteItem(nullptr));

        auto again = BuildTree(tree, {"G", " H"});
        GiveCountedData(tree, again, destroyed);
    }
    EXPECT_EQ(destroyed, 9);  // the store releases what is left when it goes
}

TEST(TreeStore, CaretInsideADeletedSubtreeBecomesNone) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " B", "  C", " D", "E"});
    tree.SelectItem(e["D"]);
    tree.DeleteItem(e["B"]);
    EXPECT_EQ(tree.GetSelectedItem(), e["D"]);
    tree.SelectItem(e["D"]);
    tree.DeleteItem(e["A"]);
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
    tree.SelectItem(e["E"]);
    tree.DeleteAllItems();
    EXPECT_EQ(tree.GetSelectedItem(), nullptr);
}

TEST(TreeStore, RowsStayRightAfterMiddleInsertsAndDeletes) {
    CTreeStore tree;
    std::vector<HTREEITEM> top;
    for (char c = 'a'; c <= 'h'; ++c) {
        top.push_back(tree.InsertItem(std::string(1, c)));
    }
    tree.DeleteItem(top[2]);
    tree.DeleteItem(top[5]);
    tree.InsertItem("x", TVI_ROOT, top[1]);
    tree.InsertItem("y", TVI_ROOT, top[0]);
    tree.DeleteItem(top[0]);
    tree.InsertItem("z", TVI_ROOT, top[7]);
    EXPECT_EQ(Shape(tree), "y b x d e g h z");
}

TEST(TreeStore, ExpandsCollapsesAndToggles) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " B"});
    HTREEITEM a = e["A"];
    EXPECT_FALSE(a->Expanded());
    const std::pair<TreeExpand, bool> steps[] = {{TVE_EXPAND, true},    {TVE_EXPAND, true},
                                                 {TVE_TOGGLE, false},   {TVE_TOGGLE, true},
                                                 {TVE_COLLAPSE, false}, {TVE_TOGGLE, true}};
    for (const auto& [how, expanded] : steps) {
        EXPECT_TRUE(tree.Expand(a, how));
        EXPECT_EQ(a->Expanded(), expanded) << how;
    }
    EXPECT_FALSE(tree.Expand(nullptr, TVE_EXPAND));
}

// Records every notification with what the store shows at that moment.
class CRecordingObserver : public CTreeObserver {
public:
    CRecordingObserver(const CTreeStore& tree, const int& destroyed)
        : m_tree(tree), m_destroyed(destroyed) {}

    void BeforeInsert(HTREEITEM parent, std::size_t row) override {
        Log("before insert " + Name(parent) + " " + std::to_string(row) + " children " +
            std::to_string(parent->ChildCount()));
    }
    void AfterInsert(HTREEITEM entry) override {
        Log("after insert " + entry->Label() + " children " +
            std::to_string(entry->Parent()->ChildCount()));
    }
    void BeforeRemove(HTREEITEM entry) override { Log("before remove " + entry->Label()); }
    void AfterRemove() override { Log("after remove"); }
    void BeforeReset() override { Log("before reset"); }
    void AfterReset() override { Log("after reset"); }
    void LabelChanged(HTREEITEM entry) override { Log("label " + entry->Label()); }
    void CaretChanged(HTREEITEM entry) override { Log("caret " + Name(entry)); }
    void ExpandChanged(HTREEITEM entry) override { Log("expand " + Name(entry)); }

    std::vector<std::string> m_log;

private:
    std::string Name(HTREEITEM entry) const {
        return !entry ? "none" : entry == m_tree.HiddenRoot() ? "root" : entry->Label();
    }
    // Every line carries the entry count and the number of data objects destroyed so far.
    void Log(const std::string& what) {
        m_log.push_back(what + " [" + std::to_string(m_tree.GetCount()) + "/" +
                        std::to_string(m_destroyed) + "]");
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
    const std::vector<std::string> expected = {
        "before insert root 0 children 0 [0/0]",
        "after insert A children 1 [1/0]",
        "before insert A 0 children 0 [1/0]",
        "after insert B children 1 [2/0]",
        "before insert root 0 children 1 [2/0]",
        "after insert C children 2 [3/0]",
        "label B2 [3/0]",
        "caret B2 [3/0]",
        "expand A [3/0]",
        "caret none [3/0]",
        "before remove A [3/0]",
        "after remove [1/2]",
        "before reset [1/2]",
        "after reset [0/2]",
    };
    EXPECT_EQ(observer.m_log, expected);
}

TEST(TreeStore, DeletesAVeryDeepChainWithoutRecursion) {
    constexpr int kDepth = 100000;
    int destroyed = 0;
    CTreeStore tree;
    HTREEITEM top = BuildChain(tree, kDepth);
    for (HTREEITEM e = top; e; e = tree.GetChildItem(e)) {
        tree.SetItemData(e, std::make_unique<CCountedData>(destroyed));
    }
    EXPECT_EQ(tree.GetCount(), static_cast<std::size_t>(kDepth));
    EXPECT_TRUE(tree.DeleteItem(top));
    EXPECT_EQ(destroyed, kDepth);
    EXPECT_EQ(tree.GetCount(), 0u);
    BuildChain(tree, kDepth);  // left for the store's destructor
}

}  // namespace
