// A drawing surface that keeps what was drawn on it, for tests to read back.
#pragma once

#include <vector>

#include "platform/PaintDC.h"

struct CPaintOp {
    enum class Kind { BitBlt, DrawIcon, EraseIconBackground };
    Kind kind = Kind::BitBlt;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int srcX = 0;
    int srcY = 0;
    const CPixelImage* image = nullptr;
};

class CRecordingPaintDC : public CPaintDC {
public:
    void BitBlt(int x, int y, int width, int height, const CPixelImage& image, int srcX,
                int srcY) override {
        m_ops.push_back({CPaintOp::Kind::BitBlt, x, y, width, height, srcX, srcY, &image});
    }
    void DrawIcon(int x, int y, const CPixelImage& icon) override {
        m_ops.push_back({CPaintOp::Kind::DrawIcon, x, y, icon.width, icon.height, 0, 0, &icon});
    }
    void EraseIconBackground() override { m_ops.push_back({CPaintOp::Kind::EraseIconBackground}); }

    const std::vector<CPaintOp>& Ops() const { return m_ops; }

private:
    std::vector<CPaintOp> m_ops;
};
