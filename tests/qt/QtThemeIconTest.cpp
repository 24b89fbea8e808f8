// The icon theme's pictures, read back by Qt's own PNG reader: every size opens at its size, and
// each one drawn at a whole multiple of the editor's icon shows that icon's pixels exactly.
#include <gtest/gtest.h>

#include <QImage>
#include <string>

#include "platform/PixelImage.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {

TEST(ThemeIcons, EverySizeReadsBackAndWholeMultiplesShowTheEditorsIcon) {
    const CPixelImage& icon = IconResource(IDR_MAINFRAME);
    for (int size : {16, 32, 48, 64, 128, 256}) {
        const std::string side = std::to_string(size);
        const QImage image(QString::fromStdString(HW_THEME_ICONS "/" + side + "x" + side +
                                                  "/apps/org.harnwick.Harnwick.png"));
        ASSERT_EQ(image.size(), QSize(size, size)) << side;
        if (size % kIconSize != 0) {
            continue;
        }
        const int scale = size / kIconSize;
        int wrong = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                wrong += image.pixel(x, y) != icon.At(x / scale, y / scale);
            }
        }
        EXPECT_EQ(wrong, 0) << side;
    }
}

}  // namespace
