#include "base/LineStore.h"

#include <utility>

void CLineStore::ResetContent() {
    m_lines.clear();
    m_nSelection = LB_ERR;
}

int CLineStore::AddString(std::string text) {
    m_lines.push_back({std::move(text), 0});
    return GetCount() - 1;
}

std::string CLineStore::GetText(int index) const {
    return Valid(index) ? m_lines[static_cast<std::size_t>(index)].text : std::string();
}

int CLineStore::SetItemData(int index, std::uintptr_t data) {
    if (!Valid(index)) {
        return LB_ERR;
    }
    m_lines[static_cast<std::size_t>(index)].data = data;
    return 0;
}

std::uintptr_t CLineStore::GetItemData(int index) const {
    return Valid(index) ? m_lines[static_cast<std::size_t>(index)].data
                        : static_cast<std::uintptr_t>(LB_ERR);
}

int CLineStore::SetCurSel(int index) {
    if (!Valid(index)) {
        m_nSelection = LB_ERR;
        return LB_ERR;
    }
    m_nSelection = index;
    return index;
}
