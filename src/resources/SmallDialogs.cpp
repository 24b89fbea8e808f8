// "Workspace Properties", "Find item", "Add new list", "Attached Order of Battles" and "Select
// unit class". Positions and sizes are in dialog units.
#include "resources/SmallDialogs.h"

#include "resources/ResourceIds.h"

namespace {
using K = ControlKind;

// One picture row of the workspace dialog: the switch with its caption, then the path.
void AddPictureRow(std::vector<CControlTemplate>& controls, int y, int switchId, int pathId,
                   const char* caption) {
    controls.push_back({switchId, K::CheckBox, 13, y, 60, 10, caption});
    controls.push_back({pathId, K::Edit, 76, y - 1, 211, 12, "", STYLE_READONLY | STYLE_PATH});
}

// One file row: the label, the read-only path and its "..." picker (none for the title).
void AddFileRow(std::vector<CControlTemplate>& controls, int y, const char* label, int pathId,
                int pickId) {
    controls.push_back({-1, K::Static, 7, y + 2, 66, 8, label});
    controls.push_back({pathId, K::Edit, 76, y, 195, 12, "", STYLE_READONLY | STYLE_PATH});
    controls.push_back({pickId, K::Button, 274, y, 19, 12, "..."});
}
}  // namespace

CDialogTemplate MakeWorkspaceDialog() {
    std::vector<CControlTemplate> controls = {
        {-1, K::Static, 7, 9, 66, 8, "Workspace title"},
        {IDC_WS_TITLE, K::Edit, 76, 7, 217, 12, ""},
    };
    AddFileRow(controls, 25, "OOB file", IDC_WS_OOB_FILE, IDC_WS_OOB_PICK);
    AddFileRow(controls, 41, "Backup file", IDC_WS_BACKUP_FILE, IDC_WS_BACKUP_PICK);
    AddFileRow(controls, 57, "Target file", IDC_WS_TARGET_FILE, IDC_WS_TARGET_PICK);
    controls.push_back({-1, K::GroupBox, 7, 75, 286, 95, "Pictures"});
    AddPictureRow(controls, 88, IDC_WS_UNIT_PICTURES_ON, IDC_WS_UNIT_PICTURES, "Unit pictures");
    AddPictureRow(controls, 104, IDC_WS_LEADER_FACES_ON, IDC_WS_LEADER_FACES, "Leader faces");
    AddPictureRow(controls, 120, IDC_WS_INFANTRY_ICONS_ON, IDC_WS_INFANTRY_ICONS, "Infantry icons");
    AddPictureRow(controls, 136, IDC_WS_CAVALRY_ICONS_ON, IDC_WS_CAVALRY_ICONS, "Cavalry icons");
    AddPictureRow(controls, 152, IDC_WS_ARTILLERY_ICONS_ON, IDC_WS_ARTILLERY_ICONS,
                  "Artillery icons");
    controls.push_back({IDC_WS_ACCEPT, K::Button, 76, 178, 50, 14, "Accept", STYLE_DEFAULT});
    controls.push_back({IDC_WS_RESET, K::Button, 130, 178, 50, 14, "Reset"});
    controls.push_back({IDC_WS_CANCEL, K::Button, 243, 178, 50, 14, "Cancel"});
    return CDialogTemplate{.id = IDD_WORKSPACE,
                           .caption = "Workspace Properties",
                           .cx = 300,
                           .cy = 199,
                           .controls = std::move(controls)};
}

CDialogTemplate MakeFindDialog() {
    return CDialogTemplate{
        .id = IDD_FIND,
        .caption = "Find item",
        .cx = 220,
        .cy = 160,
        .controls = {
            {-1, K::Static, 7, 9, 40, 8, "Search for"},
            {IDC_FIND_TEXT, K::Edit, 50, 7, 106, 12, ""},
            {-1, K::Static, 7, 25, 149, 8, "Matches"},
            {IDC_CHOICE_LIST, K::ListBox, 7, 35, 149, 118, ""},
            {IDC_FIND_SEARCH, K::Button, 163, 7, 50, 14, "Search", STYLE_DEFAULT},
            {IDC_FIND_GOTO, K::Button, 163, 25, 50, 14, "Goto", STYLE_DISABLED},
            {IDC_CHOICE_CANCEL, K::Button, 163, 139, 50, 14, "Cancel"},
        }};
}

CDialogTemplate MakeAddListDialog() {
    return CDialogTemplate{.id = IDD_ADD_LIST,
                           .caption = "Add new list",
                           .cx = 200,
                           .cy = 130,
                           .controls = {
                               {-1, K::Static, 7, 7, 130, 8, "Types"},
                               {IDC_CHOICE_LIST, K::ListBox, 7, 17, 130, 106, ""},
                               {IDC_CHOICE_ACCEPT, K::Button, 143, 17, 50, 14, "Accept"},
                               {IDC_CHOICE_CANCEL, K::Button, 143, 35, 50, 14, "Cancel"},
                           }};
}

CDialogTemplate MakeAttachedDialog() {
    return CDialogTemplate{
        .id = IDD_ATTACHED,
        .caption = "Attached Order of Battles",
        .cx = 200,
        .cy = 110,
        .controls = {
            {-1, K::Static, 7, 7, 130, 8, "Orders of battle"},
            {IDC_CHOICE_LIST, K::ListBox, 7, 17, 130, 86, ""},
            {IDC_CHOICE_ACCEPT, K::Button, 143, 17, 50, 14, "Accept", STYLE_DEFAULT},
        }};
}

CDialogTemplate MakeUnitClassDialog() {
    return CDialogTemplate{
        .id = IDD_UNIT_CLASS,
        .caption = "Select unit class",
        .cx = 220,
        .cy = 62,
        .controls = {
            {-1, K::Static, 7, 7, 206, 8, "Please select unit class for the new type of unit"},
            {IDC_CLASS_LINE, K::Static, 7, 20, 206, 8, "."},
            {IDC_CLASS_INFANTRY, K::Button, 7, 41, 60, 14, "Infantry", STYLE_DEFAULT},
            {IDC_CLASS_CAVALRY, K::Button, 80, 41, 60, 14, "Cavalry"},
            {IDC_CLASS_ARTILLERY, K::Button, 153, 41, 60, 14, "Artillery"},
        }};
}
