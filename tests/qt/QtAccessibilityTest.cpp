// What a screen reader meets: every focusable control of every dialog named, names that follow
// the text the program shows, and text an assistive tool sets taken by the dialog.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "QtRun.h"
#include "QtSampleCopy.h"
#include "app/MainDlg.h"
#include "dialogs/WorkspaceDlg.h"
#include "model/Workspace.h"
#include "platform/qt/QtBackend.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"
#include "ui/TestDialog.h"

namespace {
// What a screen reader hears for a control of the window.
std::string NameOf(QWidget* window, int id) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(WidgetOf(window, id));
    return accessible ? accessible->text(QAccessible::Name).toStdString() : std::string();
}

// The text of the label a screen reader finds for a control through the label's relation.
std::string LabelOf(QWidget* window, int id) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(WidgetOf(window, id));
    const auto labels = accessible ? accessible->relations(QAccessible::Label)
                                   : QList<QPair<QAccessibleInterface*, QAccessible::Relation>>();
    return labels.isEmpty() ? std::string()
                            : labels[0].first->text(QAccessible::Name).toStdString();
}

bool Shows(const CWnd& control) {
    return control.Kind() == ControlKind::Static || control.Kind() == ControlKind::Button ||
           control.Kind() == ControlKind::CheckBox;
}

TEST(QtAccessibility, EveryFocusableControlIsNamedAndNamesFollowTheText) {
    CQtBackend backend;
    for (int id :
         {IDD_ABOUTBOX, IDD_HARNWICK_DIALOG, IDD_WORKSPACE, IDD_ATTACHED, IDD_UNIT_CLASS, IDD_FIND,
          IDD_ADD_LIST, IDD_PICTURE, IDD_UNIT, IDD_LEADER, IDD_SUPPLY, IDD_GUNBOAT,
          IDD_TEMPLATE_SELECT, IDD_TEMPLATE_SAVE, IDD_GET_DATA, IDD_STRUCTURE, IDD_SUMMARY}) {
        CTestDialog dlg(DialogResource(id));
        RunShown(dlg, [&](QWidget* window) {
            for (auto& control : dlg.Controls()) {
                // A drop-down list's name is the line it shows; its label comes by relation.
                if (control->Kind() == ControlKind::ComboBox) {
                    EXPECT_FALSE(LabelOf(window, control->GetDlgCtrlID()).empty())
                        << "dialog " << id << " control " << control->GetDlgCtrlID();
                } else if (control->TakesFocus()) {
                    EXPECT_FALSE(NameOf(window, control->GetDlgCtrlID()).empty())
                        << "dialog " << id << " control " << control->GetDlgCtrlID();
                }
                if (Shows(*control)) {
                    control->SetWindowText("Now " + std::to_string(control->GetDlgCtrlID()));
                }
            }
            dlg.RedrawWindow();
            // A symbol-only button ("...") is named after its row too.
            for (auto& control : dlg.Controls()) {
                if (Shows(*control) && control->GetDlgCtrlID() != -1) {
                    EXPECT_TRUE(NameOf(window, control->GetDlgCtrlID())
                                    .ends_with(control->GetWindowText()));
                }
            }
            // A path is named after its row's check box, and follows it.
            if (id == IDD_WORKSPACE) {
                EXPECT_EQ(NameOf(window, IDC_WS_LEADER_FACES),
                          "Now " + std::to_string(IDC_WS_LEADER_FACES_ON));
                EXPECT_EQ(NameOf(window, IDC_WS_OOB_PICK),
                          "Now -1 Now " + std::to_string(IDC_WS_OOB_PICK));
            }
        });
    }
}

// Load of the sample through the real menu, message box, file chooser and workspace dialog:
// the status fields then read " " and "*", as the screen shows them.
TEST(QtAccessibility, TheStatusFieldsReadWhatTheyShowAfterLoad) {
    CSampleCopy sample;
    CQtBackend backend;
    CMainDlg dlg;
    RunShown(dlg, [&](QWidget* window) {
        EXPECT_EQ(NameOf(window, IDC_OOB_STATUS), "-");
        EXPECT_EQ(sample.Load(window), 2);
        EXPECT_EQ(NameOf(window, IDC_OOB_STATUS), " ");
        EXPECT_EQ(NameOf(window, IDC_BACKUP_STATUS), "*");
    });
}

// Text set through the accessibility interface, as dictation tools set it, is what Accept
// saves; Reset brings the old title back on the screen.
TEST(QtAccessibility, TextAnAssistiveToolSetsIsTakenByTheDialog) {
    CQtBackend backend;
    QTemporaryDir folder;
    CWorkspace workspace;
    workspace.m_strPath = folder.filePath("campaign.txt").toStdString();
    workspace.m_strTitle = "Northern Marches";
    workspace.m_strOobFile = workspace.m_strTargetFile = "empty";
    CWorkspaceDlg dlg(workspace);
    RunShown(dlg, [&](QWidget* window) {
        auto* title = WidgetOf<QLineEdit>(window, IDC_WS_TITLE);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(title);
        ASSERT_NE(accessible->editableTextInterface(), nullptr);
        accessible->editableTextInterface()->replaceText(0, title->text().size(), "Dictated");
        WidgetOf<QPushButton>(window, IDC_WS_RESET)->click();
        EXPECT_EQ(title->text(), "Northern Marches");
        title->setText("Set from outside");
        WidgetOf<QPushButton>(window, IDC_WS_ACCEPT)->click();
    });
    EXPECT_EQ(workspace.m_strTitle, "Set from outside");
}
}  // namespace
