#include "model/Reports.h"

#include "model/ReportParts.h"

void AppendReport(std::string& out, const CTreeStore& tree, ReportKind kind, int htmlFlags) {
    switch (kind) {
        case ReportKind::kHtml:
            AppendHtmlReport(out, tree, htmlFlags);
            return;
        case ReportKind::kCost:
            AppendCostReport(out, tree);
            return;
        case ReportKind::kLeader:
            AppendLeaderReport(out, tree);
            return;
        case ReportKind::kKey:
            AppendKeyReport(out, tree);
            return;
    }
}

std::string ReportText(const CTreeStore& tree, ReportKind kind, int htmlFlags) {
    std::string out;
    AppendReport(out, tree, kind, htmlFlags);
    return out;
}

CWriteResult WriteReport(CWriteBuffer& buffer, const std::string& path, const CTreeStore& tree,
                         ReportKind kind, int htmlFlags) {
    return buffer.Replace(path,
                          [&](std::string& out) { AppendReport(out, tree, kind, htmlFlags); });
}
