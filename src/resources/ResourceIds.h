// The ids of the editor's dialogs, controls, menu commands and icon. The logic and the
// resource tables both use these names.
#pragma once

// Dialogs, menu and icon.
enum : int {
    IDD_ABOUTBOX = 100,
    IDD_HARNWICK_DIALOG = 102,
    IDD_WORKSPACE = 103,
    IDD_ATTACHED = 104,
    IDD_UNIT_CLASS = 105,
    IDD_FIND = 106,
    IDD_TEMPLATE_SELECT = 107,
    IDD_TEMPLATE_SAVE = 108,
    IDD_UNIT = 109,
    IDD_PICTURE = 110,
    IDD_ADD_LIST = 115,
    IDD_LEADER = 116,
    IDD_SUPPLY = 117,
    IDD_STRUCTURE = 118,
    IDD_GET_DATA = 119,
    IDD_SUMMARY = 122,
    IDD_GUNBOAT = 123,
    IDR_MAINFRAME = 128,  // the program's icon
    IDR_MAINMENU = 129,
};

// Controls of the main window.
enum : int {
    IDC_ENTER = 1000,  // the hidden default button that receives Enter
    IDC_OOB_STATUS = 1001,
    IDC_TREE = 1002,
    IDC_BACKUP_STATUS = 1003,
    IDC_MARKED_NAME = 1004,
    IDC_MARKED_CAPTION = 1042,
    IDC_CLIP_LIST = 1074,
};

// Controls of "Workspace Properties" (dialog 103): the path fields, their "..." pickers, the
// picture switches and the buttons.
enum : int {
    IDC_WS_BACKUP_PICK = 1003,
    IDC_WS_OOB_PICK = 1004,
    IDC_WS_TARGET_PICK = 1005,
    IDC_WS_TITLE = 1011,
    IDC_WS_OOB_FILE = 1012,
    IDC_WS_BACKUP_FILE = 1013,
    IDC_WS_TARGET_FILE = 1014,
    IDC_WS_UNIT_PICTURES = 1015,
    IDC_WS_LEADER_FACES = 1016,
    IDC_WS_INFANTRY_ICONS = 1017,
    IDC_WS_CAVALRY_ICONS = 1018,
    IDC_WS_ARTILLERY_ICONS = 1019,
    IDC_WS_ACCEPT = 1020,
    IDC_WS_CANCEL = 1021,
    IDC_WS_RESET = 1022,
    IDC_WS_UNIT_PICTURES_ON = 1024,
    IDC_WS_LEADER_FACES_ON = 1025,
    IDC_WS_INFANTRY_ICONS_ON = 1026,
    IDC_WS_CAVALRY_ICONS_ON = 1027,
    IDC_WS_ARTILLERY_ICONS_ON = 1028,
};

// Controls of "Find item" (106), "Add new list" (115), "Attached Order of Battles" (104) and
// "Select unit class" (105). The three lists share one id, as do the Cancel buttons.
enum : int {
    IDC_CHOICE_LIST = 1025,
    IDC_CHOICE_CANCEL = 1021,
    IDC_CHOICE_ACCEPT = 1026,
    IDC_FIND_SEARCH = 1022,
    IDC_FIND_GOTO = 1023,
    IDC_FIND_TEXT = 1033,
    IDC_CLASS_INFANTRY = 1027,
    IDC_CLASS_CAVALRY = 1028,
    IDC_CLASS_ARTILLERY = 1029,
    IDC_CLASS_LINE = 1030,
};

// Controls of "Select template to add" (107) and "Save new template" (108), besides the list,
// Accept and Cancel they share with the choosers.
enum : int {
    IDC_TPL_COUNTRY = 1036,
    IDC_TPL_KIND = 1037,
    IDC_TPL_COST = 1039,
    IDC_TPL_NAME = 1040,
    IDC_TPL_TYPE = 1041,
};

