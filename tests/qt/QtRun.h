// Runs a dialog on the Qt face: the body runs inside its modal loop once its window is up and
// active, and the dialog is closed afterwards if the body did not close it.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/Dialog.h"

template <class W = QWidget>
W* WidgetOf(QWidget* window, int id) {
    return window->findChild<W*>(QString::number(id));
}

// Runs body with the modal window that is up once the event loop turns, after it is active.
inline void WhenShown(const std::function<void(QWidget*)>& body) {
    QTimer::singleShot(0, [body] {
        QWidget* window = QApplication::activeModalWidget();
        EXPECT_NE(window, nullptr);
        if (window != nullptr) {
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        }
        body(window);
    });
}

inline void RunShown(CDialog& dlg, const std::function<void(QWidget*)>& body) {
    WhenShown([&](QWidget* window) {
        if (window != nullptr) {
            body(window);
        }
        if (dlg.IsRunning()) {
            dlg.EndDialog(IDCANCEL);
        }
    });
    dlg.DoModal();
}
