// The dialog templates by id. Positions and sizes are in dialog units.
#include "platform/MessageBox.h"
#include "resources/GetDataDialog.h"
#include "resources/ItemEditorDialogs.h"
#include "resources/PictureDialog.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"
#include "resources/SmallDialogs.h"
#include "resources/StructureDialogs.h"
#include "resources/TemplateDialogs.h"

namespace {
using K = ControlKind;

CDialogTemplate MakeAboutBox() {
    return CDialogTemplate{.id = IDD_ABOUTBOX,
                           .caption = "About Harnwick",
                           .cx = 198,
                           .cy = 55,
                           .controls = {
                               {-1, K::Icon, 11, 17, 20, 20, "", 0, &IconResource(IDR_MAINFRAME)},
                               {-1, K::Static, 40, 21, 96, 8, "Harnwick Version 4.0"},
                               {IDOK, K::Button, 141, 34, 50, 14, "OK", STYLE_DEFAULT},
                           }};
}

CDialogTemplate MakeMainWindow() {
    constexpr unsigned kTree = STYLE_HASBUTTONS | STYLE_HASLINES | STYLE_LINESATROOT |
                               STYLE_EDITLABELS | STYLE_NOTOOLTIPS | STYLE_BORDER | STYLE_TABSTOP;
    return CDialogTemplate{
        .id = IDD_HARNWICK_DIALOG,
        .caption = "Harnwick",
        .cx = 420,
        .cy = 250,
        .style = DIALOG_CENTERED | DIALOG_APPWINDOW,
        .menu = &MenuResource(IDR_MAINMENU),
        .controls = {
            {IDC_TREE, K::TreeView, 7, 7, 260, 236, "Order of battle", kTree},
            {IDC_MARKED_CAPTION, K::Static, 269, 7, 144, 14, "In memory",
             STYLE_SUNKEN | STYLE_CENTER},
            {IDC_MARKED_NAME, K::Static, 269, 23, 144, 14, "empty", STYLE_SUNKEN | STYLE_NOTIFY},
            {IDC_CLIP_LIST, K::ListBox, 272, 110, 141, 97, "Clipboard",
             STYLE_HIDDEN | STYLE_NOSELECTION},
            {-1, K::Static, 351, 213, 40, 14, "OOB file"},
            {IDC_OOB_STATUS, K::Static, 393, 213, 20, 14, "OK",
             STYLE_SUNKEN | STYLE_CENTER | STYLE_NOTIFY},
            {-1, K::Static, 351, 229, 40, 14, "Backup"},
            {IDC_BACKUP_STATUS, K::Static, 393, 229, 20, 14, "OK",
             STYLE_SUNKEN | STYLE_CENTER | STYLE_NOTIFY},
            {IDC_ENTER, K::Button, 7, 7, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN},
        }};
}
}  // namespace

const CDialogTemplate& DialogResource(int id) {
    static const CDialogTemplate aboutBox = MakeAboutBox();
    static const CDialogTemplate mainWindow = MakeMainWindow();
    static const CDialogTemplate workspace = MakeWorkspaceDialog();
    static const CDialogTemplate attached = MakeAttachedDialog();
    static const CDialogTemplate unitClass = MakeUnitClassDialog();
    static const CDialogTemplate find = MakeFindDialog();
    static const CDialogTemplate addList = MakeAddListDialog();
    static const CDialogTemplate unit = MakeUnitDialog();
    static const CDialogTemplate leader = MakeLeaderDialog();
    static const CDialogTemplate supply = MakeSupplyDialog();
    static const CDialogTemplate gunboat = MakeGunboatDialog();
    static const CDialogTemplate picture = MakePictureDialog();
    static const CDialogTemplate templateSelect = MakeTemplateSelectDialog();
    static const CDialogTemplate templateSave = MakeTemplateSaveDialog();
    static const CDialogTemplate getData = MakeGetDataDialog();
    static const CDialogTemplate structure = MakeStructureDialog();
    static const CDialogTemplate summary = MakeSummaryDialog();
    switch (id) {
        case IDD_ABOUTBOX:
            return aboutBox;
        case IDD_HARNWICK_DIALOG:
            return mainWindow;
        case IDD_WORKSPACE:
            return workspace;
        case IDD_ATTACHED:
            return attached;
        case IDD_UNIT_CLASS:
            return unitClass;
        case IDD_FIND:
            return find;
        case IDD_ADD_LIST:
            return addList;
        case IDD_UNIT:
            return unit;
        case IDD_LEADER:
            return leader;
        case IDD_SUPPLY:
            return supply;
        case IDD_GUNBOAT:
            return gunboat;
        case IDD_PICTURE:
            return picture;
        case IDD_TEMPLATE_SELECT:
            return templateSelect;
        case IDD_TEMPLATE_SAVE:
            return templateSave;
        case IDD_GET_DATA:
            return getData;
        case IDD_STRUCTURE:
            return structure;
        case IDD_SUMMARY:
            return summary;
        default:
            MissingResource("dialog", id);
    }
}
