// harnwick-cli's commands, run in process on the sample workspace and on files of tests/data/cli,
// with every exit status.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "RunCli.h"
#include "TempFolder.h"

namespace {

const std::string kSample = HW_SAMPLE_DIR "/";
const std::string kData = HW_TEST_DATA "/";

class Cli : public ::testing::Test {
protected:
    CTempFolder m_folder;
};

// The tree lists key, type, kind, name, cost and men; check lists every problem once, on the
// output only, and exits with 4; diff names entries by path, wherever an insertion moved them,
// lists the fewest siblings that explain a new order, and exits with 5 when the files differ.
TEST_F(Cli, TreeCheckAndDiffPrintWhatTheirFilesHold) {
    const std::string target = kData + "small.inf";
    const std::string cli = kData + "cli/";
    const std::vector<std::tuple<std::vector<std::string>, std::string, int>> cases = {
        {{"tree", target, cli + "tree.oob"}, "tree.txt", EXIT_DONE},
        {{"check", target, cli + "problems.oob"}, "problems.txt", EXIT_PROBLEMS},
        {{"diff", target, cli + "diff-before.oob", cli + "diff-after.oob"},
         "diff.txt",
         EXIT_DIFFERENT},
        {{"diff", target, cli + "diff-after.oob", cli + "diff-after.oob"},
         "no-differences.txt",
         EXIT_DONE},
    };
    for (const auto& [args, expected, status] : cases) {
        SCOPED_TRACE(::testing::PrintToString(args));
        const CliRun run = RunCli(args);
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.out, ReadBytes(cli + expected));
        EXPECT_EQ(run.err, "");
    }
}

TEST_F(Cli, SaveAndTargetWriteTheSampleBackByteForByte) {
    EXPECT_EQ(
        RunCli({"save", kSample + "valdoria.inf", kSample + "valdoria.oob", m_folder / "o"}).status,
        EXIT_DONE);
    EXPECT_EQ(ReadBytes(m_folder / "o"), ReadBytes(kSample + "valdoria.oob"));
    const CliRun run = RunCli({"target", kSample + "valdoria.inf", m_folder / "t.inf"});
    EXPECT_EQ(run.status, EXIT_DONE);
    EXPECT_EQ(ReadBytes(m_folder / "t.inf"), ReadBytes(kSample + "valdoria.inf"));
}

// The records added for an unknown type and weapon are saved with the target file, with the
// class --unknown-class gives, and the order of battle reads against it without a question.
// Options may stand anywhere.
TEST_F(Cli, SaveWritesTheTargetWithTheRecordsAddedWhileReading) {
    const std::string line = "U 12 5 Jaeger Rifle 3 0 7 Light Company";
    const std::string oob = m_folder / "j.oob";
    WriteBytes(oob, "3\r\n" + line + "\r\n");
    const std::string target = m_folder / "j.inf";
    const CliRun run = RunCli({"--unknown-class", "2", "save", kSample + "valdoria.inf",
                               "--target-out", target, oob, m_folder / "out.oob"});
    ASSERT_EQ(run.status, EXIT_DONE);
    const std::string said = "harnwick-cli: " + oob + ": Entry : " + line;
    EXPECT_EQ(run.err, said + " Uknown unit type : [Jaeger]\n" + said +
                           " Uknown weapon type : [Rifle] for unit type [Jaeger]\n");
    EXPECT_EQ(ReadBytes(m_folder / "out.oob"), ReadBytes(oob));
    const std::string saved = ReadBytes(target);
    EXPECT_NE(saved.find("</C>\r\n\t2|Jaeger|0|Unit type Jaeger|\r\n\t\tRifle|0|Weapon type "
                         "Rifle|\r\n\t\t</W>\r\n\t1|LineInf|"),
              std::string::npos)
        << saved;
    const CliRun check = RunCli({"check", target, oob});
    EXPECT_EQ(check.status, EXIT_DONE);
    EXPECT_EQ(check.out, "0 problems found\n");
}

// Input that does not open exits with 1 naming it, and writes nothing; bad usage exits with 2.
TEST_F(Cli, InputThatDoesNotOpenExitsWithOneAndBadUsageWithTwo) {
    const std::string target = kSample + "valdoria.inf";
    const std::string oob = kSample + "valdoria.oob";
    const std::string none = m_folder / "none";
    const std::vector<std::pair<int, std::vector<std::string>>> cases = {
        {EXIT_CANNOT_OPEN, {"tree", none, oob}},
        {EXIT_CANNOT_OPEN, {"check", none, oob}},
        {EXIT_CANNOT_OPEN, {"new", none, m_folder / "o"}},
        {EXIT_CANNOT_OPEN, {"tree", target, none}},
        {EXIT_CANNOT_OPEN, {"save", target, none, m_folder / "o"}},
        {EXIT_CANNOT_OPEN, {"diff", target, oob, none}},
        {EXIT_USAGE, {}},
        {EXIT_USAGE, {"frob", "a", "b"}},
        {EXIT_USAGE, {"tree", "a"}},
        {EXIT_USAGE, {"diff", "a", "b"}},
        {EXIT_USAGE, {"tree", "a", "b", "c"}},
        {EXIT_USAGE, {"tree", "a", "b", "--unknown-class", "7"}},
        {EXIT_USAGE, {"tree", "a", "b", "--unknown-class"}},
        {EXIT_USAGE, {"check", "a", "b", "--target-out", "c"}},
        {EXIT_USAGE, {"tree", "a", "b", "--verbose"}},
    };
    for (const auto& [status, args] : cases) {
        SCOPED_TRACE(::testing::PrintToString(args));
        const CliRun run = RunCli(args);
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.out, "");
        if (status == EXIT_CANNOT_OPEN) {
            EXPECT_EQ(run.err, "harnwick-cli: cannot open " + none + "\n");
        } else {
            EXPECT_NE(run.err, "");
        }
    }
    EXPECT_TRUE(m_folder.Names().empty());
}

}  // namespace
