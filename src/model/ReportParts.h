// What the report files share; the reports are used through Reports.h.
#pragma once

#include <string>
#include <string_view>

#include "base/TextLines.h"
#include "base/TreeStore.h"

void AppendHtmlReport(std::string& out, const CTreeStore& tree, int flags);
void AppendCostReport(std::string& out, const CTreeStore& tree);
void AppendLeaderReport(std::string& out, const CTreeStore& tree);
void AppendKeyReport(std::string& out, const CTreeStore& tree);

inline void AppendLine(std::string& out, std::string_view line) {
    out += line;
    out += kLineEnd;
}
