// The writers of the kept files against faults the system itself makes: a full disk, a
// read-only folder, a folder the user may not write and a file size limit. Each runs in a
// child process that makes its fault in a mount namespace of its own (or drops to an
// unprivileged user, or lowers its limit), so nothing of it reaches the machine, and that
// works as root, where a read-only mode bit stops nothing. A fault that cannot be made fails
// the test and says why.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "SampleWriters.h"
#include "TempFolder.h"
#include "base/FileWriter.h"
#include "base/Result.h"

namespace {

const std::string kOld = "the old file\r\n";
constexpr rlim_t kSizeLimit = 64;  // below what any of the writers writes
constexpr uid_t kNobody = 65534;

struct Fault {
    const char* name;
    int error;  // the reason the failure must give
    // Makes the fault in the child for a folder that holds the old file.out; "" or why not.
    std::string (*make)(const std::string& folder);
};

std::string Why(const char* what) {
    return std::string(what) + ": " + std::strerror(errno);
}

bool WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    return bool(out << bytes) && bool(out.flush());
}

// A mount namespace of this process's own, whose mounts the machine never sees. Without root
// a user namespace comes first, in which this user is root.
std::string EnterMountNamespace() {
    if (::geteuid() != 0) {
        const std::string uid = "0 " + std::to_string(::geteuid()) + " 1";
        const std::string gid = "0 " + std::to_string(::getegid()) + " 1";
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return Why("unshare(CLONE_NEWUSER | CLONE_NEWNS)");
        }
        if (!WriteFile("/proc/self/uid_map", uid) || !WriteFile("/proc/self/setgroups", "deny") ||
            !WriteFile("/proc/self/gid_map", gid)) {
            return "cannot map this user into a user namespace";
        }
    } else if (::unshare(CLONE_NEWNS) != 0) {
        return Why("unshare(CLONE_NEWNS)");
    }
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        return Why("making the mounts private");
    }
    return "";
}

// A tiny tmpfs over the folder, holding the old file and a filler that takes the rest.
std::string FullDisk(const std::string& folder) {
    std::string failure = EnterMountNamespace();
    if (!failure.empty()) {
        return failure;
    }
    if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") != 0) {
        return Why("mounting a 64k tmpfs");
    }
    if (!WriteFile(folder + "/file.out", kOld)) {
        return "cannot write the old file on the tmpfs";
    }
    const int fd = ::open((folder + "/filler").c_str(), O_WRONLY | O_CREAT, 0644);
    const std::string block(4096, 'x');
    while (fd >= 0 && ::write(fd, block.data(), block.size()) > 0) {
    }
    if (fd < 0 || errno != ENOSPC) {
        return Why("filling the tmpfs");
    }
    ::close(fd);
    return "";
}

std::string ReadOnlyFolder(const std::string& folder) {
    std::string failure = EnterMountNamespace();
    if (!failure.empty()) {
        return failure;
    }
    if (::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
        ::mount(nullptr, folder.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
        return Why("bind-mounting the folder read-only");
    }
    return "";
}

// The folder stays its owner's (mode 0755); the child becomes a user who is not its owner. A
// test run by an ordinary user is that user already, and the folder loses its write bits.
std::string FolderOfAnotherUser(const std::string& folder) {
    if (::geteuid() != 0) {
        return ::chmod(folder.c_str(), 0555) == 0 ? "" : Why("chmod 0555");
    }
    if (::setgroups(0, nullptr) != 0 || ::setresgid(kNobody, kNobody, kNobody) != 0 ||
        ::setresuid(kNobody, kNobody, kNobody) != 0) {
        return Why("dropping to user 65534");
    }
    return "";
}

std::string FileSizeLimit(const std::string&) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{kSizeLimit, kSizeLimit};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? "" : Why("setrlimit(RLIMIT_FSIZE)");
}

std::string NamesIn(const std::string& folder) {
    std::string names;
    for (const auto& e : std::filesystem::directory_iterator(folder)) {
        names += e.path().filename().string() + " ";
    }
    return names;
}

// What the child saw: the fault it could not make, or the writer's result and error text,
// whether the old file is whole and whether the folder holds the names it held.
std::string RunInChild(const Fault& fault, const CSampleWriter& writer, CSampleFiles& sample,
                       const std::string& folder) {
    int pipe[2];
    if (::pipe(pipe) != 0) {
        return Why("pipe");
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipe[0]);
        std::string text = fault.make(folder);
        if (text.empty()) {
            const std::string path = folder + "/file.out";
            const std::string before = NamesIn(folder);
            const CWriteResult result = writer.write(sample, path);
            text = std::to_string(result.code) + " " + result.error +
                   (ReadBytes(path) == kOld ? "" : ", the old file changed") +
                   (NamesIn(folder) == before ? "" : ", a temporary file was left");
        } else {
            text = "cannot make the fault: " + text;
        }
        const bool sent =
            ::write(pipe[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        ::_exit(sent ? 0 : 1);
    }
    ::close(pipe[1]);
    std::string text;
    char buffer[4096];
    for (ssize_t n; (n = ::read(pipe[0], buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(n));
    }
    ::close(pipe[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? text : "the child process failed";
}

TEST(RealFaults, EachKeptFileWriterReportsEachFaultAndKeepsTheOldFile) {
    const std::vector<Fault> faults = {
        {"full disk", ENOSPC, FullDisk},
        {"read-only folder", EROFS, ReadOnlyFolder},
        {"folder of another user", EACCES, FolderOfAnotherUser},
        {"file size limit", EFBIG, FileSizeLimit},
    };
    CSampleFiles sample;
    for (const CSampleWriter& writer : AllWriters()) {
        if (!writer.kept) {
            continue;
        }
        for (const Fault& fault : faults) {
            SCOPED_TRACE(std::string(writer.name) + ", " + fault.name);
            CTempFolder temp;
            // Others may pass through the test folder into the one the fault is made in.
            ASSERT_EQ(::chmod(temp.Path().c_str(), 0711), 0);
            const std::string folder = temp / "faulty";
            ASSERT_EQ(::mkdir(folder.c_str(), 0755), 0);
            WriteBytes(folder + "/file.out", kOld);
            EXPECT_EQ(RunInChild(fault, writer, sample, folder),
                      std::to_string(RESULT_CANNOT_WRITE) + " " + folder +
                          "/file.out: " + std::strerror(fault.error));
            EXPECT_EQ(ReadBytes(folder + "/file.out"), kOld);
        }
    }
}

}  // namespace
