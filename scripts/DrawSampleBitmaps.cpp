// Draws the sample's bitmap strips (scripts/draw-sample-bitmaps builds and runs it):
//   DrawSampleBitmaps sample          units.bmp, leaders.bmp, icons3d2/1/0.bmp at the sample
//                                     game data's cell sizes
//   DrawSampleBitmaps --variants DIR  one small picture in every layout the reader takes
// Plain C++ and the standard library, so it builds wherever the project does.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

// The colours every strip is drawn with, so that one palette serves every layout.
enum Colour : std::uint8_t {
    BLACK,
    WHITE,
    BLUE,
    RED,
    SKY,
    GRASS,
    DARK_GREEN,
    BROWN,
    SKIN,
    GREY,
    DARK_GREY,
    YELLOW,
    LIGHT_BLUE,
    PINK,
    NAVY,
    ORANGE,
};
const std::uint32_t kPalette[16] = {
    0x000000, 0xFFFFFF, 0x1E3C9C, 0xC0201C, 0x9CCCF0, 0x58A038, 0x1E5A1E, 0x7A4A1E,
    0xF0C8A0, 0xA0A0A0, 0x505050, 0xF0D020, 0x70A0E0, 0xF09090, 0x101848, 0xF08020,
};

struct CCanvas {
    int width, height;
    std::vector<std::uint8_t> pixels;  // palette indices, rows from the top

    CCanvas(int w, int h) : width(w), height(h), pixels(static_cast<std::size_t>(w * h)) {}
    void Fill(int x, int y, int w, int h, std::uint8_t c) {
        for (int j = y; j < y + h; ++j) {
            for (int i = x; i < x + w; ++i) {
                if (i >= 0 && j >= 0 && i < width && j < height) {
                    pixels[static_cast<std::size_t>(j * width + i)] = c;
                }
            }
        }
    }
    void Disc(int cx, int cy, int r, std::uint8_t c) {
        for (int j = -r; j <= r; ++j) {
            for (int i = -r; i <= r; ++i) {
                if (i * i + j * j <= r * r) {
                    Fill(cx + i, cy + j, 1, 1, c);
                }
            }
        }
    }
    void Line(int x0, int y0, int x1, int y1, std::uint8_t c) {
        const int steps = std::max(std::abs(x1 - x0), std::abs(y1 - y0));
        for (int s = 0; s <= steps; ++s) {
            Fill(x0 + (x1 - x0) * s / std::max(steps, 1), y0 + (y1 - y0) * s / std::max(steps, 1),
                 1, 1, c);
        }
    }
    // A number in a 3 x 5 font, each dot scale pixels, on a white plate.
    void Number(int x, int y, int n, int scale) {
        static const char* const kDigits[10] = {
            "111101101101111", "010110010010111", "111001111100111", "111001111001111",
            "101101111001001", "111100111001111", "111100111101111", "111001001001001",
            "111101111101111", "111101111001111"};
        const std::string text = std::to_string(n);
        Fill(x, y, static_cast<int>(text.size()) * 4 * scale + scale, 7 * scale, WHITE);
        for (std::size_t d = 0; d < text.size(); ++d) {
            for (int k = 0; k < 15; ++k) {
                if (kDigits[text[d] - '0'][k] == '1') {
                    Fill(x + scale + (static_cast<int>(d) * 4 + k % 3) * scale,
                         y + (1 + k / 3) * scale, scale, scale, BLACK);
                }
            }
        }
    }
};

// A soldier 20 pixels high standing on (x, y): shako, face, coat, trousers, musket.
void Soldier(CCanvas& c, int x, int y, std::uint8_t coat) {
    c.Fill(x - 2, y - 20, 5, 3, BLACK);
    c.Disc(x, y - 15, 2, SKIN);
    c.Fill(x - 3, y - 12, 7, 7, coat);
    c.Fill(x - 3, y - 5, 3, 5, WHITE);
    c.Fill(x + 1, y - 5, 3, 5, WHITE);
    c.Line(x + 5, y - 2, x + 5, y - 22, BROWN);
}

