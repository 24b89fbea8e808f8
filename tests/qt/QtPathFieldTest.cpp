// A path field shows the file system's bytes as text, UTF-8 or Windows-1252 alike, and gives back
// the bytes it was given.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "QtRun.h"
#include "dialogs/WorkspaceDlg.h"
#include "model/Workspace.h"
#include "platform/qt/QtBackend.h"
#include "resources/ResourceIds.h"
#include "support/TempFolder.h"

namespace {

TEST(QtPathField, ShowsUtf8AndWindows1252AlikeAndGivesTheirBytesBack) {
    CTempFolder folder;
    CQtBackend backend;
    CWorkspace workspace;
    workspace.m_strPath = folder / "spring.txt";
    workspace.m_strOobFile = "G\xC3\xA9n\xC3\xA9raux/spring.oob";
    workspace.m_strTargetFile = "G\xE9n\xE9raux\\spring.inf";
    workspace.m_strBackupFile = "G\xE9n\xE9raux\\spring.bak";
    CWorkspaceDlg dlg(workspace);
    RunShown(dlg, [&](QWidget* window) {
        EXPECT_EQ(WidgetOf<QLineEdit>(window, IDC_WS_OOB_FILE)->text(),
                  QString::fromUtf8("G\u00E9n\u00E9raux/spring.oob"));
        EXPECT_EQ(WidgetOf<QLineEdit>(window, IDC_WS_TARGET_FILE)->text(),
                  QString::fromUtf8("G\u00E9n\u00E9raux\\spring.inf"));
        // A changed path keeps the code page its field showed.
        WidgetOf<QLineEdit>(window, IDC_WS_OOB_FILE)
            ->setText(QString::fromUtf8("G\u00E9n\u00E9raux/spring2.oob"));
        WidgetOf<QLineEdit>(window, IDC_WS_BACKUP_FILE)
            ->setText(QString::fromUtf8("G\u00E9n\u00E9raux\\spring2.bak"));
        QTest::mouseClick(WidgetOf<QPushButton>(window, IDC_WS_ACCEPT), Qt::LeftButton);
    });
    EXPECT_EQ(workspace.m_strOobFile, "G\xC3\xA9n\xC3\xA9raux/spring2.oob");
    EXPECT_EQ(workspace.m_strTargetFile, "G\xE9n\xE9raux\\spring.inf");
    EXPECT_EQ(workspace.m_strBackupFile, "G\xE9n\xE9raux\\spring2.bak");
}

}  // namespace
