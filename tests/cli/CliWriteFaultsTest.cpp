// Every command of harnwick-cli that writes a file, with the last file operation of its write
// failing (the close of the folder, after the new file has taken the old one's place): the
// tool names the file and the reason on the error stream, exits with 3, and the old file is
// back.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FailingFileOps.h"
#include "RunCli.h"
#include "TempFolder.h"

namespace {

TEST(CliWriteFaults, EveryWritingCommandReportsAFailedWriteAndExitsWithThree) {
    const std::string target = HW_SAMPLE_DIR "/valdoria.inf";
    const std::string oob = HW_SAMPLE_DIR "/valdoria.oob";
    CTempFolder folder;
    const std::string out = folder / "out";
    const std::vector<std::vector<std::string>> commands = {
        {"new", target, out},
        {"target", target, out},
        {"save", target, oob, out},
        {"save", target, oob, folder / "o.oob", "--target-out", out},
        {"report", "html", target, oob, out, "--costs"},
        {"report", "cost", target, oob, out},
        {"report", "leader", target, oob, out},
        {"report", "key", target, oob, out},
        {"import", target, oob, HW_SAMPLE_DIR "/valdoria.btl", out},
    };
    for (const std::vector<std::string>& args : commands) {
        SCOPED_TRACE(::testing::PrintToString(args));
        WriteBytes(out, "old");
        CFailingOps dry;
        const CliRun done = WithOps(dry, [&] { return RunCli(args); });
        ASSERT_EQ(done.status, EXIT_DONE) << done.err;
        WriteBytes(out, "old");
        CFailingOps last({dry.m_ops.size(), false});
        const CliRun failed = WithOps(last, [&] { return RunCli(args); });
        EXPECT_EQ(failed.status, EXIT_CANNOT_WRITE);
        EXPECT_EQ(failed.err, "harnwick-cli: cannot write " + out + ": Input/output error\n");
        EXPECT_EQ(ReadBytes(out), "old");
    }
}

}  // namespace
