// "Select picture" over the sample's strips, each row of tests/data/ui/picture.txt one opening.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "HeadlessTest.h"
#include "dialogs/PictureDlg.h"
#include "resources/ResourceIds.h"

namespace {
// One step of a row (the format is at the top of the rows' file).
void Step(CHeadlessUser& user, const std::string& step) {
    static const std::map<std::string, int> kIds = {
        {">", IDC_PIC_NEXT},        {"<", IDC_PIC_PREV},        {"reset", IDC_PIC_RESET},
        {"accept", IDC_PIC_ACCEPT}, {"cancel", IDC_PIC_CANCEL}, {"edit", IDC_PIC_NUMBER}};
    const std::string arg = step.substr(1);
    if (step == "enter") {
        user.Enter();
    } else if (step == "edit") {
        user.Focus(IDC_PIC_NUMBER);
    } else if (kIds.contains(step)) {
        user.Click(kIds.at(step));
    } else if (step[0] == '^') {
        EXPECT_EQ(user.FocusId(), kIds.at(arg));
    } else if (step[0] == '-') {
        EXPECT_FALSE(user.IsEnabled(kIds.at(arg)));
    } else if (step[0] == '#') {
        user.Type(IDC_PIC_NUMBER, arg);
    } else if (step[0] == '=') {
        EXPECT_EQ(user.Text(IDC_PIC_NUMBER), arg);
    } else {
        ASSERT_EQ(step[0], '@') << step;
        std::string painted;  // "x,y,w,h,srcX,srcY" of each block, joined by ";"
        for (const CPaintOp& op : user.Paint().Ops()) {
            for (int value : {op.x, op.y, op.width, op.height, op.srcX, op.srcY}) {
                painted += std::to_string(value) + ",";
            }
            painted.back() = ';';
        }
        EXPECT_EQ(painted, arg);
    }
}

TEST_F(HeadlessTest, PictureDlgRows) {
    std::ifstream rows(HW_TEST_DATA "/ui/picture.txt");
    ASSERT_TRUE(rows);
    std::string row;
    while (std::getline(rows, row)) {
        if (row.empty() || row[0] == '#') {
            continue;
        }
        SCOPED_TRACE(row);
        std::istringstream fields(row);
        std::string strip, steps, result, message;
        unsigned n[5] = {};  // cell width, height, offset, trailing, given
        int acceptEnabled = 0;
        fields >> strip >> n[0] >> n[1] >> n[2] >> n[3] >> n[4] >> acceptEnabled;
        fields.ignore();
        std::getline(fields, steps, '|');
        std::getline(fields, result, '|');
        std::getline(fields, message);
        if (!message.empty()) {
            ui.AnswerMessage(message, IDOK);
        }
        CPictureDlg dlg(strip[0] == '/' ? strip : HW_SAMPLE_DIR "/" + strip, n[0], n[1], n[2], n[3],
                        n[4], acceptEnabled);
        ui.OnDialog(IDD_PICTURE, [&](CHeadlessUser& user) {
            std::istringstream words(steps);
            for (std::string step; words >> step;) {
                Step(user, step);
            }
        });
        const int ended = dlg.DoModal();
        EXPECT_EQ(std::to_string(ended) + " " + std::to_string(dlg.m_nPictureNumber), result);
    }
}
}  // namespace
