// "Workspace Properties" (dialog 103): the workspace's title, its order-of-battle, backup and
// target files and its five picture files with their switches. Accept saves the workspace to its
// own file and gives 1; Cancel, Escape and the close box give 0 and leave it untouched.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Dialog.h"

class CWorkspace;

class CWorkspaceDlg : public CDialog {
public:
    explicit CWorkspaceDlg(CWorkspace& workspace);

    // Set by the opener before DoModal. Mode 1 disables the OOB file and Target file pickers;
    // open mode 1 makes the OOB file picker ask for an existing file instead of a new name.
    std::uint16_t m_nMode = 0;
    std::uint16_t m_nOpenMode = 0;
    std::string m_strInitialDir;  // where the OOB, backup and target pickers open

    // The fields, in exchange order.
    std::string m_strArtilleryIcons;
    std::string m_strBackupFile;
    std::string m_strCavalryIcons;
    std::string m_strInfantryIcons;
    std::string m_strLeaderFaces;
    std::string m_strOobFile;
    std::string m_strTargetFile;
    std::string m_strUnitPictures;
    std::string m_strTitle;
    int m_bArtilleryIcons = 0;
    int m_bCavalryIcons = 0;
    int m_bInfantryIcons = 0;
    int m_bLeaderFaces = 0;
    int m_bUnitPictures = 0;

protected:
    bool OnInitDialog() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    // A picture switch, its path field and the filter of its picker.
    struct CPictureSwitch {
        int id;
        int* pSwitch;
        std::string* pPath;
        const char* filter;
    };

    void OnReset();
    void OnPickOobFile();
    void OnPickBackupFile();
    void OnPickTargetFile();
    void OnPictureSwitch(const CPictureSwitch& picture);
    void OnAccept();
    // Runs a picker for field: the chosen path on OK, "empty" on cancel; gives whether OK.
    bool PickFile(std::string& field, bool open, const char* defExt, const char* filter,
                  const std::string& initialDir);
    // The workspace's picture entry i as the dialog's switch and path members.
    CPictureSwitch Picture(int workspaceIndex);

    CWorkspace& m_workspace;
};
