// The Edit commands that change the tree, from the main window's menu on a small order of battle
// (tests/data/tree/), one row of commands.txt each: the command, the entry selected first, the
// answers and choices it meets, the window after it; then the file the rows saved.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "CaseFile.h"
#include "MainWindowFixture.h"
#include "TestTrees.h"

namespace {

// The menu command of each script word, and the editor an Add opens.
const std::map<std::string, std::pair<int, int>> kCommands = {
    {"copy", {ID_EDIT_COPY, 0}},
    {"cut", {ID_EDIT_CUT, 0}},
    {"paste-next", {ID_ADD_NEXT_PASTE, 0}},
    {"paste-child", {ID_ADD_CHILD_PASTE, 0}},
    {"delete", {ID_DELETE_ITEM, 0}},
    {"delete-children", {ID_DELETE_CHILDREN, 0}},
    {"add-child-unit", {ID_ADD_CHILD_UNIT, IDD_UNIT}},
    {"add-next-unit", {ID_ADD_NEXT_UNIT, IDD_UNIT}},
    {"add-next-leader", {ID_ADD_NEXT_LEADER, IDD_LEADER}},
    {"add-child-supply", {ID_ADD_CHILD_SUPPLY, IDD_SUPPLY}},
    {"add-child-structure", {ID_ADD_CHILD_STRUCTURE, 0}},
    {"add-next-structure", {ID_ADD_NEXT_STRUCTURE, 0}},
    {"properties", {ID_EDIT_PROPERTIES, 0}},
    {"undo", {ID_EDIT_UNDO, 0}}};

// An entry's position: its row and its ancestors' rows, counted from 1.
std::string Position(HTREEITEM entry) {
    std::string key;
    for (; entry && entry->Parent(); entry = entry->Parent()) {
        key = std::to_string(entry->Row() + 1) + (key.empty() ? "" : "." + key);
    }
    return key.empty() ? "none" : key;
}

class TreeCommandsTest : public MainWindowTest {
protected:
    // The tree, the clipboard fields, the selected entry, the status fields, the steps to undo.
    static std::string Window(CHeadlessUser& user, CMainDlg& main) {
        return Shape(main.m_tree) + "|" + user.Text(IDC_MARKED_CAPTION) + "/" +
               user.Text(IDC_MARKED_NAME) + "|" + Position(main.m_tree.GetSelectedItem()) + "|" +
               user.Text(IDC_OOB_STATUS) + user.Text(IDC_BACKUP_STATUS) + "|" +
               std::to_string(main.m_session.Edit().UndoCount());
    }

    // An Add's "offered>chosen>editor": types offered, the one chosen, cancel or the new name.
    void ScriptAdd(CHeadlessUser& user, int editor, const std::string& argument) {
        std::istringstream parts(argument);
        std::string offered, choice, edit;
        std::getline(std::getline(std::getline(parts, offered, '>'), choice, '>'), edit);
        ui.OnDialog(IDD_ADD_LIST, [=](CHeadlessUser& list) {
            EXPECT_EQ(std::to_string(list.Lines(IDC_CHOICE_LIST).GetCount()), offered);
            list.Pick(IDC_CHOICE_LIST, choice);
            list.Click(IDC_CHOICE_ACCEPT);
        });
        if (!edit.empty()) {
            ui.OnDialog(editor, [&user, edit](CHeadlessUser& dlg) {
                EXPECT_EQ(user.Text(IDC_OOB_STATUS), "*");  // the new item is in already
                dlg.Type(IDC_ITEM_NAME, edit);              // not taken when cancelled
                dlg.Click(edit == "cancel" ? IDC_ITEM_CANCEL : IDC_ITEM_ACCEPT);
            });
        }
    }

    void Do(CHeadlessUser& user, CMainDlg& main, const std::string& command,
            const std::string& argument) {
        if (command == "rename") {
            user.EditLabel(IDC_TREE, main.m_tree.GetSelectedItem(), Unescape(argument));
        } else if (command == "save") {
            ui.AnswerMessage("Do you want to save your files?", IDYES);
            user.Click(IDC_OOB_STATUS);
        } else if (command == "reload") {
            Load(user, folder / "harnwick.txt");
        } else {
            const auto [id, editor] = kCommands.at(command);
            if (command.starts_with("add-") && !argument.empty()) {
                ScriptAdd(user, editor, argument);
            } else if (!argument.empty()) {  // otherwise nothing may be asked
                ui.AnswerMessage(command == "delete" ? "Do you want to delete this item?"
                                                     : "Do you want to delete child items?",
                                 argument == "yes" ? IDYES : IDNO);
            }
            user.Command(id);
        }
    }
};

TEST_F(TreeCommandsTest, ScriptedRows) {
    WriteBytes(folder / "valdoria.oob", ReadBytes(HW_TEST_DATA "/tree/army.oob"));
    WriteBytes(folder / "valdoria.inf", ReadBytes(HW_TEST_DATA "/tree/army.inf"));
    Run([&](CHeadlessUser& user, CMainDlg& main) {
        Load(user, folder / "harnwick.txt");
        std::ifstream rows(HW_TEST_DATA "/tree/commands.txt");
        for (std::string row; std::getline(rows, row);) {
            std::istringstream cells(row);
            std::string command, target, argument, expected;
            if (row.empty() || row[0] == '#' ||
                !std::getline(std::getline(std::getline(cells, command, '|'), target, '|'),
                              argument, '|') ||
                !std::getline(cells, expected)) {
                continue;
            }
            SCOPED_TRACE(row);
            if (target != "-") {
                user.SelectEntry(IDC_TREE, FindLabel(main.m_tree, target));
            }
            Do(user, main, command, argument);
            EXPECT_EQ(Window(user, main), expected);
        }
    });
    EXPECT_EQ(ReadBytes(folder / "valdoria.oob"), ReadBytes(HW_TEST_DATA "/tree/saved.oob"));
}

}  // namespace
