// Taking and writing fields: the exchange order, the stop at the first failing field, the text
// limits, and what each kind of field reads as a number (rows in tests/data/ui/exchange.txt).
#include <gtest/gtest.h>

#include <fstream>

#include "HeadlessTest.h"
#include "TestDialog.h"

namespace {
using K = ControlKind;
using Values = std::vector<std::string>;

const CDialogTemplate kFieldsDialog{.id = 900,
                                    .caption = "Fields",
                                    .cx = 200,
                                    .cy = 150,
                                    .controls = {
                                        {101, K::Edit, 10, 10, 80, 12},
                                        {102, K::Edit, 10, 25, 80, 12, "", STYLE_DIGITS},
                                        {103, K::Edit, 10, 40, 80, 12},
                                        {104, K::Edit, 10, 55, 80, 12, "", STYLE_DIGITS},
                                        {105, K::CheckBox, 10, 70, 80, 10, "Fanatic"},
                                        {106, K::ComboBox, 10, 85, 80, 40},
                                        {107, K::Edit, 10, 100, 80, 12},
                                        {108, K::Edit, 10, 115, 80, 12},
                                        {200, K::Button, 120, 10, 50, 14, "Accept"},
                                    }};

// The edits in exchange order, which is deliberately not the template's.
const int kOrder[] = {104, 101, 102, 103, 107, 108};

struct Fields {
    unsigned quality = 3;
    std::string name = "abc";
    unsigned strength = 10;
    double factor = 1.5;
    unsigned count = 7;
    double weight = 0.5;
    int fanatic = 0;
    int choice = 1;

    Values Shown() const {
        return {std::to_string(quality),  name,
                std::to_string(strength), FormatDouble(factor),
                std::to_string(count),    FormatDouble(weight),
                std::to_string(fanatic),  std::to_string(choice)};
    }
};

class DataExchangeTest : public HeadlessTest {
protected:
    DataExchangeTest() : dlg(kFieldsDialog) {
        dlg.init = [](CTestDialog& d) {
            for (const char* line : {"Remove", "Set strength to 0", "Skip"}) {
                d.GetDlgItem(106)->Lines().AddString(line);
            }
        };
        dlg.exchange = [this](CDataExchange* pDX) {
            DDX_Text(pDX, 104, fields.quality);
            DDV_MinMaxUInt(pDX, fields.quality, 1, 6);
            DDX_Text(pDX, 101, fields.name);
            DDV_MaxChars(pDX, fields.name, 5);
            DDX_Text(pDX, 102, fields.strength);
            DDV_MinMaxUInt(pDX, fields.strength, 0, 100);
            DDX_Text(pDX, 103, fields.factor);
            DDV_MinMaxDouble(pDX, fields.factor, 0.5, 2.5);
            DDX_Text(pDX, 107, fields.count);
            DDX_Text(pDX, 108, fields.weight);
            DDX_Check(pDX, 105, fields.fanatic);
            DDX_CBIndex(pDX, 106, fields.choice);
        };
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
    fields.factor = 1e20;
    Run([&](CHeadlessUser& user) {
        EXPECT_EQ(
            user.Text(104) + " " + user.Text(101) + " " + user.Text(102) + " " + user.Text(103),
            "3 abc 10 1e+20");
        EXPECT_EQ(user.Lines(106).GetCurSel(), 1);
        user.Type(101, "Brigade");
        user.Type(102, "1x2-5");
        EXPECT_EQ(user.Text(101) + " " + user.Text(102), "Briga 125");
    });
}

// The fields before a failing one are taken, it and the ones after it keep their values, and it
// gets the focus back; a row that passes takes every field.
TEST_F(DataExchangeTest, AFailingFieldStopsTheExchangeThere) {
    const Values old = Fields().Shown();
    const Values typed = {"5", "xyz", "20", "2.25", "8", "-1.25", "1", "0"};
    std::ifstream rows(HW_TEST_DATA "/ui/exchange.txt");
    ASSERT_TRUE(rows);
    std::string row;
    while (std::getline(rows, row)) {
        if (row.empty() || row[0] == '#') {
            continue;
        }
        const std::size_t bar = row.find('|'), last = row.rfind('|');
        const int id = std::stoi(row.substr(0, bar));
        const std::string text = row.substr(bar + 1, last - bar - 1),
                          expected = row.substr(last + 1);
        const bool fails = expected.starts_with("Please");
        if (fails) {
            ui.AnswerMessage(expected, IDOK);
        }
        fields = Fields();
        Run([&](CHeadlessUser& user) {
            for (std::size_t i = 0; i < std::size(kOrder); ++i) {
                user.Type(kOrder[i], typed[i]);
            }
            user.Click(105);
            user.Pick(106, 0);
            dlg.GetDlgItem(id)->SetWindowText(text);
            EXPECT_EQ(dlg.UpdateData(true), !fails) << row;
            EXPECT_EQ(user.FocusId(), fails ? id : 106) << row;
        });
        const auto at = std::find(std::begin(kOrder), std::end(kOrder), id) - std::begin(kOrder);
        Values want = typed;
        want[at] = expected;
        if (fails) {
            std::copy(old.begin() + at, old.end(), want.begin() + at);
        }
        EXPECT_EQ(fields.Shown(), want) << row;
    }
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
}  // namespace
