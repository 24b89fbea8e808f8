// The File commands driven as a user would: Load, the three New commands, Save and the click on
// the status field, Save as and Properties, on a copy of the sample workspace in a fresh folder.
#include <gtest/gtest.h>

#include <filesystem>

#include "MainWindowFixture.h"
#include "gamedata/GameRecords.h"
#include "model/Workspace.h"

namespace {

// Load shows the sample's order of battle. A No, a cancelled chooser or a cancelled "Workspace
// Properties" at any step then leaves the open workspace, its tree and the status fields as they
// were; so does New attached with a target file that lists no attached order of battle to base
// the new one on.
TEST_F(FileCommandsTest, LoadShowsTheWorkspaceAndACancelledStepKeepsIt) {
    WriteBytes(folder / "none.inf", WithReplaced(ReadBytes(folder / "valdoria.inf"),
                                                 "\tfrontier.oob|Frontier Skirmish|\r\n", ""));
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt", [](CHeadlessUser& ws) {
            EXPECT_EQ(ws.Text(IDC_WS_TITLE), "Valdorian Campaign");
            EXPECT_EQ(ws.Text(IDC_WS_OOB_FILE), "valdoria.oob");
            EXPECT_EQ(ws.Text(IDC_WS_TARGET_FILE), "valdoria.inf");
            EXPECT_EQ(ws.Check(IDC_WS_UNIT_PICTURES_ON), 1);
            EXPECT_FALSE(ws.IsEnabled(IDC_WS_OOB_PICK));
            EXPECT_FALSE(ws.IsEnabled(IDC_WS_TARGET_PICK));
        });
        EXPECT_EQ(main.m_session.Document()->m_writer.ToText(main.m_tree),
                  ReadBytes(folder / "valdoria.oob"));
        const CWorkspace* workspace = main.m_session.Workspace();
        ASSERT_EQ(workspace->m_strPath, folder / "harnwick.txt");
        const std::vector<std::string> labels = Labels(main.m_tree);
        ExpectStatus(user, " ", "*");
        // The command's question answered No, or Yes and its first file chooser cancelled.
        auto answered = [&](int command, const char* question, bool yes) -> Script {
            return [=, this](CHeadlessUser& u) {
                ui.AnswerMessage(question, yes ? IDYES : IDNO);
                if (yes) {
                    ui.CancelFileDialog();
                }
                u.Command(command);
            };
        };
        const std::vector<Script> cancels = {
            answered(ID_FILE_LOAD, "Do you want to load an existing workspace?", false),
            answered(ID_FILE_LOAD, "Do you want to load an existing workspace?", true),
            answered(ID_FILE_NEW_EMPTY, "Do you want to make a new, empty Order of Battle?", true),
            answered(ID_FILE_NEW_ATTACHED,
                     "Do you want to make a new Order of Battle basing on an attached one?", false),
            answered(ID_FILE_SAVE_AS, "Do you want to save your workspace under a new name?", true),
            [&](CHeadlessUser& u) {
                ui.AnswerMessage("Do you want to edit an existing Order of Battle?", IDYES);
                ui.AnswerFileDialog(folder / "other.txt");
                ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) { ws.Escape(); });
                u.Command(ID_FILE_NEW_EXISTING);
            },
            [&](CHeadlessUser& u) {
                ui.OnDialog(IDD_ATTACHED, [](CHeadlessUser& attached) {
                    EXPECT_EQ(attached.Lines(IDC_CHOICE_LIST).GetCount(), 0);
                    attached.Click(IDC_CHOICE_ACCEPT);
                });
                New(u, ID_FILE_NEW_ATTACHED, folder / "attached.txt", folder / "copy.oob",
                    folder / "none.inf");
            },
        };
        for (const Script& cancel : cancels) {
            cancel(user);
            EXPECT_EQ(main.m_session.Workspace(), workspace);
            EXPECT_EQ(Labels(main.m_tree), labels);
            ExpectStatus(user, " ", "*");
        }
    });
    EXPECT_FALSE(std::filesystem::exists(folder / "other.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder / "copy.oob"));
}

TEST_F(FileCommandsTest, NewEmptyWritesTheSkeletonOfTheTargetAndShowsIt) {
    // What the core writes for the sample's game data.
    CGameDatabase database;
    database.Load(folder / "valdoria.inf");
    ASSERT_EQ(CSession::WriteSkeleton(database, folder / "expected.oob"), 0);
    const std::string skeleton = ReadBytes(folder / "expected.oob");
    ASSERT_EQ(skeleton.rfind("3\r\nA Army\r\n\tBegin\r\n", 0), 0u);

    Run([&](CHeadlessUser& user, CMainDlg& main) {
        New(user, ID_FILE_NEW_EMPTY, folder / "new", folder / "fresh", folder / "valdoria.inf", {},
            [](CHeadlessUser& ws) {
                EXPECT_EQ(ws.Text(IDC_WS_TITLE), "New Order of Battle");
                EXPECT_TRUE(ws.IsEnabled(IDC_WS_OOB_PICK));
            });
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(main.m_session.Document()->m_writer.ToText(main.m_tree), skeleton);
    });
    EXPECT_FALSE(ui.FileDialogs()[0].open || ui.FileDialogs()[1].open);  // new names
    EXPECT_EQ(ui.FileDialogs()[1].initialDir, folder.Path());
    EXPECT_EQ(ReadBytes(folder / "fresh.oob"), skeleton);
    EXPECT_EQ(ReadBytes(folder / "new.txt"),
              "New Order of Battle|\r\n" + folder / "fresh.oob" + "|\r\n|\r\n" +
                  folder / "valdoria.inf" +
                  "|\r\n0|empty|\r\n0|empty|\r\n0|empty|\r\n0|empty|\r\n0|empty|\r\n");
}

// Save writes only when the tree has changed; then it writes the order of battle and the
// workspace, and the order-of-battle status alone becomes " ". New and Load offer it first.
// Properties edits the open workspace and saves its file.
TEST_F(FileCommandsTest, SaveWritesOnlyAChangedTree) {
    const std::string sample = ReadBytes(folder / "valdoria.oob");
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        static_cast<COobItem*>(main.m_tree.GetItemData(main.m_tree.GetRootItem()))->m_strName =
            "First Army";
        user.Command(ID_FILE_SAVE);  // status " ": nothing happens, nothing is shown
        user.Click(IDC_OOB_STATUS);
        EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), sample);

        EditTree(main);
        WriteBytes(folder / "harnwick.txt", "");
        ui.AnswerMessage("Do you want to save your files?", IDNO);
        user.Click(IDC_OOB_STATUS);
        ExpectStatus(user, "*", "*");
        EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), sample);

        ui.AnswerMessage("Do you want to save your files?", IDYES);
        user.Click(IDC_OOB_STATUS);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(ReadBytes(folder / "valdoria.oob"),
                  WithReplaced(sample, "A Royal Army of Valdoria", "A First Army"));
        EXPECT_EQ(ReadBytes(folder / "harnwick.txt"),
                  ReadBytes(std::string(HW_SAMPLE_DIR) + "/harnwick.txt"));

        EditTree(main);
        ui.AnswerMessage("Do you want to load an existing workspace?", IDYES);
        ui.AnswerMessage("Do you want to save your files?", IDNO);
        ui.CancelFileDialog();
        user.Command(ID_FILE_LOAD);
        ExpectStatus(user, "*", "*");
        ui.AnswerMessage("Do you want to make a new, empty Order of Battle?", IDYES);
        ui.AnswerMessage("Do you want to save your files?", IDYES);
        ui.CancelFileDialog();
        user.Command(ID_FILE_NEW_EMPTY);
        ExpectStatus(user, " ", "*");

        ui.OnDialog(IDD_WORKSPACE, [](CHeadlessUser& ws) {
            EXPECT_FALSE(ws.IsEnabled(IDC_WS_OOB_PICK));
            ws.Type(IDC_WS_TITLE, "Valdorian Campaign, second year");
            ws.Click(IDC_WS_LEADER_FACES_ON);  // on: off, and its path forgotten
            ws.Click(IDC_WS_ACCEPT);
        });
        user.Command(ID_FILE_PROPERTIES);
        ExpectStatus(user, " ", "*");
    });
    EXPECT_EQ(ReadBytes(folder / "harnwick.txt"),
              WithReplaced(WithReplaced(ReadBytes(std::string(HW_SAMPLE_DIR) + "/harnwick.txt"),
                                        "Valdorian Campaign|", "Valdorian Campaign, second year|"),
                           "1|leaders.bmp|", "0|empty|"));
}

