#include "base/BmpReader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <fstream>
#include <vector>

#include "base/TextLines.h"

namespace {

enum : std::uint32_t {
    BI_RGB = 0,
    BI_RLE8 = 1,
    BI_RLE4 = 2,
    BI_BITFIELDS = 3,
    BI_ALPHABITFIELDS = 6,
};

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kOpaque = 0xFF000000u;

// Every image taken fits in its 32-bit pixels plus headers and a palette; bytes further on can
// hold no pixel of it (a pixel offset beyond them is refused as outside the file), so a file
// is read no further.
constexpr std::size_t kMaxFileBytes = kMaxBmpPixels * 4 + 1024 * 1024;

// Little-endian fields; callers check that the bytes are there.
struct CBytes {
    std::string_view b;

    bool Has(std::uint64_t at, std::uint64_t size) const {
        return at <= b.size() && size <= b.size() - at;
    }
    std::uint32_t U8(std::size_t at) const { return static_cast<unsigned char>(b[at]); }
    std::uint32_t U16(std::size_t at) const { return U8(at) | U8(at + 1) << 8; }
    std::uint32_t U32(std::size_t at) const { return U16(at) | U16(at + 2) << 16; }
    std::int32_t S32(std::size_t at) const { return static_cast<std::int32_t>(U32(at)); }
};

// One channel of a 16- or 32-bit pixel scaled to 8 bits. A mask need not be contiguous; its
// bits are read as one number all the same, which gives odd colours but no fault.
std::uint32_t Channel(std::uint32_t value, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const int shift = std::countr_zero(mask);
    const std::uint64_t most = mask >> shift;
    return static_cast<std::uint32_t>(((value & mask) >> shift) * 255 / most);
}

struct CLayout {
    std::int64_t width = 0, height = 0;
    bool topDown = false;
    std::uint32_t bits = 0, compression = BI_RGB;
    std::array<std::uint32_t, 4> masks{};  // red, green, blue, alpha
    std::vector<std::uint32_t> palette;
    std::size_t pixelsAt = 0;
};

CImageReadResult Refuse(const std::string& reason) {
    return {RESULT_CANNOT_READ, reason, {}};
}

class CDecoder {
public:
    CDecoder(CBytes bytes, const CLayout& layout, CPixelImage& image)
        : m_bytes(bytes), m_layout(layout), m_image(image) {}

    // Rows are stored from the bottom unless the height was negative; row is counted in the
    // order of the file.
    std::uint32_t& Pixel(std::uint64_t x, std::uint64_t row) {
        const std::uint64_t height = static_cast<std::uint64_t>(m_layout.height);
        const std::uint64_t y = m_layout.topDown ? row : height - 1 - row;
        return m_image.pixels[y * static_cast<std::uint64_t>(m_layout.width) + x];
    }

    // An index past a short palette is opaque black: the pixel is there, its colour is not.
    std::uint32_t Colour(std::uint32_t index) const {
        return index < m_layout.palette.size() ? m_layout.palette[index] : kOpaque;
    }

    // A pixel array cut short keeps the whole rows it holds; the rest stays transparent, as the
    // pixels a run-length image skips do, so a strip cut short still shows the cells it has.
    void Uncompressed() {
        const std::uint64_t width = static_cast<std::uint64_t>(m_layout.width);
        const std::uint64_t stride = (width * m_layout.bits + 31) / 32 * 4;
        const std::uint64_t rows =
            std::min<std::uint64_t>(static_cast<std::uint64_t>(m_layout.height),
                                    (m_bytes.b.size() - m_layout.pixelsAt) / stride);
        bool anyAlpha = false;
        for (std::uint64_t row = 0; row < rows; ++row) {
            const std::size_t at = m_layout.pixelsAt + row * stride;
            for (std::uint64_t x = 0; x < width; ++x) {
                const std::uint32_t pixel = Decode(at, x);
                anyAlpha = anyAlpha || (pixel & kOpaque) != 0;
                Pixel(x, row) = pixel;
            }
        }
        // Many writers leave the fourth byte of a 32-bit pixel 0: an image whose alpha is 0
        // everywhere (or that has none) is opaque, not invisible.
        if (!anyAlpha) {
            for (std::uint64_t row = 0; row < rows; ++row) {
                for (std::uint64_t x = 0; x < width; ++x) {
                    Pixel(x, row) |= kOpaque;
                }
            }
        }
    }

