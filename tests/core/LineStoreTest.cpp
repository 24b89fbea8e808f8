#include "base/LineStore.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

namespace {

// Lines are never sorted; an index outside the lines changes nothing and clears the selection.
TEST(LineStore, KeepsOrderAndRefusesIndexesOutsideTheLines) {
    CLineStore lines;
    for (const char* text : {"zulu", "alpha"}) {
        lines.AddString(text);
    }
    EXPECT_EQ(lines.SetItemData(1, UINTPTR_MAX), 0);
    EXPECT_EQ(lines.GetText(0) + lines.GetText(1), "zulualpha");
    lines.SetCurSel(1);
    for (int index : {-1, 2, INT_MIN}) {
        EXPECT_EQ(lines.GetText(index), "") << index;
        EXPECT_EQ(lines.SetItemData(index, 9), LB_ERR) << index;
        EXPECT_EQ(lines.GetItemData(index), static_cast<std::uintptr_t>(LB_ERR)) << index;
    }
    EXPECT_EQ(lines.GetItemData(1), UINTPTR_MAX);
    EXPECT_EQ(lines.SetCurSel(2), LB_ERR);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    lines.SetCurSel(0);
    lines.ResetContent();
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
    EXPECT_EQ(lines.AddString("again"), 0);
    EXPECT_EQ(lines.GetItemData(0), 0u);
}

}  // namespace
