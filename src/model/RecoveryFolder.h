// Copies of orders of battle whose changes are not yet saved, kept in a folder of their own so
// that an editor that ends without saving (killed, crashed, or quit) loses no work. Each
// workspace has its own pair of files, named after a digest of the workspace file's path: the
// copy (<digest>.oob, what Save would write) and a header (<digest>.txt) whose two lines name
// the workspace file and its order-of-battle file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Result.h"

class CRecoveryFolder {
public:
    struct CCopy {
        std::string workspace;  // the workspace file the copy belongs to
        std::string oobFile;    // that workspace's order-of-battle file when the copy was written
        std::string path;       // the copy
    };

    explicit CRecoveryFolder(std::string folder) : m_strFolder(std::move(folder)) {}

    // Replaces the workspace's copy by text, then its header, through the safe writer; the
    // folder is made when missing.
    CWriteResult Write(const std::string& workspace, const std::string& oobFile,
                       std::string_view text) const;
    // Removes the workspace's copy and header, where there are any.
    void Remove(const std::string& workspace) const;
    // The copies worth offering, the newest first: those newer than their order-of-battle file,
    // or whose file is gone. A copy older than its file is removed, since the file was written
    // after it; a header without its copy is removed too.
    std::vector<CCopy> Pending() const;

    const std::string& Folder() const { return m_strFolder; }

private:
    std::string PathOf(const std::string& workspace, const char* extension) const;

    std::string m_strFolder;
};
