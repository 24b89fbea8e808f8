#include "cli/CliPrompts.h"

#include <algorithm>
#include <ostream>

// A warning's text is a message box's, in lines; a finding takes one line.
void CCliPrompts::Warning(const std::string& text) {
    std::string line = text;
    std::replace(line.begin(), line.end(), '\n', ' ');
    Found(std::move(line));
}

int CCliPrompts::AskUnitClass(const std::string&) {
    return m_nUnitClass;
}

void CCliPrompts::Found(std::string text) {
    if (m_pEcho) {
        *m_pEcho << "harnwick-cli: " << m_strReading << ": " << text << '\n';
    }
    m_findings.push_back(std::move(text));
}
