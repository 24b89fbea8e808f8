// "Get Data - options": the game file to read, what becomes of the entries it does not mention
// and of structures left empty, and where the result goes. Positions and sizes are in dialog
// units. Neither button is the default one.
#include "resources/GetDataDialog.h"

#include "resources/ResourceIds.h"

namespace {
using K = ControlKind;

constexpr int kLabelX = 7;
constexpr int kFieldX = 86;

// A path row: the label, the read-only path and its "..." picker.
void AddFileRow(std::vector<CControlTemplate>& controls, int y, int pathId, int pickId,
                unsigned style = 0) {
    controls.push_back({-1, K::Static, kLabelX, y + 2, 76, 8, "Data file"});
    controls.push_back(
        {pathId, K::Edit, kFieldX, y, 165, 12, "", STYLE_READONLY | STYLE_PATH | style});
    controls.push_back({pickId, K::Button, 254, y, 19, 12, "...", style});
}

void AddChoiceRow(std::vector<CControlTemplate>& controls, int y, const char* label, int id) {
    controls.push_back({-1, K::Static, kLabelX, y + 2, 76, 8, label});
    controls.push_back({id, K::ComboBox, kFieldX, y, 110, 60, ""});
}
}  // namespace

CDialogTemplate MakeGetDataDialog() {
    std::vector<CControlTemplate> controls;
    AddFileRow(controls, 7, IDC_GD_DATA_FILE, IDC_GD_DATA_PICK);
    AddChoiceRow(controls, 25, "Not existing entries", IDC_GD_NOT_EXISTING);
    AddChoiceRow(controls, 43, "Empty structures", IDC_GD_EMPTY_STRUCTURES);
    AddChoiceRow(controls, 61, "Output to", IDC_GD_OUTPUT_TO);
    AddFileRow(controls, 79, IDC_GD_OUTPUT_FILE, IDC_GD_OUTPUT_PICK, STYLE_DISABLED);
    controls.push_back({IDC_GD_ACCEPT, K::Button, kLabelX, 101, 50, 14, "Accept", STYLE_DISABLED});
    controls.push_back({IDC_GD_CANCEL, K::Button, 223, 101, 50, 14, "Cancel"});
    return CDialogTemplate{.id = IDD_GET_DATA,
                           .caption = "Get Data - options",
                           .cx = 280,
                           .cy = 122,
                           .controls = std::move(controls)};
}
