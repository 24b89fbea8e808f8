// "Select picture" on the Qt face: the cell reaches the screen at (10, 10), clear of the
// controls, and a real click on "->" shows the next one.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "QtRun.h"
#include "base/BmpReader.h"
#include "dialogs/PictureDlg.h"
#include "platform/qt/QtBackend.h"
#include "resources/ResourceIds.h"

namespace {
TEST(QtPicture, TheCellIsPaintedAtTenTenAndFollowsTheArrows) {
    CQtBackend backend;
    const CPixelImage strip = ReadBmpFile(HW_SAMPLE_DIR "/units.bmp").image;
    CPictureDlg dlg(HW_SAMPLE_DIR "/units.bmp", 64, 48, 0, 0, 3);
    RunShown(dlg, [&](QWidget* window) {
        auto* next = WidgetOf<QPushButton>(window, IDC_PIC_NEXT);
        const auto differing = [&](int cell) {  // pixels of the cell the screen does not show
            const QImage shot = next->parentWidget()->grab().toImage();
            int count = 0;
            for (int y = 0; y < 48; ++y) {
                for (int x = 0; x < 64; ++x) {
                    count += shot.pixel(10 + x, 10 + y) != strip.At(cell * 64 + x, y);
                }
            }
            return count;
        };
        EXPECT_EQ(differing(3), 0);
        QTest::mouseClick(next, Qt::LeftButton);
        EXPECT_EQ(differing(4), 0);
        QTest::mouseClick(WidgetOf<QPushButton>(window, IDC_PIC_ACCEPT), Qt::LeftButton);
    });
    EXPECT_EQ(dlg.m_nPictureNumber, 4u);
}
}  // namespace