// Controls of the item editors: "Edit unit" (109), "Edit leader" (116), "Edit supply" (117),
// "Edit gunboat" (123).
// The hidden default button is IDC_ENTER.
enum : int {
    IDC_ITEM_COST = 1039,
    IDC_ITEM_NAME = 1040,
    IDC_ITEM_COMMAND = 1041,
    IDC_ITEM_TYPE = 1041,
    IDC_ITEM_WEAPON = 1042,
    IDC_ITEM_STRENGTH = 1043,
    IDC_ITEM_BASE_TYPE = 1044,
    IDC_ITEM_QUALITY = 1045,
    IDC_ITEM_PICTURE = 1046,
    IDC_ITEM_ICON = 1047,
    IDC_ITEM_PICTURE_PICK = 1048,
    IDC_ITEM_ICON_PICK = 1049,
    IDC_ITEM_MODIFIER = 1050,
    IDC_ITEM_FANATIC = 1051,
    IDC_ITEM_SHOW_POINTS = 1052,
    IDC_ITEM_LEADERSHIP = 1055,
    IDC_ITEM_THIRD = 1056,
    IDC_ITEM_RESERVED = 1056,
    IDC_ITEM_POSITION = 1057,
    IDC_ITEM_SUPPLY = 1058,
    IDC_ITEM_RESERVED_LABEL = 1073,
    IDC_ITEM_CANCEL = 1021,
    IDC_ITEM_RESET = 1022,
    IDC_ITEM_ACCEPT = 1026,
};

// Controls of "Edit structure" (dialog 118) besides the item editors' name, cost modifier, cost
// and buttons: the kind, the subtree's total, each arm's strength and partial cost.
enum : int {
    IDC_STRUCT_KIND = 1053,
    IDC_STRUCT_TOTAL = 1041,
    IDC_STRUCT_LEADERS = 1042,
    IDC_STRUCT_INFANTRY = 1027,
    IDC_STRUCT_CAVALRY = 1028,
    IDC_STRUCT_ARTILLERY = 1029,
    IDC_STRUCT_SUPPLY = 1058,
    IDC_STRUCT_LEADERS_COST = 1047,
    IDC_STRUCT_INFANTRY_COST = 1048,
    IDC_STRUCT_CAVALRY_COST = 1049,
    IDC_STRUCT_ARTILLERY_COST = 1051,
    IDC_STRUCT_SUPPLY_COST = 1052,
    IDC_STRUCT_SUMMARY = 1030,
};

// Controls of "Structure summary" (dialog 122): per row the share of the cost, its bar, the
// effective cost and its percentage of the reference base cost; the frame that measures the
// bars, the name and the arrows.
enum : int {
    IDC_SUM_NAME = 1040,
    IDC_SUM_FRAME = 1072,
    IDC_SUM_NEXT = 1052,
    IDC_SUM_PREV = 1053,
    IDC_SUM_ACCEPT = 1026,
    IDC_SUM_LEADERS_SHARE = 1049,
    IDC_SUM_INFANTRY_SHARE = 1045,
    IDC_SUM_CAVALRY_SHARE = 1046,
    IDC_SUM_ARTILLERY_SHARE = 1047,
    IDC_SUM_SUPPLY_SHARE = 1048,
    IDC_SUM_LEADERS_BAR = 1066,
    IDC_SUM_INFANTRY_BAR = 1067,
    IDC_SUM_CAVALRY_BAR = 1069,
    IDC_SUM_ARTILLERY_BAR = 1068,
    IDC_SUM_SUPPLY_BAR = 1070,
    IDC_SUM_LEADERS_EFFECTIVE = 1071,
    IDC_SUM_INFANTRY_EFFECTIVE = 1041,
    IDC_SUM_CAVALRY_EFFECTIVE = 1042,
    IDC_SUM_ARTILLERY_EFFECTIVE = 1043,
    IDC_SUM_LEADERS_OF_BASE = 1073,
    IDC_SUM_INFANTRY_OF_BASE = 1044,
    IDC_SUM_CAVALRY_OF_BASE = 1050,
    IDC_SUM_ARTILLERY_OF_BASE = 1051,
};

