// A save of a large order of battle over an old one, killed at points spread over its run: the
// file then holds exactly the old bytes or exactly the new ones, never a mix or a torn end.
// Left out of the sanitizer run (tests/CMakeLists.txt), where 200 saves take too long.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <thread>

#include "TempFolder.h"
#include "base/Result.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kKills = 200;
constexpr int kCopies = 25;  // of the sample's armies in the large order of battle

struct CSaveRun {
    bool killed;              // the kill came before the child ended
    Clock::duration elapsed;  // from the save's start to its end, or to the kill
};

// Saves tree to path in a child process, killed delay after the save starts (never when no
// delay is given). The child tells the start and the end of the save through a pipe.
CSaveRun SaveInChild(COobDocument& document, const CTreeStore& tree, const std::string& path,
                     std::optional<Clock::duration> delay) {
    int started[2];
    EXPECT_EQ(::pipe(started), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(started[0]);
        const bool saved = ::write(started[1], "s", 1) == 1 &&
                           document.Save(path, tree) == RESULT_DONE &&
                           ::write(started[1], "e", 1) == 1;
        ::_exit(saved ? 0 : 1);
    }
    ::close(started[1]);
    char byte;
    EXPECT_EQ(::read(started[0], &byte, 1), 1);
    const Clock::time_point start = Clock::now();
    if (delay) {
        std::this_thread::sleep_for(*delay);
        ::kill(child, SIGKILL);
    } else {
        EXPECT_EQ(::read(started[0], &byte, 1), 1);
    }
    const Clock::duration elapsed = Clock::now() - start;
    ::close(started[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || (WIFEXITED(status) && WEXITSTATUS(status) == 0));
    return {WIFSIGNALED(status), elapsed};
}

TEST(CrashSave, AKilledSaveLeavesTheOldOrTheNewFile) {
    CTempFolder folder;
    const std::string sample = HW_SAMPLE_DIR "/";
    CGameDatabase database;
    ASSERT_EQ(database.Load(sample + "valdoria.inf"), RESULT_DONE);
    COobDocument document(&database);

    // The sample's armies many times over, as the new order of battle; the sample as the old.
    const std::string old = ReadBytes(sample + "valdoria.oob");
    const std::size_t body = old.find('\n') + 1;
    std::string large = old.substr(0, body);
    for (int i = 0; i < kCopies; ++i) {
        large += old.substr(body);
    }
    const std::string path = folder / "army.oob";
    WriteBytes(path, large);
    CTreeStore tree;
    ASSERT_EQ(document.LoadTree(path, tree), RESULT_DONE);
    ASSERT_EQ(document.Save(path, tree), RESULT_DONE);
    const std::string bytes = ReadBytes(path);
    ASSERT_GT(bytes.size(), 300000u);

    // The kills spread over the first four fifths of the quickest of five saves, so that most of
    // them land before the save ends, while some still come after the rename. A round timed
    // while the machine was busy lets the saves outrun the kills: it is timed and run again.
    int landed = 0;
    for (int round = 0; round < 3 && landed < kKills / 2; ++round) {
        std::vector<Clock::duration> runs;
        for (int i = 0; i < 5; ++i) {
            runs.push_back(SaveInChild(document, tree, path, std::nullopt).elapsed);
            WriteBytes(path, old);
        }
        const Clock::duration run = *std::min_element(runs.begin(), runs.end());
        landed = 0;
        for (int i = 0; i < kKills; ++i) {
            const CSaveRun killed = SaveInChild(document, tree, path, run * 4 * i / (5 * kKills));
            const std::string found = ReadBytes(path);
            EXPECT_TRUE(found == old || found == bytes) << "kill " << i << " left " << found.size();
            landed += killed.killed;
            // A killed save leaves its temporary file; the next save starts from the old file.
            for (const std::string& name : folder.Names()) {
                std::filesystem::remove(folder / name);
            }
            WriteBytes(path, old);
        }
    }
    EXPECT_GE(landed, kKills / 2) << "the saves ended before most kills";
}

}  // namespace
