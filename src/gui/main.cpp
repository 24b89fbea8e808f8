// The editor: the Qt face in force, then the application object, which runs the main window
// until the user quits. The program reads no command-line argument of its own.
#include <QApplication>

#include "app/EditorApp.h"
#include "platform/qt/QtBackend.h"

int main(int argc, char** argv) {
    int qtArgc = argc > 0 ? 1 : 0;
    QApplication application(qtArgc, argv);
    CQtBackend backend;
    CEditorApp app;
    app.InitInstance();
    return 0;
}
