// The batch tool's answers to the item readers' questions, and what it found while reading: the
// unit class comes from the --unknown-class option, and every warning and every line the reader
// passed over becomes one finding of one line. check lists the findings on standard output; the
// other commands say each on the error stream as it is found, naming the file being read.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "gamedata/ReaderPrompts.h"

class CCliPrompts : public CReaderPrompts {
public:
    // echo: the stream each finding is said on as it comes, or none to only keep them.
    CCliPrompts(int unitClass, std::ostream* echo) : m_nUnitClass(unitClass), m_pEcho(echo) {}

    void Warning(const std::string& text) override;
    int AskUnitClass(const std::string& line) override;
    void Found(std::string text);

    // The file whose reading the next findings come from.
    void Reading(std::string path) { m_strReading = std::move(path); }
    const std::vector<std::string>& Findings() const { return m_findings; }

private:
    int m_nUnitClass;
    std::ostream* m_pEcho;
    std::string m_strReading;
    std::vector<std::string> m_findings;
};
