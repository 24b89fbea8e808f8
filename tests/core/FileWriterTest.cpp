#include "base/FileWriter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "FailingFileOps.h"
#include "TempFolder.h"
#include "base/Result.h"

namespace {

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

// Replacing keeps the permission bits: see the faults' dry runs below.
TEST(FileWriter, ReplaceFileWritesEmptyFilesAndRefusesFolders) {
    CTempFolder folder;
    const std::string path = folder / "target.inf";
    WriteBytes(path, "old contents");
    EXPECT_EQ(ReplaceFile(path, ""), RESULT_DONE);
    EXPECT_EQ(ReadBytes(path), "");
    std::filesystem::create_directory(folder / "sub");

    // Neither a missing folder nor a folder standing where the file should be is written.
    for (const std::string& bad : {folder / "missing/target.inf", folder / "sub"}) {
        const CWriteResult result = ReplaceFile(bad, "x");
        EXPECT_EQ(result, RESULT_CANNOT_WRITE);
        EXPECT_EQ(result.error.rfind(bad + ": ", 0), 0u) << result.error;
    }
    EXPECT_EQ(folder.Names(), (Names{"sub", "target.inf"}));
    EXPECT_EQ(folder.Names("sub"), Names{});
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
    for (const char* link : {"top.inf", "sub/link.inf", "dangling.inf"}) {
        EXPECT_TRUE(IsLink(folder / link)) << link;
    }
    EXPECT_EQ(std::filesystem::read_symlink(folder / "sub/link.inf"), "../real/data.inf");
    EXPECT_EQ(ReadBytes(folder / "real/data.inf"), "new");
    EXPECT_EQ(ModeOf(folder / "real/data.inf"), 0600u);
    EXPECT_EQ(ReadBytes(folder / "fresh.inf"), "made");
    EXPECT_EQ(folder.Names(), (Names{"dangling.inf", "fresh.inf", "real", "sub", "top.inf"}));
    EXPECT_EQ(folder.Names("real"), Names{"data.inf"});
    EXPECT_EQ(folder.Names("sub"), Names{"link.inf"});
}

// A device or a pipe is written into and stays what it is: no file takes its place.
TEST(FileWriter, ReplaceFileWritesIntoDevicesAndPipes) {
    CTempFolder folder;
    EXPECT_EQ(ReplaceFile("/dev/null", "report"), RESULT_DONE);
    struct stat st {};
    ASSERT_EQ(::stat("/dev/null", &st), 0);
    EXPECT_TRUE(S_ISCHR(st.st_mode));

    const std::string fifo = folder / "pipe";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] {
        std::ifstream in(fifo, std::ios::binary);
        received.assign(std::istreambuf_iterator<char>(in), {});
    });
    EXPECT_EQ(ReplaceFile(fifo, "through the pipe"), RESULT_DONE);
    reader.join();
    EXPECT_EQ(received, "through the pipe");
    EXPECT_EQ(folder.Names(), Names{"pipe"});

    // As /dev/stdout names a pipe a script reads: a link to a descriptor, not to a path.
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    EXPECT_EQ(ReplaceFile("/proc/self/fd/" + std::to_string(ends[1]), "to a descriptor"),
              RESULT_DONE);
    ::close(ends[1]);
    char buffer[64] = {};
    EXPECT_EQ(std::string(buffer, static_cast<std::size_t>(::read(ends[0], buffer, sizeof buffer))),
              "to a descriptor");
    ::close(ends[0]);
}

enum Start { kExisting, kMissing, kDanglingLink };

// Puts the folder back to start: templates.tpl with old bytes, no such file, or a link to a
// missing behind.tpl.
void Reset(const CTempFolder& folder, Start start, const std::string& old) {
    std::filesystem::remove(folder / "templates.tpl");
    std::filesystem::remove(folder / "behind.tpl");
    if (start == kExisting) {
        WriteBytes(folder / "templates.tpl", old);
        ::chmod((folder / "templates.tpl").c_str(), 0640);
    } else if (start == kDanglingLink) {
        ASSERT_EQ(::symlink("behind.tpl", (folder / "templates.tpl").c_str()), 0);
    }
}

struct FailCase {
    const char* name;
    Start start;
    bool append;
    bool noExchange;
    // The operations the write must make, a run of writes as one: the faults are made from the
    // operations a run asks for, so one it drops would never be failed.
    const char* ops;
};

// Whichever operation fails, alone or with all after it, the write reports it naming the file,
// leaves the file as it was (its old bytes with their mode, or no file behind the name) and no
// temporary file. On a file system that cannot exchange names a failed folder sync comes after
// the old file is gone: it is reported, and the new bytes stay.
TEST(FileWriter, FailingAnyOperationLeavesTheFileAsItWas) {
    const char* const replace = kReplaceOps;
    const char* const create = "open, write, fsync, close, open folder, rename, sync folder, close";
    const char* const append = "open, write, fsync, close";
    const std::vector<FailCase> cases = {
        {"replace", kExisting, false, false, replace},
        {"create", kMissing, false, false, create},
        {"create behind a link", kDanglingLink, false, false, create},
        // The exchange is refused, and a plain rename takes its place.
        {"replace without exchange", kExisting, false, true,
         "open, write, fchmod, fsync, close, open folder, rename, rename, sync folder, close"},
        {"append", kExisting, true, false, append},
        {"append to a new file", kMissing, true, false, append},
        {"append behind a link", kDanglingLink, true, false, append},
    };
    const std::string old = "old contents\r\n</F>";
    const std::string bytes = "new contents, long enough for several writes\r\n</F>";
    const std::size_t descriptors = OpenDescriptors();
    for (const FailCase& c : cases) {
        SCOPED_TRACE(c.name);
        CTempFolder folder;
        const std::string path = folder / "templates.tpl";
        auto write = [&] {
            return c.append ? AppendToFile(path, bytes) : ReplaceFile(path, bytes);
        };
        Reset(folder, c.start, old);
        const Names before = folder.Names();
        CFailingOps dry({}, 3);
        dry.m_bNoExchange = c.noExchange;
        ASSERT_EQ(WithOps(dry, write), RESULT_DONE);
        EXPECT_EQ(ReadBytes(path), c.append && c.start == kExisting ? old + bytes : bytes);
        EXPECT_EQ(Sequence(dry.m_ops), c.ops);
        if (c.start == kExisting) {
            EXPECT_EQ(ModeOf(path), 0640u);
        }
        std::size_t renamed = 0;  // the number of the rename that takes the old file away
        for (std::size_t i = 0; i < dry.m_ops.size(); ++i) {
            renamed = dry.m_ops[i] == "rename" ? i + 1 : renamed;
        }
        for (const CFault& fault : FaultsOf(dry.m_ops.size())) {
            SCOPED_TRACE(fault.Name(dry.m_ops));
            Reset(folder, c.start, old);
            CFailingOps ops(fault, 3);
            ops.m_bNoExchange = c.noExchange;
            const CWriteResult result = WithOps(ops, write);
            EXPECT_EQ(result, RESULT_CANNOT_WRITE);
            EXPECT_EQ(result.error.rfind(path + ": ", 0), 0u) << result.error;
            EXPECT_EQ(folder.Names(), before);
            if (c.start == kExisting) {
                EXPECT_EQ(ReadBytes(path), c.noExchange && fault.k > renamed ? bytes : old);
                EXPECT_EQ(ModeOf(path), 0640u);
            }
        }
    }
    EXPECT_EQ(OpenDescriptors(), descriptors);
}
}  // namespace
