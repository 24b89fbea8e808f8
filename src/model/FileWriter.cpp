#include "model/FileWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "model/FileOps.h"
#include "model/Result.h"

namespace {

std::string g_lastError;

int Fail(const std::string& path, int error) {
    g_lastError = path + ": " + std::strerror(error);
    return RESULT_CANNOT_WRITE;
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

// The file a chain of symbolic links ends at (the path itself when it is no link). The links
// are followed by hand because the file at the end need not exist yet.
std::string FollowLinks(std::string path) {
    for (int hops = 0; hops < 40; ++hops) {
        struct stat st;
        if (::lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) {
            return path;
        }
        std::string target(static_cast<std::size_t>(st.st_size > 0 ? st.st_size : 4096), '\0');
        const ssize_t n = ::readlink(path.c_str(), target.data(), target.size());
        if (n <= 0) {
            return path;
        }
        target.resize(static_cast<std::size_t>(n));
        path = target.front() == '/' ? target : FolderOf(path) + "/" + target;
    }
    return path;
}

bool WriteAll(CFileOps& ops, int fd, std::string_view bytes, int& error) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ops.Write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            error = n < 0 ? errno : ENOSPC;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

std::string TemporaryNameFor(const std::string& target) {
    static unsigned counter = 0;
    const std::size_t slash = target.rfind('/');
    const std::string base = slash == std::string::npos ? target : target.substr(slash + 1);
    return FolderOf(target) + "/." + base + "." + std::to_string(::getpid()) + "." +
           std::to_string(++counter) + ".tmp";
}

}  // namespace

const std::string& LastWriteError() {
    return g_lastError;
}

int ReplaceFile(const std::string& path, std::string_view bytes) {
    CFileOps& ops = FileOps();
    const std::string target = FollowLinks(path);
    const std::string temporary = TemporaryNameFor(target);
    const int fd = ops.Open(temporary, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (fd < 0) {
        return Fail(path, errno);
    }
    int error = 0;
    bool ok = WriteAll(ops, fd, bytes, error);
    struct stat old;
    if (ok && ::stat(target.c_str(), &old) == 0 && ops.Fchmod(fd, old.st_mode & 07777) != 0) {
        error = errno;
        ok = false;
    }
    if (ok && ops.Fsync(fd) != 0) {
        error = errno;
        ok = false;
    }
    // The close is checked too: some file systems report a failed write only here.
    if (ops.Close(fd) != 0 && ok) {
        error = errno;
        ok = false;
    }
    if (ok && ops.Rename(temporary, target) != 0) {
        error = errno;
        ok = false;
    }
    if (!ok) {
        ops.Unlink(temporary);
        return Fail(path, error);
    }
    // Syncing the folder makes the new name durable. Its failure is not reported: the file is
    // already whole under its name, and some file systems do not sync folders at all.
    const int folder = ops.Open(FolderOf(target), O_RDONLY | O_DIRECTORY, 0);
    if (folder >= 0) {
        ops.Fsync(folder);
        ops.Close(folder);
    }
    return RESULT_DONE;
}

int AppendToFile(const std::string& path, std::string_view bytes) {
    CFileOps& ops = FileOps();
    // Links are followed first, so that taking an append back removes or truncates the file
    // behind a link and never the link.
    const std::string target = FollowLinks(path);
    struct stat st;
    const bool existed = ::stat(target.c_str(), &st) == 0;
    const int fd = ops.Open(target, O_WRONLY | O_CREAT | O_APPEND, 0666);
    if (fd < 0) {
        return Fail(path, errno);
    }
    const off_t before = ::lseek(fd, 0, SEEK_END);
    int error = 0;
    bool ok = WriteAll(ops, fd, bytes, error);
    if (ok && ops.Fsync(fd) != 0) {
        error = errno;
        ok = false;
    }
    if (ops.Close(fd) != 0 && ok) {
        error = errno;
        ok = false;
    }
    if (!ok) {
        // Take the append back, so that a failure reported leaves the file as it was: its old
        // end, or no file when the append made it. A failed close is taken back too, since the
        // caller is told that nothing was appended.
        if (!existed) {
            ops.Unlink(target);
        } else if (before >= 0 && ::truncate(target.c_str(), before) != 0) {
            error = errno;
        }
        return Fail(path, error);
    }
    return RESULT_DONE;
}