// The sample's attached order of battle names its file relative to the current folder. The
// copy is byte for byte: CR LF and bare LF lines, a last line without a line end. A missing
// attached file: the message naming it, then no workspace at all, the state the window starts
// in (whose test shows every workspace command inactive); the new workspace file stays on disk.
TEST_F(FileCommandsTest, NewAttachedCopiesTheChosenFileOrLeavesNoWorkspace) {
    const std::string odd = "3\r\nA Odd Army\n\tBegin\r\n\tEnd\r\nDEP 6 0 Last depot";
    WriteBytes(folder / "frontier.oob", odd);
    WriteBytes(folder / "copy.oob", "an older file, much longer than the copy\r\n");
    WriteBytes(folder / "broken.inf",
               WithReplaced(ReadBytes(folder / "valdoria.inf"), "frontier.oob|", "lost/gone.oob|"));
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        const Script pick = [](CHeadlessUser& attached) {
            EXPECT_EQ(attached.Lines(IDC_CHOICE_LIST).GetCount(), 1);
            EXPECT_EQ(attached.Lines(IDC_CHOICE_LIST).GetText(0), "Frontier Skirmish");
            attached.Click(IDC_CHOICE_ACCEPT);
        };
        ui.OnDialog(IDD_ATTACHED, pick);
        New(user, ID_FILE_NEW_ATTACHED, folder / "attached.txt", folder / "copy.oob",
            "valdoria.inf");
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(Labels(main.m_tree), (std::vector<std::string>{"Odd Army"}));

        main.m_session.Mark(main.m_tree.GetRootItem(), ClipMode::Copy);
        main.UpdateData(false);
        ui.OnDialog(IDD_ATTACHED, pick);
        New(user, ID_FILE_NEW_ATTACHED, folder / "lost.txt", folder / "lost.oob",
            folder / "broken.inf", {"Bad or missing lost/gone.oob file!"});
        ExpectStatus(user, "-", "-");
        EXPECT_EQ(main.m_tree.GetCount(), 0u);
        EXPECT_EQ(main.m_session.Workspace(), nullptr);
        EXPECT_EQ(main.m_session.Database(), nullptr);
        EXPECT_EQ(main.m_session.Mark(), CClipMark{});
        EXPECT_EQ(user.Text(IDC_MARKED_CAPTION), "Marked item");
    });
    EXPECT_EQ(ReadBytes(folder / "copy.oob"), odd);
    EXPECT_TRUE(std::filesystem::exists(folder / "lost.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder / "lost.oob"));
}

TEST_F(FileCommandsTest, SaveAsWritesTheWorkspaceUnderTheNewNameOnly) {
    const std::string sample = ReadBytes(folder / "valdoria.oob");
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        EditTree(main);
        ui.AnswerMessage("Do you want to save your workspace under a new name?", IDYES);
        ui.AnswerFileDialog(folder / "renamed");
        user.Command(ID_FILE_SAVE_AS);
        EXPECT_EQ(main.m_session.Workspace()->m_strPath, folder / "renamed.txt");
        ExpectStatus(user, "*", "*");

        ui.AnswerMessage("Do you want to save your workspace under a new name?", IDYES);
        ui.AnswerFileDialog(folder / "missing/elsewhere.txt");
        ui.AnswerMessage(IDOK);
        user.Command(ID_FILE_SAVE_AS);
        EXPECT_EQ(main.m_session.Workspace()->m_strPath, folder / "renamed.txt");
    });
    EXPECT_EQ(ReadBytes(folder / "renamed.txt"), ReadBytes(folder / "harnwick.txt"));
    EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), sample);
    EXPECT_EQ(ui.Messages()[3].text.rfind("Cannot write " + folder / "missing/elsewhere.txt", 0),
              0u);
}

