// The line store: the data of a list box or drop-down list. Lines keep the order in which they
// were added (never sorted); each carries one data word; at most one line is selected.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

constexpr int LB_ERR = -1;

class CLineStore {
public:
    void ResetContent();
    // Appends a line; returns its index.
    int AddString(std::string text);
    int GetCount() const { return static_cast<int>(m_lines.size()); }
    // The text of line index, or an empty text past the end.
    std::string GetText(int index) const;
    int SetItemData(int index, std::uintptr_t data);
    // The data word of line index, or LB_ERR past the end.
    std::uintptr_t GetItemData(int index) const;
    // Selects line index; an index outside the lines clears the selection and gives LB_ERR.
    int SetCurSel(int index);
    int GetCurSel() const { return m_nSelection; }

private:
    bool Valid(int index) const { return index >= 0 && index < GetCount(); }

    struct Line {
        std::string text;
        std::uintptr_t data = 0;
    };
    std::vector<Line> m_lines;
    int m_nSelection = LB_ERR;
};
