// A path field shows the file system's bytes as text, UTF-8 and Windows-1252 alike, gives them
// back untouched, and a changed path keeps the code page its field showed.
#include <gtest/gtest.h>

#include <QLineEdit>

#include "QtRun.h"
#include "dialogs/WorkspaceDlg.h"
#include "model/Workspace.h"
#include "platform/qt/QtBackend.h"
#include "resources/ResourceIds.h"
#include "support/TempFolder.h"

TEST(QtPathField, ShowsUtf8AndWindows1252AlikeAndGivesTheirBytesBack) {
    CTempFolder folder;
    CQtBackend backend;
    CWorkspace workspace;
    workspace.m_strPath = folder / "spring.txt";
    workspace.m_strOobFile = "G\xC3\xA9n/a.oob";
    workspace.m_strTargetFile = "G\xE9n\\a.inf";
    workspace.m_strBackupFile = "G\xE9n\\a.bak";
    CWorkspaceDlg dlg(workspace);
    RunShown(dlg, [&](QWidget* window) {
        auto* oob = WidgetOf<QLineEdit>(window, IDC_WS_OOB_FILE);
        EXPECT_EQ(oob->text(), "G\u00E9n/a.oob");
        EXPECT_EQ(WidgetOf<QLineEdit>(window, IDC_WS_TARGET_FILE)->text(), "G\u00E9n\\a.inf");
        oob->setText("G\u00E9n/b.oob");
        WidgetOf<QLineEdit>(window, IDC_WS_BACKUP_FILE)->setText("G\u00E9n\\b.bak");
        QTest::mouseClick(WidgetOf(window, IDC_WS_ACCEPT), Qt::LeftButton);
    });
    EXPECT_EQ(workspace.m_strOobFile, "G\xC3\xA9n/b.oob");
    EXPECT_EQ(workspace.m_strTargetFile, "G\xE9n\\a.inf");
    EXPECT_EQ(workspace.m_strBackupFile, "G\xE9n\\b.bak");
}
