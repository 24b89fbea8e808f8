#include "base/FileWriter.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "base/FileOps.h"
#include "base/PathResolve.h"
#include "base/Result.h"

namespace {

CWriteResult Fail(const std::string& path, int error) {
    return {RESULT_CANNOT_WRITE, path + ": " + std::strerror(error)};
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

// Writes bytes, gives the file the permission bits mode (none: keeps them), flushes it to disk
// and closes it, every step checked; error takes the first failure's reason. The close is
// checked too: some file systems report a failed write only there.
bool WriteSyncClose(CFileOps& ops, int fd, std::string_view bytes, const mode_t* mode, int& error) {
    bool ok = WriteAll(ops, fd, bytes, error);
    if (ok && mode && ops.Fchmod(fd, *mode) != 0) {
        error = errno;
        ok = false;
    }
    if (ok && ops.Fsync(fd) != 0) {
        error = errno;
        ok = false;
    }
    if (ops.Close(fd) != 0 && ok) {
        error = errno;
        ok = false;
    }
    return ok;
}

// How the new file took the old one's place, which decides how that is taken back.
enum class Swap { kExchanged, kCreated, kRenamedOver };

void TakeBack(Swap swap, const std::string& temporary, const std::string& target) {
    if (swap == Swap::kExchanged) {
        // Should the names not go back, the old bytes stay under the temporary name rather
        // than being removed.
        if (::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE) ==
            0) {
            ::unlink(temporary.c_str());
        }
    } else if (swap == Swap::kCreated) {
        ::unlink(target.c_str());
    }
}

std::string TemporaryNameFor(const std::string& target) {
    static unsigned counter = 0;
    const std::size_t slash = target.rfind('/');
    const std::string base = slash == std::string::npos ? target : target.substr(slash + 1);
    return FolderOf(target) + "/." + base + "." + std::to_string(::getpid()) + "." +
           std::to_string(++counter) + ".tmp";
}

// The new file has taken the old one's place: syncs the folder, so that the new name survives
// a crash, and takes the new file back out when that fails. With the names exchanged the old
// file is still there under the temporary name until then.
CWriteResult Commit(CFileOps& ops, const std::string& path, const std::string& temporary,
                    const std::string& target, bool replacing, int folder) {
    Swap swap = replacing ? Swap::kExchanged : Swap::kCreated;
    int renamed = ops.Rename(temporary, target, replacing ? RENAME_EXCHANGE : 0);
    if (renamed != 0 && replacing && (errno == EINVAL || errno == ENOSYS)) {
        // A file system that cannot exchange two names (FAT, network file systems): the old
        // file is gone with the rename, so a failed folder sync after it cannot be taken back.
        swap = Swap::kRenamedOver;
        renamed = ops.Rename(temporary, target, 0);
    }
    if (renamed != 0) {
        const int error = errno;
        ::close(folder);
        ::unlink(temporary.c_str());
        return Fail(path, error);
    }
    int error = 0;
    if (ops.SyncFolder(folder) != 0) {
        error = errno;
    }
    if (ops.Close(folder) != 0 && error == 0) {
        error = errno;
    }
    if (error != 0) {
        TakeBack(swap, temporary, target);
        return Fail(path, error);
    }
    if (swap == Swap::kExchanged) {
        // The old bytes. Left behind only if the folder refuses the removal it just allowed.
        ::unlink(temporary.c_str());
    }
    return {};
}

// A device or a pipe named as the output (/dev/null, /dev/stdout, a FIFO a script reads) is
// written into, not replaced: renaming a file over it would put a plain file in place of the
// device, and there is no old content to keep. Not flushed, since such files take no fsync.
CWriteResult WriteInto(CFileOps& ops, const std::string& path, const std::string& file,
                       std::string_view bytes) {
    const int fd = ops.Open(file, O_WRONLY, 0);
    if (fd < 0) {
        return Fail(path, errno);
    }
    int error = 0;
    const bool ok = WriteAll(ops, fd, bytes, error);
    if (ops.Close(fd) != 0 && ok) {
        return Fail(path, errno);
    }
    return ok ? CWriteResult{} : Fail(path, error);
}

}  // namespace

// Failures name path as the caller gave it; the file written is where it resolves to.
CWriteResult ReplaceFile(const std::string& path, std::string_view bytes) {
    CFileOps& ops = FileOps();
    const std::string file = ResolvePathToWrite(path);
    struct stat old;
    // The kernel follows the links here: some end at no path a hand-made walk could name
    // (/dev/stdout is a link to a pipe's descriptor).
    const bool replacing = ::stat(file.c_str(), &old) == 0;
    if (replacing && S_ISDIR(old.st_mode)) {
        return Fail(path, EISDIR);
    }
    if (replacing && !S_ISREG(old.st_mode)) {
        return WriteInto(ops, path, file, bytes);
    }
    const std::string target = FollowLinks(file);
    const std::string temporary = TemporaryNameFor(target);
    const int fd = ops.Open(temporary, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (fd < 0) {
        return Fail(path, errno);
    }
    int error = 0;
    const mode_t mode = old.st_mode & 07777;
    bool ok = WriteSyncClose(ops, fd, bytes, replacing ? &mode : nullptr, error);
    // The folder is opened before the rename, so that its failure still finds the old file.
    const int folder = ok ? ops.OpenFolder(FolderOf(target)) : -1;
    if (ok && folder < 0) {
        error = errno;
        ok = false;
    }
    if (!ok) {
        ::unlink(temporary.c_str());
        return Fail(path, error);
    }
    return Commit(ops, path, temporary, target, replacing, folder);
}

CWriteResult AppendToFile(const std::string& path, std::string_view bytes) {
    CFileOps& ops = FileOps();
    // Links are followed first, so that taking an append back removes or truncates the file
    // behind a link and never the link.
    const std::string target = FollowLinks(ResolvePathToWrite(path));
    struct stat st;
    const bool existed = ::stat(target.c_str(), &st) == 0;
    const int fd = ops.Open(target, O_WRONLY | O_CREAT | O_APPEND, 0666);
    if (fd < 0) {
        return Fail(path, errno);
    }
    const off_t before = ::lseek(fd, 0, SEEK_END);
    int error = 0;
    const bool ok = WriteSyncClose(ops, fd, bytes, nullptr, error);
    if (!ok) {
        // Take the append back, so that a failure reported leaves the file as it was: its old
        // end, or no file when the append made it. A failed close is taken back too, since the
        // caller is told that nothing was appended.
        if (!existed) {
            ::unlink(target.c_str());
        } else if (before >= 0 && ::truncate(target.c_str(), before) != 0) {
            error = errno;
        }
        return Fail(path, error);
    }
    return {};
}
