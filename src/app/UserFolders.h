// Where the editor keeps what it remembers between runs, as the XDG base directory rules say:
// settings in $XDG_CONFIG_HOME (else ~/.config), state such as recovery copies in
// $XDG_STATE_HOME (else ~/.local/state), each in a folder "harnwick". A variable that is empty
// or holds a relative path is ignored, as the rules ask.
#pragma once

#include <string>

// The editor's folders; empty when neither the variable nor $HOME gives one.
std::string ConfigFolder();
std::string StateFolder();

// path made absolute against the current folder, with "." and ".." taken out, so that the same
// file is named the same way whichever folder it was chosen from.
std::string AbsolutePath(const std::string& path);
