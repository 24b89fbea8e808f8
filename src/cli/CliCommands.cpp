#include "cli/CliCommands.h"

#include <ostream>
#include <string>
#include <vector>

#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "cli/CliPrompts.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/GameImport.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"

namespace {

// Everything one command works on: the database, its prompts, the document and the tree, and
// the lines the reader passed over, with their line numbers.
struct CSession {
    CSession(const CCliOptions& options, std::ostream& err) : prompts(options.unknownClass, err) {
        database.m_pPrompts = &prompts;
        document.m_reader.m_onPassedOver = [this](int lineNumber, const std::string& line) {
            passedOver.push_back("line " + std::to_string(lineNumber) + ": no item kind: " + line);
        };
    }

    CCliPrompts prompts;
    CGameDatabase database;
    COobDocument document{&database};
    CTreeStore tree;
    std::vector<std::string> passedOver;
};

int CannotOpen(std::ostream& err, const std::string& path) {
    err << "harnwick-cli: cannot open " << path << '\n';
    return EXIT_CANNOT_OPEN;
}

int Written(std::ostream& err, const CWriteResult& result) {
    if (result.Done()) {
        return EXIT_DONE;
    }
    err << "harnwick-cli: cannot write " << result.error << '\n';
    return EXIT_CANNOT_WRITE;
}

int LoadTarget(CSession& session, const std::string& path, std::ostream& err) {
    return session.database.Load(path) == RESULT_DONE ? EXIT_DONE : CannotOpen(err, path);
}

int LoadBoth(CSession& session, const CCliOptions& options, std::ostream& err) {
    if (int status = LoadTarget(session, options.files[0], err)) {
        return status;
    }
    if (session.document.LoadTree(options.files[1], session.tree) != RESULT_DONE) {
        return CannotOpen(err, options.files[1]);
    }
    return EXIT_DONE;
}

// Position keys as the key report writes them: 2.1.3. is the third child of the first child of
// the second top-level entry.
class CKeyCounter {
public:
    std::string Next(int depth) {
        m_counters.resize(static_cast<std::size_t>(depth) + 1, 0);
        ++m_counters.back();
        std::string key;
        for (int counter : m_counters) {
            AppendNumber(key, counter);
            key += '.';
        }
        return key;
    }

private:
    std::vector<int> m_counters;
};

const char* KindText(const COobItem& item) {
    return item.m_pKind ? item.m_pKind->m_strName.c_str() : "";
}

// What an item lacks of the records its cost needs.
std::string MissingRecords(const COobItem& item) {
    std::string missing;
    if (!item.m_pType) {
        missing += " type";
    }
    if (!item.m_pBaseType) {
        missing += " base-type";
    }
    const bool armed = item.m_nType == TYPE_UNIT || item.m_nType == TYPE_GUNBOAT;
    if (armed && !item.m_pWeapon) {
        missing += " weapon";
    }
    return missing;
}

int Tree(CSession& session, const CCliOptions& options, std::ostream& out, std::ostream& err) {
    if (int status = LoadBoth(session, options, err)) {
        return status;
    }
    CKeyCounter keys;
    for (CTreeWalk walk(session.tree, nullptr); !walk.Done(); walk.Step()) {
        const COobItem& item = *ItemOf(session.tree, walk.Current());
        out << keys.Next(walk.Depth()) << '\t' << static_cast<unsigned>(item.m_nType) << '\t'
            << KindText(item) << '\t' << item.m_strName << '\t' << Format("%g", item.Cost()) << '\t'
            << Format("%g", item.Men()) << '\n';
    }
    return EXIT_DONE;
}

int Check(CSession& session, const CCliOptions& options, std::ostream& out, std::ostream& err) {
    if (int status = LoadBoth(session, options, err)) {
        return status;
    }
    std::vector<std::string> problems;
    for (const std::string& warning : session.prompts.Warnings()) {
        std::string line = warning;
        for (char& c : line) {
            c = c == '\n' ? ' ' : c;
        }
        problems.push_back(line);
    }
    problems.insert(problems.end(), session.passedOver.begin(), session.passedOver.end());
    CKeyCounter keys;
    for (CTreeWalk walk(session.tree, nullptr); !walk.Done(); walk.Step()) {
        const COobItem& item = *ItemOf(session.tree, walk.Current());
        const std::string key = keys.Next(walk.Depth());
        const std::string missing = MissingRecords(item);
        if (!missing.empty()) {
            problems.push_back(key + " " + std::string(item.m_strName) +
                               ": missing record:" + missing);
        }
    }
    for (const std::string& problem : problems) {
        out << problem << '\n';
    }
    out << problems.size() << (problems.size() == 1 ? " problem" : " problems") << " found\n";
    return problems.empty() ? EXIT_DONE : EXIT_PROBLEMS;
}

int Report(CSession& session, const CCliOptions& options, std::ostream& err) {
    if (int status = LoadBoth(session, options, err)) {
        return status;
    }
    CWriteBuffer& buffer = session.document.m_writer.Buffer();
    const std::string& out = options.files[2];
    if (options.report == "html") {
        const int flags = (options.costs ? HTML_COSTS : 0) | (options.images ? HTML_IMAGES : 0);
        return Written(err, WriteReport(buffer, out, session.tree, ReportKind::kHtml, flags));
    }
    if (options.report == "cost") {
        return Written(err, WriteReport(buffer, out, session.tree, ReportKind::kCost));
    }
    if (options.report == "leader") {
        return Written(err, WriteReport(buffer, out, session.tree, ReportKind::kLeader));
    }
    return Written(err, WriteReport(buffer, out, session.tree, ReportKind::kKey));
}

// A game file that does not open stops the import before OUT is written.
int Import(CSession& session, const CCliOptions& options, std::ostream& err) {
    if (int status = LoadBoth(session, options, err)) {
        return status;
    }
    const std::string& gameFile = options.files[2];
    if (ImportGameData(gameFile, session.tree, options.importFlags) != RESULT_DONE) {
        return CannotOpen(err, gameFile);
    }
    return Written(err, session.document.Save(options.files[3], session.tree));
}

}  // namespace

int RunCliCommand(const CCliOptions& options, std::ostream& out, std::ostream& err) {
    CSession session(options, err);
    const std::string& command = options.command;
    if (command == "tree") {
        return Tree(session, options, out, err);
    }
    if (command == "check") {
        return Check(session, options, out, err);
    }
    if (command == "report") {
        return Report(session, options, err);
    }
    if (command == "import") {
        return Import(session, options, err);
    }
    if (int status = LoadTarget(session, options.files[0], err)) {
        return status;
    }
    if (command == "new") {
        return Written(err, session.document.m_writer.CreateDefault(options.files[1]));
    }
    if (command == "target") {
        return Written(err, session.database.Save(options.files[1]));
    }
    // save
    if (session.document.LoadTree(options.files[1], session.tree) != RESULT_DONE) {
        return CannotOpen(err, options.files[1]);
    }
    if (int status = Written(err, session.document.Save(options.files[2], session.tree))) {
        return status;
    }
    if (!options.targetOut.empty()) {
        return Written(err, session.database.Save(options.targetOut));
    }
    return EXIT_DONE;
}