void Horse(CCanvas& c, int x, int y, std::uint8_t coat) {
    c.Fill(x - 10, y - 14, 20, 7, BROWN);
    for (int leg : {-9, -5, 4, 8}) {
        c.Fill(x + leg, y - 7, 2, 7, BROWN);
    }
    c.Fill(x + 8, y - 20, 5, 8, BROWN);
    Soldier(c, x - 1, y - 10, coat);
}

void Cannon(CCanvas& c, int x, int y) {
    c.Fill(x - 12, y - 10, 22, 4, DARK_GREY);
    c.Disc(x - 4, y - 5, 5, BROWN);
    c.Disc(x - 4, y - 5, 2, BLACK);
    c.Fill(x - 14, y - 3, 10, 3, BROWN);
}

void Picture(CCanvas& c, int cell, int columns) {
    const int x = cell % columns * 64, y = cell / columns * 48, kind = cell % columns;
    const std::uint8_t coat = cell / columns == 0 ? BLUE : RED;
    c.Fill(x, y, 64, 30, SKY);
    c.Fill(x, y + 30, 64, 18, GRASS);
    if (kind < 4) {  // one to four infantrymen
        for (int i = 0; i <= kind; ++i) {
            Soldier(c, x + 14 + i * 12, y + 44, coat);
        }
    } else if (kind < 6) {  // one or two horsemen
        for (int i = 0; i <= kind - 4; ++i) {
            Horse(c, x + 20 + i * 26, y + 44 - i * 6, coat);
        }
    } else if (kind < 8) {  // one or two guns with their crew
        for (int i = 0; i <= kind - 6; ++i) {
            Cannon(c, x + 22 + i * 26, y + 44 - i * 8);
        }
        Soldier(c, x + 54, y + 44, coat);
    } else if (kind == 8) {  // a supply wagon
        c.Fill(x + 12, y + 24, 36, 12, BROWN);
        c.Fill(x + 12, y + 18, 36, 6, WHITE);
        c.Disc(x + 18, y + 38, 5, DARK_GREY);
        c.Disc(x + 42, y + 38, 5, DARK_GREY);
        c.Fill(x + 48, y + 30, 10, 2, BROWN);
    } else {  // a gunboat on the river
        c.Fill(x, y + 30, 64, 18, LIGHT_BLUE);
        c.Fill(x + 10, y + 30, 44, 8, DARK_GREY);
        c.Fill(x + 26, y + 20, 12, 10, coat);
        c.Fill(x + 34, y + 8, 3, 12, BLACK);
    }
    c.Number(x + 1, y + 1, cell, 1);
}

void Face(CCanvas& c, int cell, int columns) {
    const int x = cell % columns * 48, y = cell / columns * 48;
    const std::uint8_t coat = cell / columns == 0 ? BLUE : RED;
    const std::uint8_t plumes[4] = {WHITE, YELLOW, DARK_GREEN, ORANGE};
    c.Fill(x, y, 48, 48, cell % 2 ? LIGHT_BLUE : PINK);
    c.Fill(x + 8, y + 36, 32, 12, coat);
    c.Fill(x + 20, y + 36, 8, 6, WHITE);
    c.Disc(x + 24, y + 26, 10, SKIN);
    c.Fill(x + 19, y + 24, 2, 2, BLACK);
    c.Fill(x + 27, y + 24, 2, 2, BLACK);
    if (cell % 3 == 1) {
        c.Fill(x + 19, y + 30, 10, 2, BROWN);  // a moustache
    }
    c.Fill(x + 8, y + 10, 32, 7, BLACK);  // the bicorne and its plume
    c.Disc(x + 24, y + 9, 5, plumes[cell % 4]);
    c.Number(x + 1, y + 1, cell, 1);
}

