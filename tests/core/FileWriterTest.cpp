#include "model/FileWriter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "model/FileOps.h"
#include "model/Result.h"

namespace {

// The real operations, except that operation number m_nFailAt (from 0) fails with a plausible
// error; writes take at most chunk bytes at a time, so that one file takes several writes.
class CFailingOps : public CFileOps {
public:
    CFailingOps(int failAt, std::size_t chunk)
        : m_real(FileOps()), m_nFailAt(failAt), m_nChunk(chunk) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        return Fails("open", EACCES) ? -1 : m_real.Open(path, flags, mode);
    }
    ssize_t Write(int fd, const char* data, std::size_t size) override {
        return Fails("write", ENOSPC) ? -1 : m_real.Write(fd, data, std::min(size, m_nChunk));
    }
    int Fchmod(int fd, mode_t mode) override {
        return Fails("fchmod", EPERM) ? -1 : m_real.Fchmod(fd, mode);
    }
    int Fsync(int fd) override { return Fails("fsync", EIO) ? -1 : m_real.Fsync(fd); }
    // A close that reports an error has still closed the descriptor.
    int Close(int fd) override {
        const int result = m_real.Close(fd);
        return Fails("close", EIO) ? -1 : result;
    }
    int Rename(const std::string& from, const std::string& to) override {
        return Fails("rename", EXDEV) ? -1 : m_real.Rename(from, to);
    }
    int Unlink(const std::string& path) override {
        return Fails("unlink", EBUSY) ? -1 : m_real.Unlink(path);
    }

    std::vector<std::string> m_ops;  // the operations asked for, in order

private:
    bool Fails(const char* op, int error) {
        const bool fail = static_cast<int>(m_ops.size()) == m_nFailAt;
        m_ops.push_back(op);
        errno = fail ? error : errno;
        return fail;
    }

    CFileOps& m_real;
    int m_nFailAt;
    std::size_t m_nChunk;
};

// Puts a double in force for a scope.
class CUseOps {
public:
    explicit CUseOps(CFileOps& ops) { SetFileOps(&ops); }
    ~CUseOps() { SetFileOps(nullptr); }
};

mode_t ModeOf(const std::string& path) {
    struct stat st {};
    EXPECT_EQ(::stat(path.c_str(), &st), 0) << path;
    return st.st_mode & 07777;
}

bool IsLink(const std::string& path) {
    struct stat st {};
    return ::lstat(path.c_str(), &st) == 0 && S_ISLNK(st.st_mode);
}

std::size_t OpenDescriptors() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                      std::filesystem::directory_iterator()));
}

using Names = std::vector<std::string>;

// Runs write with operation k failing, for every operation of a dry run, with whole and with
// piecemeal writes. reset puts the file back as it was before each run; check looks at the
// outcome, told whether the failing operation came after the one that made the change final.
template <typename Write, typename Reset, typename Check>
void FailEachOperation(const char* lastOp, Write write, Reset reset, Check check) {
    const std::size_t descriptors = OpenDescriptors();
    for (std::size_t chunk : {SIZE_MAX, std::size_t{3}}) {
        reset();
        CFailingOps dry(-1, chunk);
        {
            CUseOps use(dry);
            ASSERT_EQ(write(), RESULT_DONE);
        }
        const auto last = std::find(dry.m_ops.begin(), dry.m_ops.end(), lastOp);
        ASSERT_NE(last, dry.m_ops.end());
        for (std::size_t k = 0; k < dry.m_ops.size(); ++k) {
            SCOPED_TRACE("failing " + dry.m_ops[k] + " #" + std::to_string(k) + ", chunk " +
                         std::to_string(chunk));
            reset();
            CFailingOps ops(static_cast<int>(k), chunk);
            int result;
            {
                CUseOps use(ops);
                result = write();
            }
            check(result, k > static_cast<std::size_t>(last - dry.m_ops.begin()));
        }
    }
    EXPECT_EQ(OpenDescriptors(), descriptors);
}

TEST(FileWriter, ReplaceFileWritesAndKeepsThePermissionBits) {
    CTempFolder folder;
    const std::string path = folder / "target.inf";
    for (mode_t mode : {0640, 0600, 0604, 0750}) {
        WriteBytes(path, "old contents");
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        EXPECT_EQ(ReplaceFile(path, "new\r\n"), RESULT_DONE);
        EXPECT_EQ(ReadBytes(path), "new\r\n");
        EXPECT_EQ(ModeOf(path), mode);
    }
    EXPECT_EQ(ReplaceFile(path, ""), RESULT_DONE);
    EXPECT_EQ(ReadBytes(path), "");
    EXPECT_EQ(ReplaceFile(folder / "fresh.inf", "x"), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "fresh.inf"), "x");
    EXPECT_EQ(folder.Names(), (Names{"fresh.inf", "target.inf"}));

    const std::string nowhere = folder / "missing/target.inf";
    EXPECT_EQ(ReplaceFile(nowhere, "x"), RESULT_CANNOT_WRITE);
    EXPECT_EQ(LastWriteError().rfind(nowhere + ": ", 0), 0u) << LastWriteError();
}

