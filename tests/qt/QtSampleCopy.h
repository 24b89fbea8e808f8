// A copy of the sample in a temporary folder, made the working folder (and the user's folders)
// while it lives (Accept of the workspace dialog writes the workspace file back), and its Load
// through the real menu.
#pragma once

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <filesystem>

#include "QtRun.h"
#include "resources/ResourceIds.h"

class CSampleCopy {
public:
    CSampleCopy() {
        for (const auto& file : std::filesystem::directory_iterator(HW_SAMPLE_DIR)) {
            std::filesystem::copy(file.path(),
                                  m_folder.path().toStdString() / file.path().filename());
        }
        std::filesystem::current_path(m_folder.path().toStdString());
        // The recent list and recovery copies go to the copy's folder, not the user's.
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        qputenv("XDG_STATE_HOME", m_folder.path().toUtf8());
    }
    ~CSampleCopy() { std::filesystem::current_path(m_before); }

    // Triggers File, Load in window and answers the windows it opens as a user would: Yes, the
    // workspace file, Accept. Returns how many of the message box and workspace dialog came.
    int Load(QWidget* window) {
        QTimer answerer;
        int answered = 0;
        QPointer<QWidget> last;
        QObject::connect(&answerer, &QTimer::timeout, [&] {
            QWidget* top = QApplication::activeModalWidget();
            auto* box = qobject_cast<QMessageBox*>(top);
            if (auto* chooser = qobject_cast<QFileDialog*>(top)) {
                // Typed, as a user types it; tried again until the chooser takes it.
                chooser->findChild<QLineEdit*>("fileNameEdit")
                    ->setText(m_folder.filePath("harnwick.txt"));
                QMetaObject::invokeMethod(chooser, "accept");
            } else if (top != last &&
                       (box || (top && top->windowTitle() == "Workspace Properties"))) {
                box ? box->button(QMessageBox::Yes)->click()
                    : WidgetOf<QPushButton>(top, IDC_WS_ACCEPT)->click();
                last = top;
                ++answered;
            }
        });
        answerer.start(10);
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->text() == "&Load") {
                action->trigger();
            }
        }
        return answered;
    }

private:
    const std::filesystem::path m_before = std::filesystem::current_path();
    QTemporaryDir m_folder;
};