    // Runs of one index, absolute runs, line ends, jumps and the image's end. A pixel outside
    // the image is dropped; data that ends early, or an absolute run cut short, ends the image
    // with what was drawn (the rest transparent, as for uncompressed pixels cut short).
    void RunLength() {
        const bool four = m_layout.compression == BI_RLE4;
        const std::uint64_t width = static_cast<std::uint64_t>(m_layout.width);
        const std::uint64_t height = static_cast<std::uint64_t>(m_layout.height);
        std::uint64_t at = m_layout.pixelsAt, x = 0, row = 0;
        const auto put = [&](std::uint64_t px, std::uint32_t index) {
            if (px < width) {
                Pixel(px, row) = Colour(index);
            }
        };
        while (row < height && m_bytes.Has(at, 2)) {
            const std::uint32_t count = m_bytes.U8(at), value = m_bytes.U8(at + 1);
            at += 2;
            if (count > 0) {
                for (std::uint32_t i = 0; i < count; ++i) {
                    put(x + i, four ? (i % 2 == 0 ? value >> 4 : value & 15) : value);
                }
                x += count;
            } else if (value == 0) {
                x = 0;
                ++row;
            } else if (value == 1) {
                break;
            } else if (value == 2) {
                if (!m_bytes.Has(at, 2)) {
                    break;
                }
                x += m_bytes.U8(at);
                row += m_bytes.U8(at + 1);
                at += 2;
            } else {
                const std::uint64_t size = four ? (value + 1) / 2 : value;
                if (!m_bytes.Has(at, size)) {
                    break;
                }
                for (std::uint32_t i = 0; i < value; ++i) {
                    const std::uint32_t byte = m_bytes.U8(at + (four ? i / 2 : i));
                    put(x + i, four ? (i % 2 == 0 ? byte >> 4 : byte & 15) : byte);
                }
                x += value;
                at += size + size % 2;  // absolute runs end on a 16-bit boundary
            }
        }
    }

private:
    // Pixel x of the row at byte at; the caller checked that the whole row is there.
    std::uint32_t Decode(std::size_t at, std::uint64_t x) const {
        const std::uint32_t bits = m_layout.bits;
        if (bits <= 8) {
            const std::uint64_t bit = x * bits;
            const std::uint32_t byte = m_bytes.U8(at + bit / 8);
            const std::uint32_t shift = 8 - bits - static_cast<std::uint32_t>(bit % 8);
            return Colour(byte >> shift & ((1u << bits) - 1));
        }
        if (bits == 24) {
            const std::size_t p = at + x * 3;
            return m_bytes.U8(p + 2) << 16 | m_bytes.U8(p + 1) << 8 | m_bytes.U8(p);
        }
        const std::uint32_t value = bits == 16 ? m_bytes.U16(at + x * 2) : m_bytes.U32(at + x * 4);
        const auto& m = m_layout.masks;
        return Channel(value, m[3]) << 24 | Channel(value, m[0]) << 16 | Channel(value, m[1]) << 8 |
               Channel(value, m[2]);
    }

    CBytes m_bytes;
    const CLayout& m_layout;
    CPixelImage& m_image;
};

// The masks of 16- and 32-bit pixels: those the file gives, or the format's fixed ones (5 bits
// each for 16, a byte each with the fourth byte as alpha for 32).
void TakeMasks(CBytes bytes, std::uint32_t headerSize, CLayout& layout) {
    if (layout.compression == BI_RGB) {
        layout.masks = layout.bits == 16
                           ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                           : std::array<std::uint32_t, 4>{0xFF0000, 0xFF00, 0xFF, 0xFF000000};
        return;
    }
    // The masks follow the file header at the same place whether the header holds them (52
    // bytes and more) or they follow a 40-byte header; the alpha mask only where one is given.
    const bool alpha = headerSize >= 56 || layout.compression == BI_ALPHABITFIELDS;
    for (std::size_t i = 0; i < (alpha ? 4u : 3u); ++i) {
        layout.masks[i] = bytes.U32(kFileHeader + 40 + 4 * i);
    }
}

bool BitsAllowed(std::uint32_t bits, std::uint32_t compression) {
    switch (compression) {
        case BI_RGB:
            return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        case BI_RLE8:
            return bits == 8;
        case BI_RLE4:
            return bits == 4;
        default:
            return bits == 16 || bits == 32;
    }
}

}  // namespace

