// The batch tool's answers to the item readers' questions: the warnings go to standard error in
// the program's own words, the unit class comes from the --unknown-class option, and every
// unknown record is remembered for the check command.
#pragma once

#include <string>
#include <vector>

#include "model/ReaderPrompts.h"

class CCliPrompts : public CReaderPrompts {
public:
    explicit CCliPrompts(int unitClass) : m_nUnitClass(unitClass) {}

    void Warning(const std::string& text) override;
    int AskUnitClass(const std::string& line) override;

    const std::vector<std::string>& Warnings() const { return m_warnings; }

private:
    int m_nUnitClass;
    std::vector<std::string> m_warnings;
};
