// Prompts that record the readers' questions. tests/data/small.inf, the target file of the item,
// document and CLI tests (OOB header 3, format variant 0, fanatic bonus 0.5), holds one kind of
// every item class, two kinds whose type code names no class (X and Y) and a supply kind Q with
// no type record; one base type per class, chosen so that the costs come out as round numbers.
#pragma once

#include <string>
#include <vector>

#include "gamedata/ReaderPrompts.h"

// Records every question the readers ask and answers the unit class question with m_nAnswer.
class CRecordingPrompts : public CReaderPrompts {
public:
    void Warning(const std::string& text) override { m_warnings.push_back(text); }
    int AskUnitClass(const std::string& line) override {
        m_questions.push_back(line);
        return m_nAnswer;
    }

    int m_nAnswer = 1;
    std::vector<std::string> m_warnings;
    std::vector<std::string> m_questions;
};
