// The batch tool's answers to the item readers' questions: the warnings go to standard error in
// the program's own words, the unit class comes from the --unknown-class option, and every
// unknown record is remembered for the check command.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "gamedata/ReaderPrompts.h"

class CCliPrompts : public CReaderPrompts {
public:
    // Warnings go to err, the stream the tool reports its errors on.
    CCliPrompts(int unitClass, std::ostream& err) : m_nUnitClass(unitClass), m_err(err) {}

    void Warning(const std::string& text) override;
    int AskUnitClass(const std::string& line) override;

    const std::vector<std::string>& Warnings() const { return m_warnings; }

private:
    int m_nUnitClass;
    std::ostream& m_err;
    std::vector<std::string> m_warnings;
};
