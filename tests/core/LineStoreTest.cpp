#include "platform/LineStore.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

namespace {

CLineStore ThreeLines() {
    CLineStore lines;
    for (const char* text : {"zulu", "alpha", "mike"}) {
        lines.AddString(text);
    }
    return lines;
}

TEST(LineStore, AppendsInOrderWithoutSorting) {
    CLineStore lines = ThreeLines();
    EXPECT_EQ(lines.AddString("bravo"), 3);
    EXPECT_EQ(lines.GetCount(), 4);
    const char* expected[] = {"zulu", "alpha", "mike", "bravo"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(lines.GetText(i), expected[i]);
        EXPECT_EQ(lines.GetItemData(i), 0u);
    }
}

TEST(LineStore, KeepsOneDataWordPerLine) {
    CLineStore lines = ThreeLines();
    EXPECT_EQ(lines.SetItemData(0, 7), 0);
    EXPECT_EQ(lines.SetItemData(2, UINTPTR_MAX), 0);
    EXPECT_EQ(lines.GetItemData(0), 7u);
    EXPECT_EQ(lines.GetItemData(1), 0u);
    EXPECT_EQ(lines.GetItemData(2), UINTPTR_MAX);
}

TEST(LineStore, SelectsOneLineOrNone) {
    CLineStore lines = ThreeLines();
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    EXPECT_EQ(lines.SetCurSel(1), 1);
    EXPECT_EQ(lines.GetCurSel(), 1);
    EXPECT_EQ(lines.SetCurSel(3), LB_ERR);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    lines.SetCurSel(2);
    EXPECT_EQ(lines.SetCurSel(-1), LB_ERR);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
}

TEST(LineStore, ResetEmptiesLinesDataAndSelection) {
    CLineStore lines = ThreeLines();
    lines.SetItemData(0, 5);
    lines.SetCurSel(0);
    lines.ResetContent();
    EXPECT_EQ(lines.GetCount(), 0);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    EXPECT_EQ(lines.AddString("again"), 0);
    EXPECT_EQ(lines.GetItemData(0), 0u);
}

TEST(LineStore, IndexesOutsideTheLinesChangeNothing) {
    CLineStore lines = ThreeLines();
    for (int index : {-1, 3, 1000, INT_MIN}) {
        EXPECT_EQ(lines.GetText(index), "") << index;
        EXPECT_EQ(lines.SetItemData(index, 9), LB_ERR) << index;
        EXPECT_EQ(lines.GetItemData(index), static_cast<std::uintptr_t>(LB_ERR)) << index;
    }
    EXPECT_EQ(lines.GetCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(lines.GetItemData(i), 0u);
    }
}

}  // namespace
