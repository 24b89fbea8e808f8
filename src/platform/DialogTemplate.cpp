#include "platform/DialogTemplate.h"

namespace {
bool ContainsCommand(const std::vector<CMenuItem>& items, int id) {
    for (const CMenuItem& item : items) {
        if ((item.id == id && !item.IsSeparator()) || ContainsCommand(item.popup, id)) {
            return true;
        }
    }
    return false;
}
}  // namespace

bool CMenuTemplate::HasCommand(int id) const {
    return ContainsCommand(items, id);
}

const CControlTemplate* CDialogTemplate::Find(int controlId) const {
    for (const CControlTemplate& control : controls) {
        if (control.id == controlId) {
            return &control;
        }
    }
    return nullptr;
}
