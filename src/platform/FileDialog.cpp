#include "platform/FileDialog.h"

#include "platform/Backend.h"
#include "platform/MessageBox.h"

std::vector<CFileFilter> ParseFileFilter(const std::string& filter) {
    std::vector<CFileFilter> filters;
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    for (auto bar = filter.find('|'); bar != std::string::npos; bar = filter.find('|', start)) {
        parts.push_back(filter.substr(start, bar - start));
        start = bar + 1;
    }
    if (start < filter.size()) {
        parts.push_back(filter.substr(start));
    }
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
        filters.push_back({parts[i], parts[i + 1]});
    }
    return filters;
}

std::string AddDefaultExtension(const std::string& path, const std::string& defExt) {
    const auto slash = path.find_last_of('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    if (defExt.empty() || name.empty() || name.find('.') != std::string::npos) {
        return path;
    }
    return path + "." + defExt;
}

CFileDialog::CFileDialog(bool bOpenFileDialog, std::string defExt, std::string fileName,
                         unsigned flags, std::string filter, CDialog* parent)
    : m_bOpen(bOpenFileDialog),
      m_strDefExt(std::move(defExt)),
      m_strFileName(std::move(fileName)),
      m_nFlags(flags),
      m_filters(ParseFileFilter(filter)),
      m_pParent(parent) {}

int CFileDialog::DoModal() {
    std::string path;
    if (!Backend().RunFileDialog(*this, path)) {
        return IDCANCEL;
    }
    m_strPath = AddDefaultExtension(path, m_strDefExt);
    return IDOK;
}
