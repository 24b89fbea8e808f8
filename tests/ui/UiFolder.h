// A fresh temporary folder made the current one for the length of a test, as the editor runs in
// its own folder; removed with everything in it afterwards.
#pragma once

#include <filesystem>
#include <string>

#include "TempFolder.h"

class CUiFolder : public CTempFolder {
public:
    CUiFolder() : m_previous(std::filesystem::current_path()) {
        std::filesystem::current_path(Path());
    }
    ~CUiFolder() { std::filesystem::current_path(m_previous); }

private:
    std::filesystem::path m_previous;
};
