// Every command of harnwick-cli that writes a file, with the last file operation of its write
// failing (the close of the folder, after the new file has taken the old one's place): the
// tool names the file and the reason on the error stream, exits with 3, and the old file is
// back.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "cli/CliCommands.h"
#include "cli/CliOptions.h"
#include "core/FailingFileOps.h"
#include "core/TempFolder.h"

namespace {

int RunTool(std::vector<std::string> args, std::string& err) {
    std::vector<char*> argv{const_cast<char*>("harnwick-cli")};
    for (std::string& arg : args) {
        argv.push_back(arg.data());
    }
    CCliOptions options;
    std::string error;
    EXPECT_TRUE(ParseCliOptions(static_cast<int>(argv.size()), argv.data(), options, error))
        << error;
    std::ostringstream out;
    std::ostringstream errors;
    const int status = RunCliCommand(options, out, errors);
    err = errors.str();
    return status;
}

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
        std::string err;
        CFailingOps dry;
        ASSERT_EQ(WithOps(dry, [&] { return RunTool(args, err); }), EXIT_DONE) << err;
        WriteBytes(out, "old");
        CFailingOps last({dry.m_ops.size(), false});
        EXPECT_EQ(WithOps(last, [&] { return RunTool(args, err); }), EXIT_CANNOT_WRITE);
        EXPECT_EQ(err, "harnwick-cli: cannot write " + out + ": Input/output error\n");
        EXPECT_EQ(ReadBytes(out), "old");
    }
}

}  // namespace
