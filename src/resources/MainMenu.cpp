// Menu 129: the main window's menu bar. Its second pop-up (Edit) is also the tree's
// right-click menu.
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
const CMenuItem kSeparator{};

std::vector<CMenuItem> AddMenu(int unit, int leader, int supply, int structure,
                               const CMenuItem& paste, int templ) {
    return {{"&Unit", unit},     {"&Leader", leader},
            {"&Supply", supply}, {"St&ructure", structure},
            kSeparator,          paste,
            kSeparator,          {"&Template", templ}};
}

// The keys are Ctrl with a letter, Delete, and the F keys; a menu's mnemonics are Alt with a
// letter, so the two never meet.
CMenuTemplate MakeMainMenu() {
    CMenuItem file{"&File", 0, {}};
    file.popup = {
        {"&New",
         0,
         {{"&Empty OOB", ID_FILE_NEW_EMPTY, {}, {"Ctrl+N"}},
          {"&Attached OOB", ID_FILE_NEW_ATTACHED},
          {"Exi&sting OOB", ID_FILE_NEW_EXISTING}}},
        kSeparator,
        {"&Load", ID_FILE_LOAD, {}, {"Ctrl+O"}},
        {"&Recent workspaces", ID_FILE_RECENT, {}, {}, true},
        {"&Save", ID_FILE_SAVE, {}, {"Ctrl+S"}},
        {"Save &as...", ID_FILE_SAVE_AS},
        kSeparator,
        {"&Properties", ID_FILE_PROPERTIES},
        kSeparator,
        {"E&xit", ID_FILE_EXIT, {}, {"Ctrl+Q"}},
    };
    CMenuItem edit{"&Edit", 0, {}};
    edit.popup = {
        {"&Undo", ID_EDIT_UNDO, {}, {"Ctrl+Z"}},
        {"&Redo", ID_EDIT_REDO, {}, {"Ctrl+Shift+Z", "Ctrl+Y"}},
        kSeparator,
        {"&Properties", ID_EDIT_PROPERTIES},
        kSeparator,
        {"&Copy", ID_EDIT_COPY, {}, {"Ctrl+C"}},
        {"Cu&t", ID_EDIT_CUT, {}, {"Ctrl+X"}},
        kSeparator,
        {"Add &next", 0,
         AddMenu(ID_ADD_NEXT_UNIT, ID_ADD_NEXT_LEADER, ID_ADD_NEXT_SUPPLY, ID_ADD_NEXT_STRUCTURE,
                 {"&Paste", ID_ADD_NEXT_PASTE, {}, {"Ctrl+V"}}, ID_ADD_NEXT_TEMPLATE)},
        {"Add &child", 0,
         AddMenu(ID_ADD_CHILD_UNIT, ID_ADD_CHILD_LEADER, ID_ADD_CHILD_SUPPLY,
                 ID_ADD_CHILD_STRUCTURE, {"&Paste", ID_ADD_CHILD_PASTE, {}, {"Ctrl+Shift+V"}},
                 ID_ADD_CHILD_TEMPLATE)},
        kSeparator,
        {"&Delete",
         0,
         {{"This &item", ID_DELETE_ITEM, {}, {"Del"}}, {"&Child items", ID_DELETE_CHILDREN}}},
        kSeparator,
        {"&Save to file", ID_EDIT_SAVE_TO_FILE},
        {"Save as template", ID_EDIT_SAVE_AS_TEMPLATE},
    };
    CMenuItem options{"&Options", 0, {}};
    options.popup = {
        {"Armies summary", ID_OPTIONS_ARMIES_SUMMARY},
        kSeparator,
        {"&Find item", ID_OPTIONS_FIND, {}, {"Ctrl+F"}},
        kSeparator,
        {"&Backup", 0, {{"Save OOB", ID_BACKUP_SAVE}, {"Restore OOB", ID_BACKUP_RESTORE}}},
        kSeparator,
        {"&Get data", ID_OPTIONS_GET_DATA},
        kSeparator,
        {"&Save Target file", ID_OPTIONS_SAVE_TARGET},
    };
    CMenuItem reports{"&Reports", 0, {}};
    reports.popup = {
        {"&HTML", ID_REPORT_HTML},     kSeparator,
        {"&Leader", ID_REPORT_LEADER}, {"&Cost", ID_REPORT_COST},
        {"&Key", ID_REPORT_KEY},
    };
    return CMenuTemplate{IDR_MAINMENU, {file, edit, options, reports, {"&About", ID_ABOUT}}};
}
}  // namespace

const CMenuTemplate& MenuResource(int id) {
    static const CMenuTemplate mainMenu = MakeMainMenu();
    if (id != IDR_MAINMENU) {
        MissingResource("menu", id);
    }
    return mainMenu;
}
