#include "platform/qt/QtPaintDC.h"

#include <QImage>

namespace {
// The pixels as they are, without a copy: 0xAARRGGBB words are Qt's ARGB32.
QImage View(const CPixelImage& image) {
    return QImage(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                  image.width * 4, QImage::Format_ARGB32);
}
}  // namespace

void CQtPaintDC::BitBlt(int x, int y, int width, int height, const CPixelImage& image, int srcX,
                        int srcY) {
    m_painter.setCompositionMode(QPainter::CompositionMode_Source);
    m_painter.drawImage(QPoint(x, y), View(image), QRect(srcX, srcY, width, height));
    m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void CQtPaintDC::DrawIcon(int x, int y, const CPixelImage& icon) {
    m_painter.drawImage(QPoint(x, y), View(icon));
}

void CQtPaintDC::EraseIconBackground() {
    m_painter.fillRect(m_area.rect(), m_area.palette().color(QPalette::Window));
}
