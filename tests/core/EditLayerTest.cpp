// The edit layer under random sequences of its commands and of the window's tree commands built on
// it, on the sample order of battle and on one of 10^4 entries: undoing every step gives back each
// earlier state (bytes, entry count, status fields, clipboard mark), redoing gives the later bytes
// again, and the order-of-battle field reads " " exactly at the step that was saved.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "SmallGameData.h"
#include "TempFolder.h"
#include "base/Result.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "model/GameImport.h"
#include "model/NewItems.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Session.h"
#include "model/TreeCommands.h"
#include "model/Workspace.h"

namespace {

const std::string kSample = HW_SAMPLE_DIR "/";

struct CState {
    std::string text;
    std::size_t count = 0;
    CClipMark mark;
    bool operator==(const CState&) const = default;
};

class EditLayerTest : public ::testing::Test {
protected:
    // Opens the sample's target file with oobText as the order of battle.
    void Open(const std::string& oobText) {
        WriteBytes(folder / "army.oob", oobText);
        auto workspace = std::make_unique<CWorkspace>();
        workspace->m_strOobFile = folder / "army.oob";
        session.Open(std::move(workspace), session.LoadDatabase(kSample + "valdoria.inf"));
    }

    CState State() {
        const std::size_t walked = Entries().size();
        EXPECT_EQ(walked, session.Tree().GetCount());
        return {session.Document()->m_writer.ToText(session.Tree()), walked, session.Mark()};
    }

    std::vector<HTREEITEM> Entries() {
        std::vector<HTREEITEM> entries;
        for (CTreeWalk walk(session.Tree(), nullptr); !walk.Done(); walk.Step()) {
            entries.push_back(walk.Current());
        }
        return entries;
    }

    // One random command, most of them the window's tree commands; it may change nothing (a
    // move into its own subtree, a paste the level rule refuses).
    void RandomCommand(std::mt19937& random) {
        const std::vector<HTREEITEM> entries = Entries();
        auto any = [&] { return entries[random() % entries.size()]; };
        CEditLayer& edit = session.Edit();
        const HTREEITEM target = entries.empty() ? nullptr : any();
        switch (entries.empty() ? 11 : random() % 12) {
            case 0:
                if (PasteChild(session, target)) {
                    break;
                }
                [[fallthrough]];
            case 1:
                if (PasteNext(session, target)) {
                    break;
                }
                [[fallthrough]];
            case 2:
                DeleteEntry(session, target);
                break;
            case 3:
                edit.Move(target, any(), random() % 2 ? TVI_FIRST : TVI_LAST);
                break;
            case 4:
                RenameEntry(session, target, "Renamed " + std::to_string(random() % 100));
                break;
            case 5: {
                auto edited = ItemOf(session.Tree(), target)->Clone();
                edited->m_strName += " (edited)";
                edit.ReplaceFields(target, std::move(edited));
                break;
            }
            case 6:
                DeleteChildren(session, target);
                break;
            case 7:
            case 8: {  // a unit, leader, supply train or structure of the sample's types
                const std::size_t kind = random() % 4;
                const char* const types[] = {"Dragoons", "3", "S ", "D "};
                const auto place = random() % 2 ? AddChildPlace(session.Tree(), target)
                                                : AddNextPlace(session.Tree(), target);
                auto* type = session.Database()->m_Types.FindByKey(types[kind]);
                if (place) {
                    AddEntry(session, *place,
                             NewItem(*session.Database(), static_cast<NewKind>(kind),
                                     static_cast<CTypeRecord&>(*type)));
                }
                break;
            }
            case 9:
                edit.ChangeTree([&](CTreeStore& tree) {
                    return ImportGameData(kSample + "valdoria.btl", tree, IMPORT_ZERO_MISSING);
                });
                break;
            default:
                edit.ReplaceTree([&](CTreeStore& tree) {
                    return session.Document()->LoadTree(kSample + "frontier.oob", tree);
                });
        }
    }