TEST(FileWriter, ReplaceFileWritesThroughSymbolicLinks) {
    CTempFolder folder;
    std::filesystem::create_directory(folder / "real");
    std::filesystem::create_directory(folder / "sub");
    WriteBytes(folder / "real/data.inf", "old");
    ::chmod((folder / "real/data.inf").c_str(), 0600);
    // top.inf -> (absolute) sub/link.inf -> (relative) ../real/data.inf
    ASSERT_EQ(::symlink("../real/data.inf", (folder / "sub/link.inf").c_str()), 0);
    ASSERT_EQ(::symlink((folder / "sub/link.inf").c_str(), (folder / "top.inf").c_str()), 0);
    ASSERT_EQ(::symlink("fresh.inf", (folder / "dangling.inf").c_str()), 0);

    EXPECT_EQ(ReplaceFile(folder / "top.inf", "new"), RESULT_DONE);
    EXPECT_EQ(ReplaceFile(folder / "dangling.inf", "made"), RESULT_DONE);
    EXPECT_TRUE(IsLink(folder / "top.inf"));
    EXPECT_TRUE(IsLink(folder / "sub/link.inf"));
    EXPECT_TRUE(IsLink(folder / "dangling.inf"));
    EXPECT_EQ(std::filesystem::read_symlink(folder / "sub/link.inf"), "../real/data.inf");
    EXPECT_EQ(ReadBytes(folder / "real/data.inf"), "new");
    EXPECT_EQ(ModeOf(folder / "real/data.inf"), 0600u);
    EXPECT_EQ(ReadBytes(folder / "fresh.inf"), "made");
    EXPECT_EQ(folder.Names(), (Names{"dangling.inf", "fresh.inf", "real", "sub", "top.inf"}));
    EXPECT_EQ(folder.Names("real"), Names{"data.inf"});
    EXPECT_EQ(folder.Names("sub"), Names{"link.inf"});
}

// A failure up to the rename leaves the old file byte for byte and no temporary file; the
// folder sync after the rename is not reported, since the new file is already whole.
TEST(FileWriter, ReplaceFileFailingAnyStepLeavesTheOldFile) {
    CTempFolder folder;
    const std::string path = folder / "game.inf";
    const std::string old = "old contents\r\n</F>";
    const std::string bytes = "new contents, long enough for several writes\r\n</F>";
    FailEachOperation(
        "rename", [&] { return ReplaceFile(path, bytes); },
        [&] {
            WriteBytes(path, old);
            ::chmod(path.c_str(), 0640);
        },
        [&](int result, bool afterRename) {
            EXPECT_EQ(result, afterRename ? RESULT_DONE : RESULT_CANNOT_WRITE);
            EXPECT_EQ(ReadBytes(path), afterRename ? bytes : old);
            EXPECT_EQ(ModeOf(path), 0640u);
            EXPECT_EQ(folder.Names(), Names{"game.inf"});
            if (!afterRename) {
                EXPECT_EQ(LastWriteError().rfind(path + ": ", 0), 0u) << LastWriteError();
            }
        });
}

TEST(FileWriter, AppendToFileAppendsOrCreates) {
    CTempFolder folder;
    WriteBytes(folder / "a.tpl", "abc");
    EXPECT_EQ(AppendToFile(folder / "a.tpl", "def\r\n"), RESULT_DONE);
    EXPECT_EQ(AppendToFile(folder / "a.tpl", ""), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "a.tpl"), "abcdef\r\n");
    EXPECT_EQ(AppendToFile(folder / "b.tpl", "xyz"), RESULT_DONE);
    EXPECT_EQ(ReadBytes(folder / "b.tpl"), "xyz");
    ASSERT_EQ(::symlink("a.tpl", (folder / "link.tpl").c_str()), 0);
    EXPECT_EQ(AppendToFile(folder / "link.tpl", "ghi"), RESULT_DONE);
    EXPECT_TRUE(IsLink(folder / "link.tpl"));
    EXPECT_EQ(ReadBytes(folder / "a.tpl"), "abcdef\r\nghi");
}

// Whatever step fails, the file is as it was: its old bytes, or no file when there was none
// (behind a link to a missing file, the link stays and no file is left behind it).
TEST(FileWriter, FailingAppendLeavesTheFileAsItWas) {
    enum Start { kExisting, kMissing, kDanglingLink };
    for (Start start : {kExisting, kMissing, kDanglingLink}) {
        SCOPED_TRACE("start " + std::to_string(start));
        CTempFolder folder;
        const std::string path = folder / "templates.tpl";
        FailEachOperation(
            "close", [&] { return AppendToFile(path, "appended line\r\n"); },
            [&] {
                std::filesystem::remove(path);
                std::filesystem::remove(folder / "behind.tpl");
                if (start == kExisting) {
                    WriteBytes(path, "first\r\n");
                } else if (start == kDanglingLink) {
                    ASSERT_EQ(::symlink("behind.tpl", path.c_str()), 0);
                }
            },
            [&](int result, bool) {
                EXPECT_EQ(result, RESULT_CANNOT_WRITE);
                EXPECT_EQ(LastWriteError().rfind(path + ": ", 0), 0u) << LastWriteError();
                EXPECT_EQ(folder.Names(), start == kMissing ? Names{} : Names{"templates.tpl"});
                if (start == kExisting) {
                    EXPECT_EQ(ReadBytes(path), "first\r\n");
                }
            });
    }
}

}  // namespace
