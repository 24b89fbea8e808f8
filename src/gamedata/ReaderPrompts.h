// What the item readers ask the user when a line names a record the game data lacks. The editor
// answers with its message box and "Select unit class" dialog, the batch tool from its options.
#pragma once

#include <string>

class CReaderPrompts {
public:
    virtual ~CReaderPrompts() = default;
    // A "Warning!" message with the exclamation icon and an OK button.
    virtual void Warning(const std::string& text) = 0;
    // The class of a new unit type: 1 infantry, 2 cavalry or 3 artillery (1 when dismissed).
    // line is the normalised line that named the type.
    virtual int AskUnitClass(const std::string& line) = 0;
};
