// Message boxes: the buttons and icons the program uses and the results they give.
#pragma once

#include <string>

// Dialog and message box results.
enum : int { IDOK = 1, IDCANCEL = 2, IDYES = 6, IDNO = 7 };

// Message box types: one button set plus one icon.
enum : unsigned {
    MB_OK = 0x00,
    MB_YESNO = 0x04,
    MB_ICONQUESTION = 0x20,
    MB_ICONEXCLAMATION = 0x30,
    MB_ICONINFORMATION = 0x40,
};
constexpr unsigned MB_TYPEMASK = 0x0F;
constexpr unsigned MB_ICONMASK = 0xF0;

// A message box owned by the dialog running on top (if any), with the application's name as
// its caption. Returns the button pressed.
int AfxMessageBox(const std::string& text, unsigned type = MB_OK);

// The virtual key the logic asks about, and the state of a key: negative while it is held down.
enum : int { VK_SHIFT = 0x10 };
short GetKeyState(int virtualKey);
