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
    std::function<CWriteResult(CSampleFiles&, const std::string& path)> write;
};

// The writers of the three files the editor keeps: order of battle, workspace, target file.
inline std::vector<CSampleWriter> KeptFileWriters() {
    return {
        {"order of battle",
         [](CSampleFiles& s, const std::string& path) { return s.document.Save(path, s.tree); }},
        {"workspace",
         [](CSampleFiles& s, const std::string& path) { return s.workspace.Save(path); }},
        {"target file",
         [](CSampleFiles& s, const std::string& path) { return s.database.Save(path); }},
    };
}

inline std::vector<CSampleWriter> AllWriters() {
    std::vector<CSampleWriter> writers = KeptFileWriters();
    writers.insert(writers.end(), {
                                      {"new order of battle",
                                       [](CSampleFiles& s, const std::string& path) {
                                           return s.document.m_writer.CreateDefault(path);
                                       }},
                                      {"HTML report",
                                       [](CSampleFiles& s, const std::string& path) {
                                           return WriteReport(s.document.m_writer.Buffer(), path,
                                                              s.tree, ReportKind::kHtml, 0);
                                       }},
                                      {"cost report",
                                       [](CSampleFiles& s, const std::string& path) {
                                           return WriteReport(s.document.m_writer.Buffer(), path,
                                                              s.tree, ReportKind::kCost);
                                       }},
                                      {"leader report",
                                       [](CSampleFiles& s, const std::string& path) {
                                           return WriteReport(s.document.m_writer.Buffer(), path,
                                                              s.tree, ReportKind::kLeader);
                                       }},
                                      {"key report",
                                       [](CSampleFiles& s, const std::string& path) {
                                           return WriteReport(s.document.m_writer.Buffer(), path,
                                                              s.tree, ReportKind::kKey);
                                       }},
                                  });
    return writers;
}
