// The template commands: the selected entry saved as a template, and a template inserted next
// to the selected entry or as its first child. A template's items are the level of its record;
// a parent must be of a higher level to take them.
#include "app/MainDlg.h"
#include "dialogs/TemplateSaveDlg.h"
#include "dialogs/TemplateSelectDlg.h"
#include "gamedata/GameRecords.h"
#include "model/OobItem.h"
#include "model/Templates.h"

namespace {
const CKindRecord* KindOf(const CTreeStore& tree, HTREEITEM entry) {
    const COobItem* item = entry ? ItemOf(tree, entry) : nullptr;
    return item ? item->m_pKind : nullptr;
}
}  // namespace

// Units, leaders, supply trains and structures; not armies, depots or gunboats.
void CMainDlg::OnSaveAsTemplate() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    const CKindRecord* kind = KindOf(m_tree, entry);
    if (!m_session.IsOpen() || !kind || kind->TypeCode() >= 7) {
        return;
    }
    CTemplateSaveDlg dlg(m_tree, entry, *m_session.Database(), *ItemOf(m_tree, entry));
    if (dlg.DoModal() != 1) {
        return;
    }
    if (const CWriteResult written = SaveTemplate(m_session, entry, dlg.TakeRecord());
        !written.Done()) {
        ShowWriteError(written);
    }
}

// The selection stays where it was.
void CMainDlg::OnAddTemplateChild() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    const CKindRecord* kind = KindOf(m_tree, entry);
    if (!m_session.IsOpen() || !kind || (kind->TypeCode() != 6 && kind->TypeCode() != 7)) {
        return;
    }
    CTemplateSelectDlg dlg(*m_session.Database());
    if (dlg.DoModal() != 1 || kind->m_nLevel <= dlg.ChosenTemplate()->m_nLevel) {
        return;
    }
    InsertTemplate(m_session, *dlg.ChosenTemplate(), entry, TVI_FIRST);
    m_session.ViewStore().SelectItem(entry);
    UpdateData(false);
}

void CMainDlg::OnAddTemplateNext() {
    const HTREEITEM entry = m_tree.GetSelectedItem();
    const HTREEITEM parent = entry ? m_tree.GetParentItem(entry) : nullptr;
    const CKindRecord* kind = KindOf(m_tree, parent);
    if (!m_session.IsOpen() || !kind) {
        return;
    }
    CTemplateSelectDlg dlg(*m_session.Database());
    if (dlg.DoModal() != 1 || kind->m_nLevel <= dlg.ChosenTemplate()->m_nLevel) {
        return;
    }
    InsertTemplate(m_session, *dlg.ChosenTemplate(), parent, entry);
    m_session.ViewStore().SelectItem(entry);
    UpdateData(false);
}
