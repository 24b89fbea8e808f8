// A workspace's nine fields on one line, for comparing what a read left in it.
#pragma once

#include <string>

#include "model/Workspace.h"

inline std::string Fields(const CWorkspace& w) {
    std::string out = w.m_strTitle + "|" + w.m_strOobFile + "|" + w.m_strBackupFile + "|" +
                      w.m_strTargetFile + "|";
    for (int i = 0; i < CWorkspace::kPictures; ++i) {
        out += std::to_string(w.m_nPictureFlags[i]) + ":" + w.m_strPicturePaths[i] + "|";
    }
    return out;
}
