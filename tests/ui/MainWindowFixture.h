// The fixture of the main window's tests: a copy of the sample workspace in a fresh folder named
// by START.INI, the user's configuration and state folders inside it, the main window run with a
// script, and the steps the File commands begin with.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "HeadlessTest.h"
#include "UiFolder.h"
#include "app/MainDlg.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "resources/ResourceIds.h"

using Script = std::function<void(CHeadlessUser&)>;

// The tree's labels in pre-order, each indented by its depth.
inline std::vector<std::string> Labels(const CTreeStore& tree) {
    std::vector<std::string> labels;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        labels.push_back(std::string(static_cast<std::size_t>(walk.Depth()), ' ') +
                         std::string(tree.GetItemText(walk.Current())));
    }
    return labels;
}

inline std::string WithReplaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

class MainWindowTest : public HeadlessTest {
protected:
    MainWindowTest() {
        for (const char* name :
             {"harnwick.txt", "valdoria.inf", "valdoria.oob", "frontier.oob", "valdoria.tpl"}) {
            std::filesystem::copy_file(std::string(HW_SAMPLE_DIR) + "/" + name, folder / name);
        }
        WriteBytes(folder / "START.INI", folder.Path() + "\r\n");
        ::setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
        ::setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1);
    }

    // Runs the main window with script, and quits it afterwards unless the script did; gives its
    // result.
    int Run(const std::function<void(CHeadlessUser&, CMainDlg&)>& script) {
        ui.OnDialog(IDD_HARNWICK_DIALOG, [&](CHeadlessUser& user) {
            script(user, static_cast<CMainDlg&>(user.Dialog()));
            if (user.Dialog().IsRunning()) {
                ui.AnswerMessage("Do you want to quit?", IDYES);
                user.Command(ID_FILE_EXIT);
            }
        });
        return dlg.DoModal();
    }

    // File, Load of path, accepted as it stands in "Workspace Properties" after check has looked
    // at the dialog.
    void Load(
        CHeadlessUser& user, const std::string& path, const Script& check = [](CHeadlessUser&) {}) {
        ui.AnswerMessage("Do you want to load an existing workspace?", IDYES);
        ui.AnswerFileDialog(path);
        ui.OnDialog(IDD_WORKSPACE, [check](CHeadlessUser& ws) {
            check(ws);
            ws.Click(IDC_WS_ACCEPT);
        });
        user.Command(ID_FILE_LOAD);
    }

    // One of the New commands: the workspace file, then the OOB and target files picked in
    // "Workspace Properties" after check has looked at the dialog; then answers the messages that
    // follow.
    void New(
        CHeadlessUser& user, int command, const std::string& workspace, const std::string& oobFile,
        const std::string& target, const std::vector<std::string>& laterMessages = {},
        const Script& check = [](CHeadlessUser&) {}) {
        ui.AnswerMessage(IDYES);
        ui.AnswerFileDialog(workspace);
        ui.AnswerFileDialog(oobFile);
        ui.AnswerFileDialog(target);
        ui.OnDialog(IDD_WORKSPACE, [check](CHeadlessUser& ws) {
            check(ws);
            ws.Click(IDC_WS_OOB_PICK);
            ws.Click(IDC_WS_TARGET_PICK);
            ws.Click(IDC_WS_ACCEPT);
        });
        for (const std::string& text : laterMessages) {
            ui.AnswerMessage(text, IDOK);
        }
        user.Command(command);
    }

    // A change of the tree through the edit layer: the first army renamed.
    static void EditTree(CMainDlg& main) {
        main.m_session.Edit().Rename(main.m_tree.GetRootItem(), "First Army");
        main.UpdateData(false);
    }

    static void ExpectStatus(CHeadlessUser& user, const char* oob, const char* backup) {
        EXPECT_EQ(user.Text(IDC_OOB_STATUS), oob);
        EXPECT_EQ(user.Text(IDC_BACKUP_STATUS), backup);
    }

    CUiFolder folder;
    CMainDlg dlg;
};

using FileCommandsTest = MainWindowTest;
