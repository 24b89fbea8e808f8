#include "app/EditorPrompts.h"

#include "dialogs/UnitClassDlg.h"
#include "platform/Dialog.h"

void CEditorPrompts::Warning(const std::string& text) {
    m_owner.MessageBox(text, "Warning!", MB_OK | MB_ICONEXCLAMATION);
}

int CEditorPrompts::AskUnitClass(const std::string& line) {
    CUnitClassDlg dlg(line);
    return dlg.DoModal();
}