// A map symbol: a frame in the side's colour with the arm's mark (a cross for infantry, a
// diagonal for cavalry, a disc for artillery); the trailing cells are crossed out in grey.
void Icon(CCanvas& c, int cell, int columns, int cells, int trailing, int arm) {
    const int x = cell % columns * 32, y = cell / columns * 32;
    if (cell >= cells - trailing) {
        c.Fill(x, y, 32, 32, GREY);
        c.Line(x + 4, y + 4, x + 27, y + 27, DARK_GREY);
        c.Line(x + 27, y + 4, x + 4, y + 27, DARK_GREY);
        return;
    }
    const std::uint8_t side = cell % 2 ? RED : BLUE;
    c.Fill(x, y, 32, 32, cell / 2 % 2 ? GRASS : DARK_GREEN);
    c.Fill(x + 4, y + 8, 24, 18, side);
    c.Fill(x + 6, y + 10, 20, 14, WHITE);
    if (arm == 0) {
        c.Line(x + 6, y + 10, x + 25, y + 23, side);
        c.Line(x + 25, y + 10, x + 6, y + 23, side);
    } else if (arm == 1) {
        c.Line(x + 6, y + 23, x + 25, y + 10, side);
    } else {
        c.Disc(x + 16, y + 17, 4, side);
    }
    c.Number(x + 1, y + 1, cell, 1);
}

// How a picture is stored: header size, bits per pixel, compression, rows from the top, the
// palette entries written (0: the full palette of the depth) and the masks of bit fields.
struct CFormat {
    std::uint32_t header, bits, compression;
    bool topDown;
    std::uint32_t colours;
    std::uint32_t masks[4];
};

