// "Edit unit", "Edit leader", "Edit supply" and "Edit gunboat". Positions and sizes are in dialog
// units.
#include "resources/ItemEditorDialogs.h"

#include "resources/ResourceIds.h"

namespace {
using K = ControlKind;

constexpr int kLabelX = 7;
constexpr int kFieldX = 62;
constexpr int kWidth = 220;

// A label with its field to the right, on the row at y.
void AddRow(std::vector<CControlTemplate>& controls, int y, const char* label, int id, K kind,
            int cx, unsigned style = 0) {
    controls.push_back({-1, K::Static, kLabelX, y + 2, 52, 8, label});
    controls.push_back({id, kind, kFieldX, y, cx, kind == K::ComboBox ? 80 : 12, "", style});
}

void AddNumberRow(std::vector<CControlTemplate>& controls, int y, const char* label, int id) {
    AddRow(controls, y, label, id, K::Edit, 44, STYLE_DIGITS);
}

// The picker beside the number on the row at y.
void AddPicker(std::vector<CControlTemplate>& controls, int y, int id = IDC_ITEM_PICTURE_PICK) {
    controls.push_back({id, K::Button, kFieldX + 47, y, 19, 12, "..."});
}

// The cost modifier and cost on the row at y, the buttons below them, the hidden "+" that takes
// Enter; gives the dialog's height.
int AddFooter(std::vector<CControlTemplate>& controls, int y) {
    constexpr unsigned kFigure = STYLE_RIGHT | STYLE_SUNKEN;
    controls.push_back({-1, K::Static, kLabelX, y + 2, 52, 8, "Cost modifier"});
    controls.push_back({IDC_ITEM_MODIFIER, K::Static, kFieldX, y, 56, 12, "0", kFigure});
    controls.push_back({-1, K::Static, 126, y + 2, 24, 8, "Cost"});
    controls.push_back({IDC_ITEM_COST, K::Static, 152, y, 61, 12, "0", kFigure});
    const int buttons = y + 22;
    controls.push_back({IDC_ITEM_ACCEPT, K::Button, kLabelX, buttons, 50, 14, "Accept"});
    controls.push_back({IDC_ITEM_RESET, K::Button, 62, buttons, 50, 14, "Reset"});
    controls.push_back({IDC_ITEM_CANCEL, K::Button, 163, buttons, 50, 14, "Cancel"});
    controls.push_back(
        {IDC_ENTER, K::Button, kLabelX, buttons, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN});
    return buttons + 21;
}

CDialogTemplate Make(int id, const char* caption, std::vector<CControlTemplate> controls,
                     int footerY) {
    const int height = AddFooter(controls, footerY);
    return CDialogTemplate{
        .id = id, .caption = caption, .cx = kWidth, .cy = height, .controls = std::move(controls)};
}
// The strength row with its display switch and the quality row with the fanatic mark.
void AddFightingRows(std::vector<CControlTemplate>& controls, int y) {
    AddNumberRow(controls, y, "Strength", IDC_ITEM_STRENGTH);
    controls.push_back({IDC_ITEM_SHOW_POINTS, K::CheckBox, kFieldX + 50, y + 1, 101, 10,
                        "Show \"Stregth Points\""});
    AddNumberRow(controls, y + 16, "Quality", IDC_ITEM_QUALITY);
    controls.push_back(
        {IDC_ITEM_FANATIC, K::CheckBox, kFieldX + 50, y + 17, 101, 10, "Fanatic unit"});
}
}  // namespace

CDialogTemplate MakeUnitDialog() {
    std::vector<CControlTemplate> controls;
    AddRow(controls, 7, "Name", IDC_ITEM_NAME, K::Edit, 151);
    AddRow(controls, 23, "Base type", IDC_ITEM_BASE_TYPE, K::ComboBox, 151);
    AddRow(controls, 39, "Type", IDC_ITEM_TYPE, K::ComboBox, 151);
    AddRow(controls, 55, "Weapon", IDC_ITEM_WEAPON, K::ComboBox, 151);
    AddFightingRows(controls, 71);
    AddNumberRow(controls, 103, "Picture", IDC_ITEM_PICTURE);
    AddPicker(controls, 103);
    controls.push_back({IDC_ITEM_RESERVED_LABEL, K::Static, kLabelX, 121, 52, 8, "Reserved"});
    controls.push_back({IDC_ITEM_RESERVED, K::Edit, kFieldX, 119, 44, 12, "", STYLE_DIGITS});
    AddNumberRow(controls, 135, "Icon", IDC_ITEM_ICON);
    AddPicker(controls, 135, IDC_ITEM_ICON_PICK);
    return Make(IDD_UNIT, "Edit unit", std::move(controls), 155);
}

CDialogTemplate MakeLeaderDialog() {
    std::vector<CControlTemplate> controls;
    AddRow(controls, 7, "Name", IDC_ITEM_NAME, K::Edit, 151);
    AddRow(controls, 23, "Command", IDC_ITEM_COMMAND, K::ComboBox, 151);
    AddNumberRow(controls, 39, "Leadership", IDC_ITEM_LEADERSHIP);
    AddNumberRow(controls, 55, "Third value", IDC_ITEM_THIRD);
    AddNumberRow(controls, 71, "Position", IDC_ITEM_POSITION);
    AddPicker(controls, 71);
    return Make(IDD_LEADER, "Edit leader", std::move(controls), 91);
}

CDialogTemplate MakeSupplyDialog() {
    std::vector<CControlTemplate> controls;
    AddRow(controls, 7, "Name", IDC_ITEM_NAME, K::Edit, 151);
    AddNumberRow(controls, 23, "Supply points", IDC_ITEM_SUPPLY);
    AddNumberRow(controls, 39, "Picture", IDC_ITEM_PICTURE);
    AddPicker(controls, 39);
    return Make(IDD_SUPPLY, "Edit supply", std::move(controls), 59);
}

CDialogTemplate MakeGunboatDialog() {
    std::vector<CControlTemplate> controls;
    AddRow(controls, 7, "Name", IDC_ITEM_NAME, K::Edit, 151);
    AddRow(controls, 23, "Weapon", IDC_ITEM_WEAPON, K::ComboBox, 151);
    AddFightingRows(controls, 39);
    AddNumberRow(controls, 71, "Picture", IDC_ITEM_PICTURE);
    AddPicker(controls, 71);
    return Make(IDD_GUNBOAT, "Edit gunboat", std::move(controls), 91);
}
