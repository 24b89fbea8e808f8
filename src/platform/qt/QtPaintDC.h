// The framework's drawing surface over a QPainter on a dialog's client area.
#pragma once

#include <QPainter>
#include <QWidget>

#include "platform/PaintDC.h"

class CQtPaintDC : public CPaintDC {
public:
    CQtPaintDC(QPainter& painter, QWidget& area) : m_painter(painter), m_area(area) {}

    void BitBlt(int x, int y, int width, int height, const CPixelImage& image, int srcX,
                int srcY) override;
    void DrawIcon(int x, int y, const CPixelImage& icon) override;
    void EraseIconBackground() override;

private:
    QPainter& m_painter;
    QWidget& m_area;
};
