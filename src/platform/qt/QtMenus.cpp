#include "platform/qt/QtMenus.h"

#include <QKeySequence>
#include <QList>
#include <QMenu>

#include "platform/DialogTemplate.h"
#include "platform/qt/QtText.h"

QAction* AddMenuCommand(QMenu& menu, const CMenuItem& item) {
    QAction* action =
        menu.addAction(item.pathText ? PathForDisplay(item.text) : ToQString(item.text));
    action->setData(item.id);
    QList<QKeySequence> keys;
    for (const std::string& key : item.keys) {
        keys.push_back(QKeySequence(QString::fromStdString(key)));
    }
    action->setShortcuts(keys);
    return action;
}
