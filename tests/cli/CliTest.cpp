// harnwick-cli's commands, run in process on the sample workspace and on files written by the
// tests, with every exit status.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RunCli.h"
#include "SmallGameData.h"
#include "TempFolder.h"

namespace {

const std::string kSample = HW_SAMPLE_DIR "/";

class Cli : public ::testing::Test {
protected:
    void SetUp() override {
        WriteBytes(m_strSmallTarget, [] {
            CGameDatabase db;
            LoadSmallGameData(db);
            return db.ToText();
        }());
    }
    std::string File(const std::string& name, const std::string& text) {
        WriteBytes(m_folder / name, text);
        return m_folder / name;
    }

    CTempFolder m_folder;
    const std::string m_strSmallTarget = m_folder / "small.inf";
};

TEST_F(Cli, TreeListsKeyTypeKindNameCostAndMen) {
    const std::string oob = File("a.oob",
                                 "3\r\nA Army of Norland\r\n\tBegin\r\n\tL 4 7 0 Marshal Orm\r\n"
                                 "\tB Iron Brigade\r\n\t\tBegin\r\n\t\tU 10 -3 Foot Musket 1 2 Old "
                                 "Guard\r\n\t\tEnd\r\n\tEnd\r\nDEP 6 4 Depot\r\n");
    const CliRun run = RunCli({"tree", m_strSmallTarget, oob});
    EXPECT_EQ(run.status, EXIT_DONE);
    EXPECT_EQ(run.out,
              "1.\t7\tArmy\tArmy of Norland\t500\t0\n"
              "1.1.\t4\tLeader\tMarshal Orm\t950\t1\n"
              "1.2.\t6\tBrigade\tIron Brigade\t250\t0\n"
              "1.2.1.\t0\tUnit\tOld Guard\t210\t50\n"
              "2.\t8\tDepot\tDepot\t60\t60\n");
    EXPECT_EQ(run.err, "");
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
    const std::string oob = File("j.oob", "3\r\n" + line + "\r\n");
    const std::string target = m_folder / "j.inf";
    const CliRun run = RunCli({"--unknown-class", "2", "save", kSample + "valdoria.inf",
                               "--target-out", target, oob, m_folder / "out.oob"});
    ASSERT_EQ(run.status, EXIT_DONE);
    EXPECT_EQ(run.err, "Warning!\nEntry : " + line + "\nUknown unit type : [Jaeger]\nWarning!\n" +
                           "Entry : " + line +
                           "\nUknown weapon type : [Rifle] for unit type [Jaeger]\n");
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

TEST_F(Cli, CheckListsEveryProblemAndExitsWithFour) {
    const std::string unit = "U 12 5 Jaeger Rifle 3 7 Light Company";
    const std::string oob = File("bad.oob", "3\nA Army of Norland\n\tBegin\n\t" + unit +
                                                "\n\tZed unknown line\n\tL 9 5 0 Nobody\n"
                                                "\tX 1 2 Stray\n\tEnd\n");
    const CliRun run = RunCli({"check", m_strSmallTarget, oob});
    EXPECT_EQ(run.status, EXIT_PROBLEMS);
    EXPECT_EQ(run.out, "Entry : " + unit + " Uknown unit type : [Jaeger]\n" + "Entry : " + unit +
                           " Uknown weapon type : [Rifle] for unit type [Jaeger]\n"
                           "line 5: no item kind: Zed unknown line\n"
                           "line 7: no item kind: X 1 2 Stray\n"
                           "1.2. Nobody: missing record: type base-type\n"
                           "5 problems found\n");
}

TEST_F(Cli, InputThatDoesNotOpenExitsWithOne) {
    const std::string target = kSample + "valdoria.inf";
    const std::string oob = kSample + "valdoria.oob";
    const std::string none = m_folder / "none";
    const std::vector<std::vector<std::string>> cases = {
        {"tree", none, oob},
        {"check", none, oob},
        {"new", none, m_folder / "o"},
        {"tree", target, none},
        {"save", target, none, m_folder / "o"},
    };
    for (const auto& args : cases) {
        const CliRun run = RunCli(args);
        EXPECT_EQ(run.status, EXIT_CANNOT_OPEN) << args[0];
        EXPECT_EQ(run.err, "harnwick-cli: cannot open " + none + "\n") << args[0];
        EXPECT_EQ(run.out, "");
    }
    EXPECT_TRUE(m_folder.Names() == std::vector<std::string>{"small.inf"});
}

TEST_F(Cli, BadUsageExitsWithTwo) {
    const std::vector<std::vector<std::string>> cases = {
        {},
        {"frob", "a", "b"},
        {"tree", "a"},
        {"tree", "a", "b", "c"},
        {"tree", "a", "b", "--unknown-class", "7"},
        {"tree", "a", "b", "--unknown-class"},
        {"check", "a", "b", "--target-out", "c"},
        {"tree", "a", "b", "--verbose"},
    };
    for (const auto& args : cases) {
        const CliRun run = RunCli(args);
        EXPECT_EQ(run.status, EXIT_USAGE) << ::testing::PrintToString(args);
        EXPECT_NE(run.err, "");
    }
}

}  // namespace