CImageReadResult DecodeBmp(std::string_view data) {
    const CBytes bytes{data};
    if (!bytes.Has(0, kFileHeader + 4)) {
        return Refuse("too short for a bitmap header");
    }
    if (data.substr(0, 2) != "BM") {
        return Refuse("not a bitmap file (no \"BM\" at its start)");
    }
    const std::uint32_t headerSize = bytes.U32(kFileHeader);
    if (headerSize != 12 && headerSize != 40 && headerSize != 52 && headerSize != 56 &&
        headerSize != 108 && headerSize != 124) {
        return Refuse("unknown bitmap header size " + std::to_string(headerSize));
    }
    if (!bytes.Has(kFileHeader, headerSize)) {
        return Refuse("bitmap header cut short");
    }
    CLayout layout;
    std::uint64_t colours = 0;
    std::size_t entrySize = 4;
    const std::size_t paletteAt = kFileHeader + headerSize;
    if (headerSize == 12) {
        layout.width = bytes.U16(18);
        layout.height = bytes.U16(20);
        layout.bits = bytes.U16(24);
        entrySize = 3;
    } else {
        layout.width = bytes.S32(18);
        layout.height = bytes.S32(22);
        layout.bits = bytes.U16(28);
        layout.compression = bytes.U32(30);
        colours = bytes.U32(46);
        // Masks that follow a 40-byte header come before the pixels; only pictures of 8 bits
        // and fewer have a palette, so it never follows them.
        if ((layout.compression == BI_BITFIELDS || layout.compression == BI_ALPHABITFIELDS) &&
            !bytes.Has(0, kFileHeader + 40 + (layout.compression == BI_BITFIELDS ? 12 : 16))) {
            return Refuse("bit-field masks cut short");
        }
    }
    layout.topDown = layout.height < 0;
    layout.height = layout.topDown ? -layout.height : layout.height;
    const std::string size = std::to_string(layout.width) + " x " + std::to_string(layout.height);
    if (layout.width < 1 || layout.width > kMaxBmpSide || layout.height < 1 ||
        layout.height > kMaxBmpSide) {
        return Refuse("size " + size + " is not from 1 to 65536 pixels a side");
    }
    if (static_cast<std::uint64_t>(layout.width * layout.height) > kMaxBmpPixels) {
        return Refuse("size " + size + " needs more than 64 MiB of pixels");
    }
    if (layout.compression != BI_RGB && layout.compression != BI_RLE8 &&
        layout.compression != BI_RLE4 && layout.compression != BI_BITFIELDS &&
        layout.compression != BI_ALPHABITFIELDS) {
        return Refuse("compression " + std::to_string(layout.compression) + " is not supported");
    }
    if (!BitsAllowed(layout.bits, layout.compression)) {
        return Refuse(std::to_string(layout.bits) + " bits per pixel with compression " +
                      std::to_string(layout.compression) + " is not supported");
    }
    if (layout.bits <= 8) {
        // A palette counts at most the colours the pixels can name; a shorter one is allowed.
        const std::uint64_t most = std::uint64_t{1} << layout.bits;
        colours = colours == 0 ? most : std::min(colours, most);
        if (!bytes.Has(paletteAt, colours * entrySize)) {
            return Refuse("palette outside the file");
        }
        // The fourth byte of an entry is reserved, not alpha: palette colours are opaque.
        for (std::uint64_t i = 0; i < colours; ++i) {
            const std::size_t at = paletteAt + i * entrySize;
            layout.palette.push_back(kOpaque | bytes.U8(at + 2) << 16 | bytes.U8(at + 1) << 8 |
                                     bytes.U8(at));
        }
    } else {
        TakeMasks(bytes, headerSize, layout);
    }
    layout.pixelsAt = bytes.U32(10);
    if (layout.pixelsAt < kFileHeader + headerSize || layout.pixelsAt >= data.size()) {
        return Refuse("pixel data offset " + std::to_string(layout.pixelsAt) +
                      " not between the header and the file's end");
    }
    CImageReadResult result;
    result.image.width = static_cast<int>(layout.width);
    result.image.height = static_cast<int>(layout.height);
    result.image.pixels.assign(static_cast<std::size_t>(layout.width * layout.height), 0);
    CDecoder decoder(bytes, layout, result.image);
    if (layout.compression == BI_RLE8 || layout.compression == BI_RLE4) {
        decoder.RunLength();
    } else {
        decoder.Uncompressed();
    }
    return result;
}

CImageReadResult ReadBmpFile(const std::string& path) {
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return {RESULT_CANNOT_OPEN, path + ": cannot open the file", {}};
    }
    std::string data;
    std::array<char, 65536> block;
    while (data.size() < kMaxFileBytes && in.read(block.data(), block.size()).gcount() > 0) {
        data.append(block.data(), static_cast<std::size_t>(in.gcount()));
    }
    CImageReadResult result = DecodeBmp(data);
    if (!result.Done()) {
        result.error = path + ": " + result.error;
    }
    return result;
}
