// Every writer of the program's files, each writing one file from the sample workspace: the
// order of battle (Save and the new skeleton), the workspace, the target file and the four
// reports. Tables of file faults run over them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/TreeStore.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/Reports.h"
#include "model/Workspace.h"

struct CSampleFiles {
    CSampleFiles() {
        const std::string sample = HW_SAMPLE_DIR "/";
        database.Load(sample + "valdoria.inf");
        document.LoadTree(sample + "valdoria.oob", tree);
        workspace.Load(sample + "harnwick.txt");
    }

    CGameDatabase database;
    COobDocument document{&database};
    CTreeStore tree;
    CWorkspace workspace;
};

struct CSampleWriter {
    const char* name;
    bool kept;  // a file the editor keeps, not one it makes once
    std::function<CWriteResult(CSampleFiles&, const std::string& path)> write;
};

inline std::vector<CSampleWriter> AllWriters() {
    using S = CSampleFiles;
    using P = const std::string&;
    const auto report = [](ReportKind kind, int flags = 0) {
        return [kind, flags](S& s, P path) {
            return WriteReport(s.document.m_writer.Buffer(), path, s.tree, kind, flags);
        };
    };
    return {
        {"order of battle", true, [](S& s, P path) { return s.document.Save(path, s.tree); }},
        {"workspace", true, [](S& s, P path) { return s.workspace.Save(path); }},
        {"target file", true, [](S& s, P path) { return s.database.Save(path); }},
        {"new order of battle", false,
         [](S& s, P path) { return s.document.m_writer.CreateDefault(path); }},
        {"HTML report", false, report(ReportKind::kHtml)},
        {"cost report", false, report(ReportKind::kCost)},
        {"leader report", false, report(ReportKind::kLeader)},
        {"key report", false, report(ReportKind::kKey)},
    };
}
