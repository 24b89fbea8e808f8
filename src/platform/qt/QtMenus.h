// A menu command's entry as Qt shows it: its text, and the keys that run it shown beside it.
#pragma once

class QAction;
class QMenu;
struct CMenuItem;

QAction* AddMenuCommand(QMenu& menu, const CMenuItem& item);
