#include "model/TreeWalk.h"

#include <gtest/gtest.h>

#include <string>

#include "TestTrees.h"

namespace {

// A tree whose walk climbs by two, by one and by two again, and ends at the top level.
std::map<std::string, HTREEITEM> Sample(CTreeStore& tree) {
    return BuildTree(tree, {"A", " B", "  C", "   D", " E", "F", " G", "  H", "I"});
}

// Steps from start until the end, as "label:result" for each step.
std::string Steps(const CTreeStore& tree, HTREEITEM start,
                  int (*step)(const CTreeStore&, HTREEITEM&)) {
    std::string out;
    HTREEITEM current = start;
    for (int result = 0, steps = 0; result != STEP_END && steps < 100; ++steps) {
        result = step(tree, current);
        out += (out.empty() ? "" : " ") + (result == STEP_END ? "end" : tree.GetItemText(current)) +
               ":" + std::to_string(result);
    }
    return out;
}

// The entries a walk visits, as "label/depth".
std::string Visits(const CTreeStore& tree, HTREEITEM start, const char* stepOverAt = "") {
    std::string out;
    for (CTreeWalk walk(tree, start); !walk.Done();) {
        const std::string& label = tree.GetItemText(walk.Current());
        out += (out.empty() ? "" : " ") + label + "/" + std::to_string(walk.Depth());
        label == stepOverAt ? walk.StepOver() : walk.Step();
    }
    return out;
}

TEST(TreeWalk, StepReportsEveryLevelChangeInPreOrder) {
    CTreeStore tree;
    auto e = Sample(tree);
    EXPECT_EQ(Steps(tree, e["A"], TreeStep), "B:1 C:1 D:1 E:-2 F:-1 G:1 H:1 I:-2 end:2");
}

TEST(TreeWalk, StepOverSkipsTheChildren) {
    CTreeStore tree;
    auto e = Sample(tree);
    EXPECT_EQ(Steps(tree, e["A"], TreeStepOver), "F:0 I:0 end:2");
    EXPECT_EQ(Steps(tree, e["B"], TreeStepOver), "E:0 F:-1 I:0 end:2");
    EXPECT_EQ(Steps(tree, e["H"], TreeStepOver), "I:-2 end:2");
}

// From the last child of a parent that is itself the last child of its own parent, the walk
// climbs two levels to the grandparent's next sibling.
TEST(TreeWalk, ClimbsTwoLevelsToTheGrandparentsSibling) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"P", " Q", "  R", "  S", "T"});
    HTREEITEM current = e["S"];
    EXPECT_EQ(TreeStep(tree, current), -2);
    EXPECT_EQ(current, e["T"]);
}

TEST(TreeWalk, EndsAfterALastEntryThreeLevelsDeep) {
    CTreeStore tree;
    auto e = BuildTree(tree, {"A", " B", "  C", "   D"});
    EXPECT_EQ(Steps(tree, e["A"], TreeStep), "B:1 C:1 D:1 end:2");
    HTREEITEM current = e["D"];
    EXPECT_EQ(TreeStep(tree, current), STEP_END);
    EXPECT_EQ(TreeStep(tree, current), STEP_END);  // no further level changes
    EXPECT_EQ(Visits(tree, nullptr), "A/0 B/1 C/2 D/3");
}

TEST(TreeWalk, WalksTheWholeTreeOrOneSubtree) {
    CTreeStore tree;
    auto e = Sample(tree);
    const std::pair<const char*, const char*> cases[] = {
        {nullptr, "A/0 B/1 C/2 D/3 E/1 F/0 G/1 H/2 I/0"},
        {"A", "A/0 B/1 C/2 D/3 E/1"},
        {"B", "B/0 C/1 D/2"},
        {"C", "C/0 D/1"},
        {"E", "E/0"},
        {"G", "G/0 H/1"},
        {"I", "I/0"},
    };
    for (const auto& [start, visits] : cases) {
        EXPECT_EQ(Visits(tree, start ? e[start] : nullptr), visits) << (start ? start : "all");
    }
    EXPECT_EQ(Visits(tree, e["A"], "B"), "A/0 B/1 E/1");
    EXPECT_EQ(Visits(tree, nullptr, "A"), "A/0 F/0 G/1 H/2 I/0");
    CTreeStore empty;
    EXPECT_TRUE(CTreeWalk(empty, nullptr).Done());
}

TEST(TreeWalk, WalksAVeryDeepChain) {
    constexpr int kDepth = 100000;
    CTreeStore tree;
    BuildChain(tree, kDepth);
    int visited = 0;
    int deepest = 0;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        ++visited;
        deepest = walk.Depth();
    }
    EXPECT_EQ(visited, kDepth);
    EXPECT_EQ(deepest, kDepth - 1);
}

}  // namespace
