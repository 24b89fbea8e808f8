// Dialog and menu resources as plain data: what a dialog holds (control id, kind, position and
// size in dialog units, text, style) and what a menu offers. The backends build their windows
// from these; the dialog logic refers to controls and commands by the same ids.
#pragma once

#include <string>
#include <vector>

#include "platform/PixelImage.h"

enum class ControlKind {
    Edit,
    Static,
    Button,
    CheckBox,
    ListBox,
    ComboBox,  // a drop-down list; its height in the template includes the dropped list
    TreeView,
    Frame,  // an empty frame whose client area other controls are measured against
    Bar,    // a filled rectangle (the summary's bars)
    GroupBox,
    Icon,  // shows the template's image
};

// Control styles (bit set).
enum : unsigned {
    STYLE_HIDDEN = 1u << 0,       // created invisible
    STYLE_DISABLED = 1u << 1,     // created disabled
    STYLE_READONLY = 1u << 2,     // an edit the user cannot type into
    STYLE_DIGITS = 1u << 3,       // an edit that takes digits only
    STYLE_SUNKEN = 1u << 4,       // a sunken border (2 pixels on each side)
    STYLE_CENTER = 1u << 5,       // text centred
    STYLE_RIGHT = 1u << 6,        // text right-aligned
    STYLE_NOTIFY = 1u << 7,       // a static that reports clicks
    STYLE_DEFAULT = 1u << 8,      // the default push button, pressed by Enter
    STYLE_NOSELECTION = 1u << 9,  // a list box whose lines cannot be selected
    STYLE_BORDER = 1u << 10,
    STYLE_TABSTOP = 1u << 11,     // takes the focus with Tab (edits, buttons, lists always do)
    STYLE_HASBUTTONS = 1u << 12,  // tree: expand buttons
    STYLE_HASLINES = 1u << 13,    // tree: lines between entries
    STYLE_LINESATROOT = 1u << 14,
    STYLE_EDITLABELS = 1u << 15,  // tree: labels can be edited in place
    STYLE_NOTOOLTIPS = 1u << 16,
    // A control whose text is a path: the file system's bytes, shown as UTF-8 when they are
    // valid UTF-8 and as Windows-1252 otherwise (PathToUnicode), not as the Windows-1252 of
    // every other text. Only the template knows which fields hold paths.
    STYLE_PATH = 1u << 17,
};

struct CControlTemplate {
    int id = -1;  // -1 for controls the logic never addresses
    ControlKind kind = ControlKind::Static;
    int x = 0;  // position and size in dialog units
    int y = 0;
    int cx = 0;
    int cy = 0;
    std::string text{};
    unsigned style = 0;
    const CPixelImage* image = nullptr;  // what an Icon control shows
};

// Menu entries: a command (id), a pop-up (children) or a separator (neither). A list is a
// pop-up whose commands the running dialog gives and changes (CDialog::SetMenuList with the
// list's id), such as the files opened last.
struct CMenuItem {
    std::string text{};
    int id = 0;
    std::vector<CMenuItem> popup{};
    // Keys that run the command ("Ctrl+Z"); the first is shown beside the entry.
    std::vector<std::string> keys{};
    bool list = false;
    // The text names a file (a list's "&1 /path/file"): shown as path fields show paths.
    bool pathText = false;

    bool IsSeparator() const { return id == 0 && popup.empty() && !list; }
    bool IsPopup() const { return !popup.empty() || list; }
};

struct CMenuTemplate {
    int id = 0;
    std::vector<CMenuItem> items;  // the menu bar's entries, in order

    // The pop-up at position pos of the bar (GetSubMenu).
    const CMenuItem& GetSubMenu(int pos) const { return items.at(static_cast<std::size_t>(pos)); }
    // True when some entry, at any depth, sends command id.
    bool HasCommand(int id) const;
    // True when some entry, at any depth, is the list listId.
    bool HasList(int listId) const;
};

// Dialog styles (bit set).
enum : unsigned {
    DIALOG_CENTERED = 1u << 0,
    DIALOG_CLOSEBOX = 1u << 1,   // a system menu with its close box
    DIALOG_APPWINDOW = 1u << 2,  // shown in the task bar
};

struct CDialogTemplate {
    int id = 0;
    std::string caption;
    int cx = 0;  // client size in dialog units
    int cy = 0;
    unsigned style = DIALOG_CENTERED | DIALOG_CLOSEBOX;
    const CMenuTemplate* menu = nullptr;
    std::vector<CControlTemplate> controls;  // in tab order

    const CControlTemplate* Find(int controlId) const;
};

// Dialog units to pixels, given the dialog font's base units (average character width and
// character height), as the original system converted them.
// Rounded to the nearest pixel, as MulDiv does.
inline int DluToPixelsX(int dlu, int baseX) {
    return (dlu * baseX + 2) / 4;
}
inline int DluToPixelsY(int dlu, int baseY) {
    return (dlu * baseY + 4) / 8;
}
