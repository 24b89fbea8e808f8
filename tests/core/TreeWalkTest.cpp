#include "base/TreeWalk.h"

#include <gtest/gtest.h>

#include <string>

#include "TestTrees.h"

namespace {

// A tree whose walk climbs by two, by one and by two again, and ends at the top level.
class TreeWalk : public ::testing::Test {
protected:
    // Steps from start until the end, as "label:result" for each step.
    std::string Steps(const char* start, int (*step)(const CTreeStore&, HTREEITEM&)) {
        std::string out;
        HTREEITEM current = e[start];
        for (int result = 0, steps = 0; result != STEP_END && steps < 100; ++steps) {
            result = step(tree, current);
            out += (out.empty() ? "" : " ") +
                   (result == STEP_END ? "end" : std::string(tree.GetItemText(current))) + ":" +
                   std::to_string(result);
        }
        return out;
    }
    // The entries a walk visits, as "label/depth".
    std::string Visits(const char* start, const char* stepOverAt = "") {
        std::string out;
        for (CTreeWalk walk(tree, start ? e[start] : nullptr); !walk.Done();) {
            const std::string label(tree.GetItemText(walk.Current()));
            out += (out.empty() ? "" : " ") + label + "/" + std::to_string(walk.Depth());
            label == stepOverAt ? walk.StepOver() : walk.Step();
        }
        return out;
    }

    CTreeStore tree;
    std::map<std::string, HTREEITEM> e =
        BuildTree(tree, {"A", " B", "  C", "   D", " E", "F", " G", "  H", "I"});
};

TEST_F(TreeWalk, StepsReportEveryLevelChangeInPreOrder) {
    EXPECT_EQ(Steps("A", TreeStep), "B:1 C:1 D:1 E:-2 F:-1 G:1 H:1 I:-2 end:2");
    EXPECT_EQ(Steps("A", TreeStepOver), "F:0 I:0 end:2");
    EXPECT_EQ(Steps("B", TreeStepOver), "E:0 F:-1 I:0 end:2");
    EXPECT_EQ(Steps("H", TreeStepOver), "I:-2 end:2");
    // A tree that ends three levels deep, and a step from its end, which stays there.
    tree.DeleteItem(e["F"]);
    tree.DeleteItem(e["I"]);
    tree.DeleteItem(e["E"]);
    EXPECT_EQ(Steps("A", TreeStep), "B:1 C:1 D:1 end:2");
    EXPECT_EQ(Steps("D", TreeStep), "end:2");
}

TEST_F(TreeWalk, WalksTheWholeTreeOrOneSubtree) {
    const std::pair<const char*, const char*> cases[] = {
        {nullptr, "A/0 B/1 C/2 D/3 E/1 F/0 G/1 H/2 I/0"},
        {"A", "A/0 B/1 C/2 D/3 E/1"},
        {"C", "C/0 D/1"},
        {"E", "E/0"},
        {"I", "I/0"},
    };
    for (const auto& [start, visits] : cases) {
        EXPECT_EQ(Visits(start), visits) << (start ? start : "all");
    }
    EXPECT_EQ(Visits("A", "B"), "A/0 B/1 E/1");
    EXPECT_EQ(Visits(nullptr, "A"), "A/0 F/0 G/1 H/2 I/0");
    CTreeStore empty;
    EXPECT_TRUE(CTreeWalk(empty, nullptr).Done());
}

}  // namespace
