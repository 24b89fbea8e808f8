#include "cli/CliPrompts.h"

#include <ostream>

void CCliPrompts::Warning(const std::string& text) {
    m_err << "Warning!\n" << text << '\n';
    m_warnings.push_back(text);
}

int CCliPrompts::AskUnitClass(const std::string&) {
    return m_nUnitClass;
}