void Put(std::string& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

std::uint32_t Scaled(std::uint32_t channel, std::uint32_t mask) {
    int shift = 0;
    while (mask && !(mask >> shift & 1)) {
        ++shift;
    }
    return mask ? (channel * (mask >> shift) + 127) / 255 << shift : 0;
}

std::string PixelRow(const CCanvas& c, int y, const CFormat& f) {
    std::string row;
    if (f.compression == 1 || f.compression == 2) {  // runs of one index, then the line's end
        for (int x = 0; x < c.width;) {
            const std::uint8_t index = c.pixels[static_cast<std::size_t>(y * c.width + x)];
            int n = 1;
            while (x + n < c.width && n < 255 &&
                   c.pixels[static_cast<std::size_t>(y * c.width + x + n)] == index) {
                ++n;
            }
            Put(row, static_cast<std::uint32_t>(n), 1);
            Put(row, f.compression == 1 ? index : static_cast<std::uint32_t>(index * 17), 1);
            x += n;
        }
        Put(row, 0, 2);
        return row;
    }
    std::uint32_t bits = 0, used = 0;
    for (int x = 0; x < c.width; ++x) {
        const std::uint8_t index = c.pixels[static_cast<std::size_t>(y * c.width + x)];
        const std::uint32_t rgb = kPalette[index];
        if (f.bits <= 8) {
            bits = bits << f.bits | (index & ((1u << f.bits) - 1));
            used += f.bits;
            if (used == 8) {
                Put(row, bits, 1);
                bits = used = 0;
            }
        } else if (f.bits == 24) {
            Put(row, rgb, 3);
        } else {
            const std::uint32_t value = Scaled(rgb >> 16, f.masks[0]) |
                                        Scaled(rgb >> 8 & 0xFF, f.masks[1]) |
                                        Scaled(rgb & 0xFF, f.masks[2]) | Scaled(255, f.masks[3]);
            Put(row, value, static_cast<int>(f.bits / 8));
        }
    }
    if (used > 0) {
        Put(row, bits << (8 - used), 1);
    }
    row.resize((row.size() + 3) / 4 * 4, '\0');
    return row;
}

void Write(const std::string& path, const CCanvas& c, const CFormat& f) {
    std::string pixels;
    for (int r = 0; r < c.height; ++r) {
        pixels += PixelRow(c, f.topDown ? r : c.height - 1 - r, f);
    }
    if (f.compression == 1 || f.compression == 2) {
        pixels.replace(pixels.size() - 2, 2, std::string("\0\1", 2));  // the image's end
    }
    const bool fields = f.compression == 3;
    const std::uint32_t colours = f.bits <= 8 ? (f.colours ? f.colours : 1u << f.bits) : 0;
    const std::uint32_t entry = f.header == 12 ? 3 : 4;
    const std::uint32_t offset =
        14 + f.header + (fields && f.header == 40 ? 12 : 0) + colours * entry;
    std::string out = "BM";
    Put(out, offset + static_cast<std::uint32_t>(pixels.size()), 4);
    Put(out, 0, 4);
    Put(out, offset, 4);
    Put(out, f.header, 4);
    const int height = f.topDown ? -c.height : c.height;
    Put(out, static_cast<std::uint32_t>(c.width), f.header == 12 ? 2 : 4);
    Put(out, static_cast<std::uint32_t>(height), f.header == 12 ? 2 : 4);
    Put(out, 1, 2);
    Put(out, f.bits, 2);
    if (f.header > 12) {
        Put(out, f.compression, 4);
        Put(out, static_cast<std::uint32_t>(pixels.size()), 4);
        Put(out, 2835, 4);  // 72 dots per inch
        Put(out, 2835, 4);
        Put(out, f.colours, 4);
        Put(out, 0, 4);
        for (int i = 0; i < (f.header > 40 ? 4 : fields ? 3 : 0); ++i) {
            Put(out, f.masks[i], 4);
        }
        out.resize(14 + f.header + (fields && f.header == 40 ? 12 : 0), '\0');
    }
    for (std::uint32_t i = 0; i < colours; ++i) {
        Put(out, i < 16 ? kPalette[i] : 0, static_cast<int>(entry));
    }
    out += pixels;
    std::ofstream(path, std::ios::binary) << out;
}

void DrawSample(const std::string& folder) {
    CCanvas units(640, 96);
    for (int cell = 0; cell < 20; ++cell) {
        Picture(units, cell, 10);
    }
    Write(folder + "/units.bmp", units, {40, 24, 0, false, 0, {}});
    CCanvas leaders(384, 96);
    for (int cell = 0; cell < 16; ++cell) {
        Face(leaders, cell, 8);
    }
    Write(folder + "/leaders.bmp", leaders, {40, 8, 0, false, 16, {}});
    const char* const names[3] = {"icons3d2.bmp", "icons3d1.bmp", "icons3d0.bmp"};
    for (int arm = 0; arm < 3; ++arm) {
        CCanvas icons(256, 64);
        for (int cell = 0; cell < 16; ++cell) {
            Icon(icons, cell, 8, 16, 3, arm);
        }
        Write(folder + "/" + names[arm], icons, {40, 4, 0, false, 0, {}});
    }
}

// Small pictures in every layout: the fuzzer's seeds and something to look at by hand.
void DrawVariants(const std::string& folder) {
    CCanvas c(7, 5);
    for (int i = 0; i < 35; ++i) {
        c.pixels[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i * 7 % 16);
    }
    const std::uint32_t argb[4] = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    const struct {
        const char* name;
        CFormat format;
    } variants[] = {
        {"core-8", {12, 8, 0, false, 0, {}}},
        {"core-24", {12, 24, 0, false, 0, {}}},
        {"info-1", {40, 1, 0, false, 0, {}}},
        {"info-4-short-palette", {40, 4, 0, false, 9, {}}},
        {"info-8-top-down", {40, 8, 0, true, 16, {}}},
        {"info-16-555", {40, 16, 0, false, 0, {0x7C00, 0x03E0, 0x001F, 0}}},
        {"info-16-565", {40, 16, 3, false, 0, {0xF800, 0x07E0, 0x001F, 0}}},
        {"info-24", {40, 24, 0, false, 0, {}}},
        {"info-32-no-alpha", {40, 32, 0, false, 0, {0xFF0000, 0xFF00, 0xFF, 0}}},
        {"info-rle8", {40, 8, 1, false, 16, {}}},
        {"info-rle4", {40, 4, 2, false, 16, {}}},
        {"v4-32-fields", {108, 32, 3, false, 0, {argb[0], argb[1], argb[2], argb[3]}}},
        {"v5-32-fields-top-down", {124, 32, 3, true, 0, {0xFF, 0xFF00, 0xFF0000, 0xFF000000}}},
        {"v5-16-4444", {124, 16, 3, false, 0, {0x0F00, 0x00F0, 0x000F, 0xF000}}},
    };
    for (const auto& v : variants) {
        Write(folder + "/" + v.name + ".bmp", c, v.format);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 2 && first != "--variants") {
        DrawSample(first);
    } else if (argc == 3 && first == "--variants") {
        DrawVariants(argv[2]);
    } else {
        std::fprintf(stderr, "usage: DrawSampleBitmaps FOLDER | --variants FOLDER\n");
        return 2;
    }
    return 0;
}
