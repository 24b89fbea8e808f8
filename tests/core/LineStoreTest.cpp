#include "platform/LineStore.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

namespace {

TEST(LineStore, KeepsLinesInOrderWithDataAndOneSelection) {
    CLineStore lines;
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    const char* texts[] = {"zulu", "alpha", "mike"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(lines.AddString(texts[i]), i);
    }
    EXPECT_EQ(lines.SetItemData(2, UINTPTR_MAX), 0);
    EXPECT_EQ(lines.SetCurSel(1), 1);
    EXPECT_EQ(lines.GetCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(lines.GetText(i), texts[i]);  // never sorted
        EXPECT_EQ(lines.GetItemData(i), i == 2 ? UINTPTR_MAX : 0u);
    }
    EXPECT_EQ(lines.GetCurSel(), 1);
    EXPECT_EQ(lines.SetCurSel(-1), LB_ERR);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);

    lines.SetCurSel(0);
    lines.ResetContent();
    EXPECT_EQ(lines.GetCount(), 0);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    EXPECT_EQ(lines.AddString("again"), 0);
    EXPECT_EQ(lines.GetItemData(0), 0u);
}

TEST(LineStore, IndexesOutsideTheLinesChangeNothing) {
    CLineStore lines;
    lines.AddString("one");
    lines.AddString("two");
    lines.SetCurSel(1);
    for (int index : {-1, 2, 1000, INT_MIN}) {
        EXPECT_EQ(lines.GetText(index), "") << index;
        EXPECT_EQ(lines.SetItemData(index, 9), LB_ERR) << index;
        EXPECT_EQ(lines.GetItemData(index), static_cast<std::uintptr_t>(LB_ERR)) << index;
    }
    EXPECT_EQ(lines.GetItemData(0) + lines.GetItemData(1), 0u);
    EXPECT_EQ(lines.SetCurSel(2), LB_ERR);  // and the selection is cleared
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
}

}  // namespace
