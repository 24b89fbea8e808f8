// Writes the program's icon as the PNG files a desktop's icon theme takes, one for each size
// given, drawn from the icon the editor shows: MakeIcons FOLDER SIZE... writes
// FOLDER/SIZExSIZE/apps/NAME.png (NAME the desktop id the icon is installed under).
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "packaging/ImageScale.h"
#include "packaging/PngWriter.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: MakeIcons FOLDER NAME SIZE...\n");
        return 2;
    }
    const CPixelImage& icon = IconResource(IDR_MAINFRAME);
    for (int i = 3; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        if (size <= 0) {
            std::fprintf(stderr, "MakeIcons: no size %s\n", argv[i]);
            return 2;
        }
        const std::string side = std::to_string(size);
        const std::filesystem::path folder =
            std::filesystem::path(argv[1]) / (side + "x" + side) / "apps";
        std::error_code error;
        std::filesystem::create_directories(folder, error);
        std::ofstream png(folder / (std::string(argv[2]) + ".png"), std::ios::binary);
        png << PngBytes(ScaleImage(icon, size, size));
        if (!png.flush()) {
            std::fprintf(stderr, "MakeIcons: cannot write into %s\n", folder.c_str());
            return 1;
        }
    }
    return 0;
}