// Controls of "Select picture" (dialog 110); Enter reaches the hidden IDC_ENTER button.
enum : int {
    IDC_PIC_NEXT = 1052,
    IDC_PIC_PREV = 1053,
    IDC_PIC_NUMBER = 1054,
    IDC_PIC_CANCEL = 1021,
    IDC_PIC_RESET = 1022,
    IDC_PIC_ACCEPT = 1026,
};

// Controls of "Get Data - options" (dialog 119): the game file and the order-of-battle file that
// receives the result, each with its "..." picker, and the three choices.
enum : int {
    IDC_GD_OUTPUT_PICK = 1004,
    IDC_GD_OUTPUT_FILE = 1012,
    IDC_GD_CANCEL = 1021,
    IDC_GD_ACCEPT = 1026,
    IDC_GD_NOT_EXISTING = 1060,
    IDC_GD_EMPTY_STRUCTURES = 1061,
    IDC_GD_OUTPUT_TO = 1062,
    IDC_GD_DATA_PICK = 1063,
    IDC_GD_DATA_FILE = 1064,
};

// Menu commands.
enum : int {
    ID_FILE_NEW_EMPTY = 32771,
    ID_FILE_NEW_EXISTING = 32772,
    ID_FILE_LOAD = 32773,
    ID_FILE_SAVE = 32774,
    ID_FILE_SAVE_AS = 32775,
    ID_FILE_PROPERTIES = 32776,
    ID_FILE_EXIT = 32777,
    ID_ABOUT = 32778,
    ID_OPTIONS_FIND = 32779,
    ID_BACKUP_SAVE = 32780,
    ID_BACKUP_RESTORE = 32781,
    ID_EDIT_SAVE_AS_TEMPLATE = 32783,
    ID_REPORT_HTML = 32788,
    ID_REPORT_KEY = 32789,
    ID_REPORT_LEADER = 32790,
    ID_REPORT_COST = 32791,
    ID_EDIT_PROPERTIES = 32793,
    ID_DELETE_ITEM = 32796,
    ID_DELETE_CHILDREN = 32797,
    ID_FILE_NEW_ATTACHED = 32798,
    ID_ADD_NEXT_UNIT = 32799,
    ID_ADD_NEXT_LEADER = 32800,
    ID_ADD_NEXT_SUPPLY = 32801,
    ID_ADD_NEXT_STRUCTURE = 32802,
    ID_ADD_NEXT_PASTE = 32803,
    ID_ADD_NEXT_TEMPLATE = 32804,
    ID_EDIT_COPY = 32805,
    ID_EDIT_UNDO = 57643,
    ID_EDIT_REDO = 57646,
    ID_ADD_CHILD_UNIT = 32806,
    ID_ADD_CHILD_LEADER = 32807,
    ID_ADD_CHILD_SUPPLY = 32808,
    ID_ADD_CHILD_STRUCTURE = 32809,
    ID_ADD_CHILD_PASTE = 32810,
    ID_ADD_CHILD_TEMPLATE = 32811,
    ID_EDIT_CUT = 32812,
    ID_EDIT_SAVE_TO_FILE = 32813,
    ID_OPTIONS_GET_DATA = 32814,
    ID_OPTIONS_SAVE_TARGET = 32815,
    ID_OPTIONS_ARMIES_SUMMARY = 32816,
    ID_FILE_RECENT = 32817,     // the list of workspaces opened last
    ID_FILE_MRU_FILE1 = 57616,  // its entries, the most recent first
};

// The position of the Edit menu on the menu bar; it is also the tree's right-click menu.
constexpr int kEditMenuPosition = 1;
