// The four reports of the order of battle: an HTML page and the cost, leader and key listings,
// each made from the tree alone.
#pragma once

#include <string>

#include "base/Result.h"
#include "base/TreeStore.h"
#include "base/WriteBuffer.h"

enum class ReportKind { kHtml, kCost, kLeader, kKey };

// Appends the report's bytes; htmlFlags (HTML_COSTS, HTML_IMAGES) shape the HTML report only.
void AppendReport(std::string& out, const CTreeStore& tree, ReportKind kind, int htmlFlags = 0);
std::string ReportText(const CTreeStore& tree, ReportKind kind, int htmlFlags = 0);
// Replaces the file at path by the report, built in buffer (the one the last save used).
CWriteResult WriteReport(CWriteBuffer& buffer, const std::string& path, const CTreeStore& tree,
                         ReportKind kind, int htmlFlags = 0);