    // steps commands, the tree saved after the saveAt-th and backed up after the backupAt-th;
    // then every step undone and redone.
    void CheckSequence(unsigned seed, std::size_t steps) {
        std::mt19937 random(seed);
        const std::size_t saveAt = steps / 3;
        const std::size_t backupAt = steps / 2;
        std::vector<CState> before;  // the state each step found
        std::vector<CState> after;
        while (session.Edit().UndoCount() < steps) {
            const std::size_t done = session.Edit().UndoCount();
            if (done == saveAt && session.OobStatus() == std::string("*")) {
                ASSERT_EQ(session.SaveOobAs(folder / "saved.oob"), RESULT_DONE);
            }
            if (done == backupAt) {
                session.Edit().MarkBackedUp();
            }
            const std::vector<HTREEITEM> entries = Entries();
            if (!entries.empty() && random() % 4 == 0) {  // Copy or Cut now and then
                MarkEntry(session, entries[random() % entries.size()],
                          random() % 2 ? ClipMode::Copy : ClipMode::Cut);
            }
            CState found = State();
            RandomCommand(random);
            if (session.Edit().UndoCount() > done) {
                before.push_back(std::move(found));
                after.push_back(State());
            }
        }
        for (std::size_t k = steps; k-- > 0;) {
            SCOPED_TRACE("undo to " + std::to_string(k));
            session.Edit().Undo();
            EXPECT_EQ(State(), before[k]);
            EXPECT_EQ(session.OobStatus() == std::string(" "), k == saveAt);
            EXPECT_EQ(session.BackupStatus() == std::string(" "), k == backupAt);
        }
        EXPECT_FALSE(session.Edit().CanUndo());
        for (std::size_t k = 0; k < steps; ++k) {
            SCOPED_TRACE("redo to " + std::to_string(k + 1));
            session.Edit().Redo();
            EXPECT_EQ(State().text, after[k].text);
            EXPECT_EQ(session.OobStatus() == std::string(" "), k + 1 == saveAt);
        }
        EXPECT_FALSE(session.Edit().CanRedo());
    }

    CTempFolder folder;
    CRecordingPrompts prompts;
    CSession session{prompts};
};

TEST_F(EditLayerTest, RandomCommandsOnTheSampleUndoAndRedoExactly) {
    Open(ReadBytes(kSample + "valdoria.oob"));
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        CheckSequence(seed, 40);
        session.Edit().Reset();
    }
}

TEST_F(EditLayerTest, RandomCommandsOnTenThousandEntriesUndoAndRedoExactly) {
    const std::string sample = ReadBytes(kSample + "valdoria.oob");
    const std::string body = sample.substr(sample.find('\n') + 1);
    std::string big = "3\r\n";
    while (std::count(big.begin(), big.end(), '\n') < 14000) {
        big += body;
    }
    Open(big);
    ASSERT_GE(session.Tree().GetCount(), 10000u);
    CheckSequence(42, 30);
}

// Undoing past a save and then giving a new command leaves the saved state unreachable. The
// history keeps the last 100 steps; the oldest drop off.
TEST_F(EditLayerTest, TheSavedStateGoesWithTheStepsThatLedToIt) {
    Open(ReadBytes(kSample + "valdoria.oob"));
    CEditLayer& edit = session.Edit();
    const HTREEITEM root = session.Tree().GetRootItem();
    edit.Rename(root, "A");
    edit.Rename(root, "B");
    ASSERT_EQ(session.SaveOobAs(folder / "saved.oob"), RESULT_DONE);
    edit.Undo();
    edit.Rename(root, "C");
    EXPECT_FALSE(edit.CanRedo());
    EXPECT_STREQ(session.OobStatus(), "*");
    for (int i = 0; i < 120; ++i) {
        edit.Rename(root, std::to_string(i));
    }
    EXPECT_EQ(edit.UndoCount(), CEditLayer::kMaxSteps);
    while (edit.CanUndo()) {
        edit.Undo();
        EXPECT_STREQ(session.OobStatus(), "*");
    }
    EXPECT_EQ(session.Tree().GetItemText(root), "19");
}

}  // namespace
