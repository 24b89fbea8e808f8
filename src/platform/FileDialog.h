// The file chooser: open or save, a default extension, filters written as
// "Desc (*.ext)|*.ext|", an initial folder; gives the chosen full path.
#pragma once

#include <string>
#include <vector>

class CDialog;

// The chooser's flags. Without OFN_FILEMUSTEXIST an open chooser takes a name that does not
// exist; OFN_OVERWRITEPROMPT makes a save chooser ask before it gives an existing file.
enum : unsigned {
    OFN_OVERWRITEPROMPT = 0x0002,
    OFN_HIDEREADONLY = 0x0004,
    OFN_FILEMUSTEXIST = 0x1000,
};

struct CFileFilter {
    std::string description;  // "Workspace Files (*.txt)"
    std::string pattern;      // "*.txt"; several are separated by ';'
};

// "Desc|pattern|Desc|pattern|" split into its pairs; an unpaired last description is dropped.
std::vector<CFileFilter> ParseFileFilter(const std::string& filter);

class CFileDialog {
public:
    CFileDialog(bool bOpenFileDialog, std::string defExt, std::string fileName, unsigned flags,
                std::string filter, CDialog* parent = nullptr);

    // IDOK with a chosen path, IDCANCEL when the user cancelled.
    int DoModal();
    const std::string& GetPathName() const { return m_strPath; }

    bool IsOpenDialog() const { return m_bOpen; }
    bool MustExist() const { return (m_nFlags & OFN_FILEMUSTEXIST) != 0; }
    bool AsksBeforeOverwrite() const { return !m_bOpen && (m_nFlags & OFN_OVERWRITEPROMPT) != 0; }
    const std::string& DefaultExtension() const { return m_strDefExt; }
    const std::string& FileName() const { return m_strFileName; }
    unsigned Flags() const { return m_nFlags; }
    const std::vector<CFileFilter>& Filters() const { return m_filters; }
    CDialog* Parent() const { return m_pParent; }

    // The folder the chooser opens in; empty for the system's default.
    std::string m_strInitialDir;

private:
    bool m_bOpen;
    std::string m_strDefExt;
    std::string m_strFileName;
    unsigned m_nFlags;
    std::vector<CFileFilter> m_filters;
    CDialog* m_pParent;
    std::string m_strPath;
};

// The chosen name with the default extension added when it has none, as the system's chooser
// does: "oob" turns "army" into "army.oob" but leaves "army.txt" and "army." alone.
std::string AddDefaultExtension(const std::string& path, const std::string& defExt);
