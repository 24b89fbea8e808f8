// The Reports menu: the HTML page of the whole order of battle and the cost, leader and key
// listings, each written to a file the user picks.
#include "app/MainDlg.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"
#include "platform/FileDialog.h"
#include "resources/ResourceIds.h"

namespace {
constexpr const char* kHtmlFilter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|";
constexpr const char* kTextFilter = "Text Files (*.txt)|*.txt|";

struct CReportCommand {
    int command;
    ReportKind kind;
    const char* name;  // "HTML", as the question and the notice name the report
};

constexpr CReportCommand kReports[] = {
    {ID_REPORT_HTML, ReportKind::kHtml, "HTML"},
    {ID_REPORT_LEADER, ReportKind::kLeader, "Leader"},
    {ID_REPORT_COST, ReportKind::kCost, "Cost"},
    {ID_REPORT_KEY, ReportKind::kKey, "Key"},
};
}  // namespace

// A report that cannot be written says so in place of the notice; nothing else changes.
void CMainDlg::OnReport(int command) {
    const CReportCommand* report = nullptr;
    for (const CReportCommand& candidate : kReports) {
        if (candidate.command == command) {
            report = &candidate;
        }
    }
    if (!report || !m_session.IsOpen() ||
        !Ask(std::string("Do you want to create a ") + report->name + " Report?", "Report")) {
        return;
    }
    const bool html = report->kind == ReportKind::kHtml;
    CFileDialog picker(false, html ? "html" : "txt", "", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       html ? kHtmlFilter : kTextFilter, this);
    picker.m_strInitialDir = m_strStartDir;
    if (picker.DoModal() != IDOK) {
        return;
    }
    int flags = 0;
    if (html) {
        flags |= Ask("Add cost values to report?", "Report") ? HTML_COSTS : 0;
        flags |= Ask("Add images to report?", "Report") ? HTML_IMAGES : 0;
    }
    const std::string& path = picker.GetPathName();
    const CWriteResult written =
        WriteReport(m_session.Document()->m_writer.Buffer(), path, m_tree, report->kind, flags);
    if (!written.Done()) {
        ShowWriteError(written);
        return;
    }
    MessageBox(std::string(report->name) + " Report created in : " + path, "Report",
               MB_ICONINFORMATION);
}