// New, existing reads the chosen file, which must exist, and writes nothing. A unit of a type the
// game data lacks: the reader's "Warning!" messages, then "Select unit class" with the unit's
// line; the answer becomes the new type's class. (Each answer's class: the dialog's own test and
// the reader's.)
TEST_F(FileCommandsTest, NewExistingReadsTheChosenFileAskingAboutAnUnknownUnitType) {
    const std::string line = "U 26 4 Zouaves Musket 3 0 2 Zouave Company";
    const std::string odd = "3\r\nA Odd Army\r\n\tBegin\r\n\t" + line + "\r\n\tEnd\r\n";
    WriteBytes(folder / "odd.oob", odd);
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        ui.OnDialog(IDD_UNIT_CLASS, [&](CHeadlessUser& question) {
            EXPECT_EQ(question.Text(IDC_CLASS_LINE), line);
            question.Click(IDC_CLASS_ARTILLERY);
        });
        New(user, ID_FILE_NEW_EXISTING, folder / "odd.txt", folder / "odd.oob",
            folder / "valdoria.inf",
            {"Entry : " + line + "\nUknown unit type : [Zouaves]",
             "Entry : " + line + "\nUknown weapon type : [Musket] for unit type [Zouaves]"});
        const auto& type =
            static_cast<const CTypeRecord&>(*main.m_session.Database()->m_Types.Head()->m_pPayload);
        EXPECT_EQ(type.m_strType, "Zouaves");
        EXPECT_EQ(type.ClassCode(), 3);
        ExpectStatus(user, " ", "*");
        EXPECT_EQ(Labels(main.m_tree), (std::vector<std::string>{"Odd Army", " Zouave Company"}));
    });
    EXPECT_TRUE(ui.FileDialogs()[1].open);
    EXPECT_EQ(ReadBytes(folder / "odd.oob"), odd);
}
}  // namespace
