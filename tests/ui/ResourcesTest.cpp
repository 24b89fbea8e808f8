// The main window's resources as the program's users know them: menu 129's captions and
// commands in order, and dialog 102's controls where they stand.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
// The menu flattened: one line per entry, nested entries indented, "-" for a separator.
void Flatten(const std::vector<CMenuItem>& items, const std::string& indent,
             std::vector<std::string>& out) {
    for (const CMenuItem& item : items) {
        if (item.IsSeparator()) {
            out.push_back(indent + "-");
            continue;
        }
        out.push_back(indent + item.text + (item.IsPopup() ? "" : " " + std::to_string(item.id)));
        Flatten(item.popup, indent + "  ", out);
    }
}

TEST(Resources, Menu129HasEveryCaptionAndCommandInOrder) {
    std::vector<std::string> flat;
    Flatten(MenuResource(IDR_MAINMENU).items, "", flat);
    const std::vector<std::string> add = {"&Unit", "&Leader", "&Supply", "St&ructure",
                                          "-",     "&Paste",  "-",       "&Template"};
    auto addMenu = [&](int first, int paste) {
        std::vector<std::string> lines;
        const int ids[] = {first, first + 1, first + 2, first + 3, 0, paste, 0, paste + 1};
        for (std::size_t i = 0; i < add.size(); ++i) {
            lines.push_back("    " + add[i] + (ids[i] ? " " + std::to_string(ids[i]) : ""));
        }
        return lines;
    };
    std::vector<std::string> expected = {"&File",
                                         "  &New",
                                         "    &Empty OOB 32771",
                                         "    &Attached OOB 32798",
                                         "    Exi&sting OOB 32772",
                                         "  -",
                                         "  &Load 32773",
                                         "  &Save 32774",
                                         "  Save &as... 32775",
                                         "  -",
                                         "  &Properties 32776",
                                         "  -",
                                         "  E&xit 32777",
                                         "&Edit",
                                         "  &Properties 32793",
                                         "  -",
                                         "  &Copy 32805",
                                         "  Cu&t 32812",
                                         "  -",
                                         "  Add &next"};
    for (const std::string& line : addMenu(32799, 32803)) {
        expected.push_back(line);
    }
    expected.push_back("  Add &child");
    for (const std::string& line : addMenu(32806, 32810)) {
        expected.push_back(line);
    }
    for (const char* line : {"  -",
                             "  &Delete",
                             "    This &item 32796",
                             "    &Child items 32797",
                             "  -",
                             "  &Save to file 32813",
                             "  Save as template 32783",
                             "&Options",
                             "  Armies summary 32816",
                             "  -",
                             "  &Find item 32779",
                             "  -",
                             "  &Backup",
                             "    Save OOB 32780",
                             "    Restore OOB 32781",
                             "  -",
                             "  &Get data 32814",
                             "  -",
                             "  &Save Target file 32815",
                             "&Reports",
                             "  &HTML 32788",
                             "  -",
                             "  &Leader 32790",
                             "  &Cost 32791",
                             "  &Key 32789",
                             "&About 32778"}) {
        expected.push_back(line);
    }
    for (std::size_t i = 0; i < std::max(flat.size(), expected.size()); ++i) {
        EXPECT_EQ(i < flat.size() ? flat[i] : "", i < expected.size() ? expected[i] : "")
            << "line " << i;
    }
    EXPECT_EQ(MenuResource(IDR_MAINMENU).GetSubMenu(kEditMenuPosition).text, "&Edit");
}

TEST(Resources, Dialog102PlacesItsControlsAsTheUsersKnowThem) {
    const CDialogTemplate& main = DialogResource(IDD_HARNWICK_DIALOG);
    EXPECT_EQ(main.caption, "Harnwick");
    EXPECT_EQ(main.cx, 420);
    EXPECT_EQ(main.cy, 250);
    EXPECT_EQ(main.menu, &MenuResource(IDR_MAINMENU));
    EXPECT_EQ(main.style & DIALOG_CLOSEBOX, 0u);
    struct Expected {
        int id;
        ControlKind kind;
        int x, y, cx, cy;
        const char* text;
        unsigned style;
    };
    const unsigned sunkenCentred = STYLE_SUNKEN | STYLE_CENTER;
    const Expected expected[] = {
        {1002, ControlKind::TreeView, 7, 7, 260, 236, "",
         STYLE_HASBUTTONS | STYLE_HASLINES | STYLE_LINESATROOT | STYLE_EDITLABELS |
             STYLE_NOTOOLTIPS | STYLE_BORDER | STYLE_TABSTOP},
        {1042, ControlKind::Static, 269, 7, 144, 14, "In memory", sunkenCentred},
        {1004, ControlKind::Static, 269, 23, 144, 14, "empty", STYLE_SUNKEN | STYLE_NOTIFY},
        {1074, ControlKind::ListBox, 272, 110, 141, 97, "", STYLE_HIDDEN | STYLE_NOSELECTION},
        {-1, ControlKind::Static, 351, 213, 40, 14, "OOB file", 0},
        {1001, ControlKind::Static, 393, 213, 20, 14, "OK", sunkenCentred | STYLE_NOTIFY},
        {-1, ControlKind::Static, 351, 229, 40, 14, "Backup", 0},
        {1003, ControlKind::Static, 393, 229, 20, 14, "OK", sunkenCentred | STYLE_NOTIFY},
        {1000, ControlKind::Button, 7, 7, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN},
    };
    ASSERT_EQ(main.controls.size(), std::size(expected));
    for (std::size_t i = 0; i < main.controls.size(); ++i) {
        const CControlTemplate& c = main.controls[i];
        const Expected& e = expected[i];
        EXPECT_EQ(c.id, e.id);
        EXPECT_EQ(c.kind, e.kind) << c.id;
        EXPECT_EQ((std::array{c.x, c.y, c.cx, c.cy}), (std::array{e.x, e.y, e.cx, e.cy})) << c.id;
        EXPECT_EQ(c.text, e.text) << c.id;
        EXPECT_EQ(c.style, e.style) << c.id;
    }
}

TEST(Resources, TheIconIsOurOwn32By32Drawing) {
    const CPixelImage& icon = IconResource(IDR_MAINFRAME);
    ASSERT_EQ(icon.width, kIconSize);
    ASSERT_EQ(icon.height, kIconSize);
    ASSERT_EQ(icon.pixels.size(), static_cast<std::size_t>(kIconSize * kIconSize));
    EXPECT_EQ(icon.At(0, 0) >> 24, 0u);      // transparent corner
    EXPECT_EQ(icon.At(15, 5), 0xFFD9A441u);  // the gold bar of the command
    EXPECT_EQ(icon.At(5, 19) >> 24, 0xFFu);  // a formation
}
}  // namespace
