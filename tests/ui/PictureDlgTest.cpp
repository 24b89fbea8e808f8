// "Select picture" over the sample's strips: units.bmp (640 x 96, 64 x 48 cells: 20),
// leaders.bmp (384 x 96, 48 x 48 cells: 16) and icons3d2.bmp (256 x 64, 32 x 32 cells: 16).
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "HeadlessTest.h"
#include "dialogs/PictureDlg.h"
#include "resources/ResourceIds.h"

namespace {
const std::string kUnits = HW_SAMPLE_DIR "/units.bmp";
const std::string kLeaders = HW_SAMPLE_DIR "/leaders.bmp";
const std::string kIcons = HW_SAMPLE_DIR "/icons3d2.bmp";

class PictureDlgTest : public HeadlessTest {
protected:
    // Expects the one cell painted, at (10, 10), from (srcX, srcY) of the strip.
    static void ExpectCellFrom(CHeadlessUser& user, unsigned size, int srcX, int srcY) {
        const auto& ops = user.Paint().Ops();
        ASSERT_EQ(ops.size(), 1u);
        EXPECT_EQ(ops[0].kind, CPaintOp::Kind::BitBlt);
        EXPECT_EQ(ops[0].x, 10);
        EXPECT_EQ(ops[0].y, 10);
        EXPECT_EQ(ops[0].width, static_cast<int>(size));
        EXPECT_EQ(ops[0].srcX, srcX);
        EXPECT_EQ(ops[0].srcY, srcY);
    }
};

struct StepCase {
    const std::string& strip;
    unsigned width;
    unsigned height;
    unsigned offset;
    unsigned trailing;
    unsigned given;
    int steps;  // "->" clicks, or "<-" clicks when negative
    const char* shown;
    int srcX;
    int srcY;
};

// The number given is pulled down to the last cell, the arrows stop at the offset and at the
// last cell, and Accept gives what is shown.
TEST_F(PictureDlgTest, StepsBetweenTheOffsetAndTheLastCell) {
    const StepCase cases[] = {
        {kUnits, 64, 48, 0, 0, 50, 1, "19", 576, 48},
        {kUnits, 64, 48, 0, 0, 0, -1, "0", 0, 0},
        {kUnits, 64, 48, 0, 0, 9, 1, "10", 0, 48},
        {kIcons, 32, 32, 2, 3, 0, -2, "0", 64, 0},
        {kIcons, 32, 32, 2, 3, 9, 3, "10", 128, 32},
        {kIcons, 32, 32, 0, 3, 99, 0, "12", 128, 32},
        {kLeaders, 48, 48, 1, 0, 4294967295u, 0, "14", 336, 48},
    };
    for (const StepCase& c : cases) {
        SCOPED_TRACE(c.strip + " from " + std::to_string(c.given));
        CPictureDlg dlg(c.strip, c.width, c.height, c.offset, c.trailing, c.given);
        ui.OnDialog(IDD_PICTURE, [&](CHeadlessUser& user) {
            for (int i = 0; i < (c.steps < 0 ? -c.steps : c.steps); ++i) {
                user.Click(c.steps < 0 ? IDC_PIC_PREV : IDC_PIC_NEXT);
            }
            EXPECT_EQ(user.Text(IDC_PIC_NUMBER), c.shown);
            ExpectCellFrom(user, c.width, c.srcX, c.srcY);
            user.Click(IDC_PIC_ACCEPT);
        });
        EXPECT_EQ(dlg.DoModal(), 1);
        EXPECT_EQ(std::to_string(dlg.m_nPictureNumber), c.shown);
    }
}

// A number typed is taken when the focus leaves the edit: Enter moves it to Accept and a second
// Enter accepts. A number out of range is refused and the click that left the edit is lost.
TEST_F(PictureDlgTest, TypedNumberIsTakenWhenTheFocusLeaves) {
    ui.AnswerMessage("Please enter a whole number from 0 to 10000.", IDOK);
    CPictureDlg dlg(kUnits, 64, 48, 0, 0, 3);
    ui.OnDialog(IDD_PICTURE, [&](CHeadlessUser& user) {
        user.Type(IDC_PIC_NUMBER, "7");
        user.Enter();
        EXPECT_EQ(user.FocusId(), IDC_PIC_ACCEPT);
        ExpectCellFrom(user, 64, 448, 0);
        user.Type(IDC_PIC_NUMBER, "10001");
        user.Click(IDC_PIC_NEXT);
        EXPECT_EQ(user.FocusId(), IDC_PIC_NUMBER);
        ExpectCellFrom(user, 64, 448, 0);
        user.Type(IDC_PIC_NUMBER, "25");
        user.Enter();
        EXPECT_EQ(user.Text(IDC_PIC_NUMBER), "19");
        user.Enter();
    });
    EXPECT_EQ(dlg.DoModal(), 1);
    EXPECT_EQ(dlg.m_nPictureNumber, 19u);
}

// Reset goes back to the number given; Cancel keeps it; with Accept disabled the user can look
// but Enter cannot choose.
TEST_F(PictureDlgTest, ResetCancelAndDisabledAccept) {
    CPictureDlg dlg(kUnits, 64, 48, 0, 0, 5, 0);
    ui.OnDialog(IDD_PICTURE, [](CHeadlessUser& user) {
        EXPECT_FALSE(user.IsEnabled(IDC_PIC_ACCEPT));
        user.Click(IDC_PIC_NEXT);
        user.Click(IDC_PIC_NEXT);
        EXPECT_EQ(user.Text(IDC_PIC_NUMBER), "7");
        user.Click(IDC_PIC_RESET);
        ExpectCellFrom(user, 64, 320, 0);
        user.Click(IDC_PIC_NEXT);
        user.Focus(IDC_PIC_NUMBER);
        user.Enter();
        EXPECT_EQ(user.FocusId(), IDC_PIC_NUMBER);
        user.Click(IDC_PIC_CANCEL);
    });
    EXPECT_EQ(dlg.DoModal(), 0);
    EXPECT_EQ(dlg.m_nPictureNumber, 5u);
}

struct NoCellCase {
    std::string file;
    unsigned width;
    unsigned height;
    unsigned offset;
    unsigned trailing;
};

// With no cell to choose (a strip that cannot be read, a cell size of 0 or of -1 widened from
// the database's 16 bits, every cell reserved) nothing is painted, the arrows are disabled and
// the number is taken as typed.
TEST_F(PictureDlgTest, WithoutASelectableCellTheNumberIsTakenAsTyped) {
    const std::string missing = HW_SAMPLE_DIR "/no-such-strip.bmp";
    const NoCellCase cases[] = {{missing, 64, 48, 0, 0},
                                {kUnits, 0, 48, 0, 0},
                                {kUnits, 64, static_cast<unsigned>(std::int16_t{-1}), 0, 0},
                                {kUnits, 64, 48, 15, 5},
                                {kUnits, 64, 48, 1, 4294967295u}};
    ui.AnswerMessage("Cannot read " + missing + ": cannot open the file", IDOK);
    for (const NoCellCase& c : cases) {
        SCOPED_TRACE(c.file + " " + std::to_string(c.width) + " " + std::to_string(c.height));
        CPictureDlg dlg(c.file, c.width, c.height, c.offset, c.trailing, 12345);
        ui.OnDialog(IDD_PICTURE, [](CHeadlessUser& user) {
            EXPECT_EQ(user.Text(IDC_PIC_NUMBER), "12345");
            EXPECT_FALSE(user.IsEnabled(IDC_PIC_PREV));
            EXPECT_FALSE(user.IsEnabled(IDC_PIC_NEXT));
            EXPECT_TRUE(user.Paint().Ops().empty());
            user.Type(IDC_PIC_NUMBER, "42");
            user.Enter();
            user.Enter();
        });
        EXPECT_EQ(dlg.DoModal(), 1);
        EXPECT_EQ(dlg.m_nPictureNumber, 42u);
    }
}
}  // namespace
