// The file operations that safe writing is made of, behind one interface so that tests can put
// a double behind it that fails any one of them. Taking a failed write back (removing the
// temporary file, exchanging the names back) is no such operation: it is done directly, so
// that a double failing every operation still sees the old file restored.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

class CFileOps {
public:
    virtual ~CFileOps() = default;
    // Each returns what the POSIX call of the same name returns and leaves errno set on failure.
    virtual int Open(const std::string& path, int flags, mode_t mode) = 0;
    virtual ssize_t Write(int fd, const char* data, std::size_t size) = 0;
    virtual int Fchmod(int fd, mode_t mode) = 0;
    virtual int Fsync(int fd) = 0;
    virtual int Close(int fd) = 0;
    // renameat2 in the current folder: flags 0 or RENAME_EXCHANGE.
    virtual int Rename(const std::string& from, const std::string& to, unsigned flags) = 0;
    // The folder, opened for syncing it, and the sync of its entries.
    virtual int OpenFolder(const std::string& path) = 0;
    virtual int SyncFolder(int fd) = 0;
};

// The operations in force: the real ones unless a test has put others in their place.
CFileOps& FileOps();
// Puts ops in force (none restores the real ones); for tests.
void SetFileOps(CFileOps* ops);
