// The editor's answers to the questions the order-of-battle reader asks about records the game
// data lacks: a "Warning!" message box, then "Select unit class" for a new unit type.
#pragma once

#include <string>

#include "gamedata/ReaderPrompts.h"

class CDialog;

class CEditorPrompts : public CReaderPrompts {
public:
    explicit CEditorPrompts(CDialog& owner) : m_owner(owner) {}

    void Warning(const std::string& text) override;
    int AskUnitClass(const std::string& line) override;

private:
    CDialog& m_owner;
};
