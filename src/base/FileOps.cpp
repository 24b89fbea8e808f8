#include "base/FileOps.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class CPosixFileOps : public CFileOps {
public:
    int Open(const std::string& path, int flags, mode_t mode) override {
        return ::open(path.c_str(), flags | O_CLOEXEC, mode);
    }
    ssize_t Write(int fd, const char* data, std::size_t size) override {
        return ::write(fd, data, size);
    }
    int Fchmod(int fd, mode_t mode) override { return ::fchmod(fd, mode); }
    int Fsync(int fd) override { return ::fsync(fd); }
    int Close(int fd) override { return ::close(fd); }
    int Rename(const std::string& from, const std::string& to, unsigned flags) override {
        return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags);
    }
    int OpenFolder(const std::string& path) override {
        return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }
    int SyncFolder(int fd) override { return ::fsync(fd); }
};

CPosixFileOps g_posix;
CFileOps* g_pOps = &g_posix;

}  // namespace

CFileOps& FileOps() {
    return *g_pOps;
}

void SetFileOps(CFileOps* ops) {
    g_pOps = ops ? ops : &g_posix;
}
