#include "cli/CliPrompts.h"

#include <iostream>

void CCliPrompts::Warning(const std::string& text) {
    std::cerr << "Warning!\n" << text << '\n';
    m_warnings.push_back(text);
}

int CCliPrompts::AskUnitClass(const std::string&) {
    return m_nUnitClass;
}
