#include "platform/DialogTemplate.h"

namespace {
bool ContainsCommand(const std::vector<CMenuItem>& items, int id) {
    for (const CMenuItem& item : items) {
        if ((item.id == id && !item.IsSeparator() && !item.list) ||
            ContainsCommand(item.popup, id)) {
            return true;
        }
    }
    return false;
}

bool ContainsList(const std::vector<CMenuItem>& items, int id) {
    for (const CMenuItem& item : items) {
        if ((item.list && item.id == id) || ContainsList(item.popup, id)) {
            return true;
        }
    }
    return false;
}
}  // namespace

bool CMenuTemplate::HasCommand(int id) const {
    return ContainsCommand(items, id);
}

bool CMenuTemplate::HasList(int listId) const {
    return ContainsList(items, listId);
}

const CControlTemplate* CDialogTemplate::Find(int controlId) const {
    for (const CControlTemplate& control : controls) {
        if (control.id == controlId) {
            return &control;
        }
    }
    return nullptr;
}
