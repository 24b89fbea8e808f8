// Taking and writing fields: the exchange order, the stop at the first failing field, the text
// limits, and the ranges of unsigned and double fields.
#include <gtest/gtest.h>

#include "HeadlessTest.h"
#include "TestDialog.h"

namespace {
using K = ControlKind;

const CDialogTemplate kFieldsDialog{
    .id = 900,
    .caption = "Fields",
    .cx = 200,
    .cy = 120,
    .controls = {
        {101, K::Edit, 10, 10, 80, 12},                    // name, at most 5 characters
        {102, K::Edit, 10, 25, 80, 12, "", STYLE_DIGITS},  // strength, 0 to 100
        {103, K::Edit, 10, 40, 80, 12},                    // factor, 0.5 to 2.5
        {104, K::Edit, 10, 55, 80, 12, "", STYLE_DIGITS},  // quality, 1 to 6
        {105, K::CheckBox, 10, 70, 80, 10, "Fanatic"},
        {106, K::ComboBox, 10, 85, 80, 40},
        {200, K::Button, 120, 10, 50, 14, "Accept"},
    }};

struct Fields {
    std::string name = "abc";
    unsigned strength = 10;
    double factor = 1.5;
    unsigned quality = 3;
    int fanatic = 0;
    int choice = 1;
};

// Exchanged deliberately out of template order: quality first.
void Exchange(CDataExchange* pDX, Fields& f) {
    DDX_Text(pDX, 104, f.quality);
    DDV_MinMaxUInt(pDX, f.quality, 1, 6);
    DDX_Text(pDX, 101, f.name);
    DDV_MaxChars(pDX, f.name, 5);
    DDX_Text(pDX, 102, f.strength);
    DDV_MinMaxUInt(pDX, f.strength, 0, 100);
    DDX_Text(pDX, 103, f.factor);
    DDV_MinMaxDouble(pDX, f.factor, 0.5, 2.5);
    DDX_Check(pDX, 105, f.fanatic);
    DDX_CBIndex(pDX, 106, f.choice);
}

class DataExchangeTest : public HeadlessTest {
protected:
    DataExchangeTest() : dlg(kFieldsDialog) {
        dlg.init = [](CTestDialog& d) {
            for (const char* line : {"Remove", "Set strength to 0", "Skip"}) {
                d.GetDlgItem(106)->Lines().AddString(line);
            }
        };
        dlg.exchange = [this](CDataExchange* pDX) { Exchange(pDX, fields); };
    }

    // Runs the dialog with script, then closes it.
    void Run(const std::function<void(CHeadlessUser&)>& script) {
        ui.OnDialog(900, [&](CHeadlessUser& user) {
            script(user);
            user.Escape();
        });
        dlg.DoModal();
    }

