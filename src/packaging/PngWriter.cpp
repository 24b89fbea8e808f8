#include "packaging/PngWriter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace {

class CBitWriter {
public:
    // count bits of value, lowest first.
    void Bits(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i) {
            Bit((value >> i) & 1U);
        }
    }
    // A Huffman code: its highest bit first.
    void Code(std::uint32_t code, int length) {
        for (int i = length - 1; i >= 0; --i) {
            Bit((code >> i) & 1U);
        }
    }
    std::string Finish() {
        if (m_nBits) {
            m_bytes += static_cast<char>(m_nPending);
        }
        return std::move(m_bytes);
    }

private:
    void Bit(std::uint32_t bit) {
        m_nPending |= bit << m_nBits;
        if (++m_nBits == 8) {
            m_bytes += static_cast<char>(m_nPending);
            m_nPending = 0;
            m_nBits = 0;
        }
    }

    std::string m_bytes;
    std::uint32_t m_nPending = 0;
    int m_nBits = 0;
};

// The fixed literal/length code of symbol (0 to 287).
void FixedSymbol(CBitWriter& out, int symbol) {
    if (symbol < 144) {
        out.Code(0x30 + symbol, 8);
    } else if (symbol < 256) {
        out.Code(0x190 + symbol - 144, 9);
    } else if (symbol < 280) {
        out.Code(symbol - 256, 7);
    } else {
        out.Code(0xC0 + symbol - 280, 8);
    }
}

constexpr std::array<int, 29> kLengthBase = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                             15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                             67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<int, 29> kLengthExtra = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                              2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr std::array<int, 30> kDistanceBase = {
    1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
    193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr std::array<int, 30> kDistanceExtra = {0, 0, 0,  0,  1,  1,  2,  2,  3,  3,
                                                4, 4, 5,  5,  6,  6,  7,  7,  8,  8,
                                                9, 9, 10, 10, 11, 11, 12, 12, 13, 13};
constexpr int kMaxMatch = 258;
constexpr std::size_t kMaxDistance = 32768;

// The index of the last base of table not above value.
template <std::size_t N>
std::size_t BaseIndex(const std::array<int, N>& table, int value) {
    return static_cast<std::size_t>(std::upper_bound(table.begin(), table.end(), value) -
                                    table.begin() - 1);
}

void Match(CBitWriter& out, int length, int distance) {
    const std::size_t l = BaseIndex(kLengthBase, length);
    FixedSymbol(out, 257 + static_cast<int>(l));
    out.Bits(static_cast<std::uint32_t>(length - kLengthBase[l]), kLengthExtra[l]);
    const std::size_t d = BaseIndex(kDistanceBase, distance);
    out.Code(static_cast<std::uint32_t>(d), 5);
    out.Bits(static_cast<std::uint32_t>(distance - kDistanceBase[d]), kDistanceExtra[d]);
}

std::size_t MatchLength(const std::string& data, std::size_t at, std::size_t distance) {
    if (distance > at || distance > kMaxDistance) {
        return 0;
    }
    std::size_t length = 0;
    while (at + length < data.size() && length < kMaxMatch &&
           data[at + length] == data[at + length - distance]) {
        ++length;
    }
    return length;
}

// One final block of fixed codes, each step the longer match of the two distances, or a literal.
std::string Deflate(const std::string& data, std::size_t rowBytes) {
    CBitWriter out;
    out.Bits(1, 1);  // final block
    out.Bits(1, 2);  // fixed codes
    for (std::size_t at = 0; at < data.size();) {
        std::size_t distance = 4;
        std::size_t length = MatchLength(data, at, 4);
        if (const std::size_t row = MatchLength(data, at, rowBytes); row > length) {
            distance = rowBytes;
            length = row;
        }
        if (length >= 3) {
            Match(out, static_cast<int>(length), static_cast<int>(distance));
            at += length;
        } else {
            FixedSymbol(out, static_cast<unsigned char>(data[at]));
            ++at;
        }
    }
    FixedSymbol(out, 256);
    return out.Finish();
}

void Append32(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        out += static_cast<char>((value >> shift) & 0xFF);
    }
}

std::uint32_t Crc32(const std::string& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (char c : bytes) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ (0xEDB88320 & (0U - (crc & 1U)));
        }
    }
    return ~crc;
}

std::uint32_t Adler32(const std::string& bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (char c : bytes) {
        a = (a + static_cast<unsigned char>(c)) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

void Chunk(std::string& png, const char* type, const std::string& data) {
    Append32(png, static_cast<std::uint32_t>(data.size()));
    const std::string typed = type + data;
    png += typed;
    Append32(png, Crc32(typed));
}

}  // namespace

std::string PngBytes(const CPixelImage& image) {
    std::string header;
    Append32(header, static_cast<std::uint32_t>(image.width));
    Append32(header, static_cast<std::uint32_t>(image.height));
    header += std::string{8, 6, 0, 0, 0};  // 8 bits, RGBA, deflate, no filter, not interlaced
    // Every row with filter 0, its pixels as R, G, B, A.
    std::string rows;
    for (int y = 0; y < image.height; ++y) {
        rows += '\0';
        for (int x = 0; x < image.width; ++x) {
            const std::uint32_t argb = image.At(x, y);
            for (int shift : {16, 8, 0, 24}) {
                rows += static_cast<char>((argb >> shift) & 0xFF);
            }
        }
    }
    std::string stream{'\x78', '\x01'};  // deflate, 32K window, no dictionary
    stream += Deflate(rows, static_cast<std::size_t>(image.width) * 4 + 1);
    Append32(stream, Adler32(rows));
    std::string png = "\x89PNG\r\n\x1A\n";
    Chunk(png, "IHDR", header);
    Chunk(png, "IDAT", stream);
    Chunk(png, "IEND", "");
    return png;
}
