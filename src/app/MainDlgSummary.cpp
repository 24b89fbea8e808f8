// Options, Armies summary: the summary stepping from army to army over the top-level entries.
#include "app/MainDlg.h"
#include "dialogs/SummaryDlg.h"

// Without a workspace there is no tree to sum up, so nothing opens.
void CMainDlg::OnArmiesSummary() {
    if (!m_session.IsOpen()) {
        return;
    }
    CSummaryDlg summary(CSummaryDlg::MODE_ARMIES, nullptr, m_session.Document(), m_tree);
    summary.DoModal();
}