    CTestDialog dlg;
    Fields fields;
};

// Writing shows the values and limits the text edits; typing keeps to the limit and the digits.
TEST_F(DataExchangeTest, WritingShowsTheFieldsAndLimitsTheEdits) {
    fields.factor = 0.25;
    Run([&](CHeadlessUser& user) {
        EXPECT_EQ(
            user.Text(101) + " " + user.Text(102) + " " + user.Text(103) + " " + user.Text(104),
            "abc 10 0.25 3");
        EXPECT_EQ(user.Lines(106).GetCurSel(), 1);
        user.Type(101, "Brigade");
        user.Type(102, "1x2-5");
        EXPECT_EQ(user.Text(101) + " " + user.Text(102), "Briga 125");
    });
}

// Valid fields are all taken. Each failing check stops the exchange there: the fields before it
// are taken, it and the ones after it keep their values, and it gets the focus.
TEST_F(DataExchangeTest, AFailingFieldStopsTheExchangeThere) {
    const std::string whole = "Please enter a whole number from ";
    const struct {
        int id;  // 0: every field valid
        const char* text;
        std::string message;
        int takenBefore;  // fields taken, in exchange order, before the failing one
    } cases[] = {
        {0, "", "", 6},
        {104, "0", whole + "1 to 6.", 0},
        {104, "", whole + "1 to 6.", 0},
        {101, "Brigade", "Please enter at most 5 characters.", 1},
        {102, "101", whole + "0 to 100.", 2},
        {102, "4294967296", whole + "0 to 100.", 2},
        {103, "2.6", "Please enter a number from 0.5 to 2.5.", 3},
        {103, "inf", "Please enter a number from 0.5 to 2.5.", 3},
    };
    const Fields old;
    for (const auto& c : cases) {
        fields = old;
        if (c.id != 0) {
            ui.AnswerMessage(c.message, IDOK);
        }
        Run([&](CHeadlessUser& user) {
            user.Type(104, "5");
            user.Type(101, "xyz");
            user.Type(102, "20");
            user.Type(103, " 2.25 ");
            user.Click(105);
            user.Pick(106, 0);
            if (c.id != 0) {
                // Set as pasted text would be, past what typing allows.
                dlg.GetDlgItem(c.id)->SetWindowText(c.text);
            }
            EXPECT_EQ(dlg.UpdateData(true), c.id == 0);
            EXPECT_EQ(user.FocusId(), c.id == 0 ? 106 : c.id);
        });
        EXPECT_EQ(fields.quality, c.takenBefore > 0 ? 5u : old.quality) << c.text;
        EXPECT_EQ(fields.name, c.takenBefore > 1 ? "xyz" : old.name) << c.text;
        EXPECT_EQ(fields.strength, c.takenBefore > 2 ? 20u : old.strength) << c.text;
        EXPECT_EQ(fields.factor, c.takenBefore > 3 ? 2.25 : old.factor) << c.text;
        EXPECT_EQ(fields.fanatic + 10 * fields.choice, c.takenBefore > 3 ? 1 : 10) << c.text;
    }
}

TEST_F(DataExchangeTest, ANumberWithoutARangeCheckIsStillRefusedWhenItIsNoNumber) {
    unsigned whole = 7;
    double real = 0.5;
    dlg.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, 102, whole);
        DDX_Text(pDX, 103, real);
    };
    ui.AnswerMessage("Please enter a whole number.", IDOK);
    ui.AnswerMessage("Please enter a number.", IDOK);
    Run([&](CHeadlessUser& user) {
        dlg.GetDlgItem(102)->SetWindowText("");
        EXPECT_FALSE(dlg.UpdateData(true));
        EXPECT_EQ(user.FocusId(), 102);
        dlg.GetDlgItem(102)->SetWindowText("8");
        dlg.GetDlgItem(103)->SetWindowText("x");
        EXPECT_FALSE(dlg.UpdateData(true));
        EXPECT_EQ(user.FocusId(), 103);
    });
    EXPECT_EQ(whole, 8u);
    EXPECT_EQ(real, 0.5);
}

// The focus-lost handler that takes the fields runs when the user clicks elsewhere; a failed
// check puts the focus back, and the click that would have taken it is lost.
TEST_F(DataExchangeTest, AFailedCheckOnFocusLostKeepsTheFocusAndLosesTheClick) {
    dlg.OnKillFocus(102, [&] {
        dlg.Log("kill 102");
        dlg.UpdateData(true);
    });
    dlg.OnClicked(200, [&] { dlg.Log("click 200"); });
    ui.AnswerMessage("Please enter a whole number from 0 to 100.", IDOK);
    Run([&](CHeadlessUser& user) {
        user.Type(102, "500");
        user.Click(200);
        EXPECT_EQ(user.FocusId(), 102);
        user.Type(102, "50");
        user.Click(200);
        EXPECT_EQ(user.FocusId(), 200);
    });
    EXPECT_EQ(dlg.log, (std::vector<std::string>{"kill 102", "kill 102", "click 200", "OnCancel"}));
    EXPECT_EQ(fields.strength, 50u);
}

TEST(NumberText, ReadsAndWritesAsTheFieldsShowThem) {
    unsigned u = 0;
    double d = 0;
    EXPECT_TRUE(ParseUnsigned(" 4294967295 ", u) && u == 4294967295u);
    EXPECT_TRUE(ParseDouble("+1.5e2", d) && d == 150.0);
    EXPECT_TRUE(ParseDouble("-.5", d) && d == -0.5);
    for (const char* bad : {"", " ", "+1", "1 2", "0x10", "12a"}) {
        EXPECT_FALSE(ParseUnsigned(bad, u)) << bad;
    }
    for (const char* bad : {"", "nan", "1.5.2", "1e999", "--1"}) {
        EXPECT_FALSE(ParseDouble(bad, d)) << bad;
    }
    EXPECT_EQ(FormatDouble(1e20), "1e+20");
}
}  // namespace
