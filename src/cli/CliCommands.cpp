#include "cli/CliCommands.h"

#include <iterator>
#include <memory>
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
#include "model/OobDiff.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"
#include "model/Session.h"
#include "model/Workspace.h"

namespace {

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

// The tool's own session: the target file and the order-of-battle file named on the command
// line stand for a workspace's. A line the reader passed over is a finding, with its number.
struct CCliSession {
    CCliSession(const CCliOptions& options, std::ostream* echo)
        : prompts(options.unknownClass, echo), session(prompts) {
        session.m_onPassedOver = [this](int lineNumber, const std::string& line) {
            prompts.Found("line " + std::to_string(lineNumber) + ": no item kind: " + line);
        };
    }

    CCliPrompts prompts;
    CSession session;
    std::unique_ptr<CGameDatabase> database;  // loaded, not yet open
};

int LoadTarget(CCliSession& cli, const std::string& path, std::ostream& err) {
    cli.prompts.Reading(path);
    int result = RESULT_DONE;
    cli.database = cli.session.LoadDatabase(path, &result);
    return result == RESULT_DONE ? EXIT_DONE : CannotOpen(err, path);
}

int Open(CCliSession& cli, const std::string& target, const std::string& oobFile,
         std::ostream& err) {
    if (int status = LoadTarget(cli, target, err)) {
        return status;
    }
    auto workspace = std::make_unique<CWorkspace>();
    workspace->m_strOobFile = oobFile;
    workspace->m_strTargetFile = target;
    cli.prompts.Reading(oobFile);
    if (cli.session.Open(std::move(workspace), std::move(cli.database)) != RESULT_DONE) {
        return CannotOpen(err, oobFile);
    }
    return EXIT_DONE;
}

int LoadBoth(CCliSession& cli, const CCliOptions& options, std::ostream& err) {
    return Open(cli, options.files[0], options.files[1], err);
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

int Tree(CCliSession& cli, const CCliOptions& options, std::ostream& out, std::ostream& err) {
    if (int status = LoadBoth(cli, options, err)) {
        return status;
    }
    CKeyCounter keys;
    for (CTreeWalk walk(cli.session.Tree(), nullptr); !walk.Done(); walk.Step()) {
        const COobItem& item = *ItemOf(cli.session.Tree(), walk.Current());
        out << keys.Next(walk.Depth()) << '\t' << static_cast<unsigned>(item.m_nType) << '\t'
            << KindText(item) << '\t' << item.m_strName << '\t' << Format("%g", item.Cost()) << '\t'
            << Format("%g", item.Men()) << '\n';
    }
    return EXIT_DONE;
}

int Check(CCliSession& cli, const CCliOptions& options, std::ostream& out, std::ostream& err) {
    if (int status = LoadBoth(cli, options, err)) {
        return status;
    }
    std::vector<std::string> problems = cli.prompts.Findings();
    CKeyCounter keys;
    for (CTreeWalk walk(cli.session.Tree(), nullptr); !walk.Done(); walk.Step()) {
        const COobItem& item = *ItemOf(cli.session.Tree(), walk.Current());
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

// Every difference, and the count of each kind.
int Diff(CCliSession& before, const CCliOptions& options, std::ostream& out, std::ostream& err) {
    CCliSession after(options, &err);
    if (int status = LoadBoth(before, options, err)) {
        return status;
    }
    if (int status = Open(after, options.files[0], options.files[2], err)) {
        return status;
    }
    const std::vector<COobDifference> differences =
        DiffOob(before.session.Tree(), after.session.Tree());
    if (differences.empty()) {
        out << "no differences\n";
        return EXIT_DONE;
    }
    constexpr const char* kNames[] = {"removed", "added", "moved", "changed"};
    std::size_t counts[std::size(kNames)] = {};
    for (const COobDifference& difference : differences) {
        const auto change = static_cast<std::size_t>(difference.change);
        ++counts[change];
        out << kNames[change] << ' ' << difference.path << "\n    ";
        switch (difference.change) {
            case OobChange::kRemoved:
                out << difference.before << '\n';
                break;
            case OobChange::kAdded:
                out << difference.after << '\n';
                break;
            case OobChange::kMoved:
                out << "now " << (difference.after.empty() ? "first" : "after " + difference.after)
                    << '\n';
                break;
            case OobChange::kChanged:
                out << "old " << difference.before << "\n    new " << difference.after << '\n';
                break;
        }
    }
    for (std::size_t change = 0; change < std::size(kNames); ++change) {
        out << counts[change] << ' ' << kNames[change]
            << (change + 1 < std::size(kNames) ? ", " : "\n");
    }
    return EXIT_DIFFERENT;
}

int Report(CCliSession& cli, const CCliOptions& options, std::ostream& err) {
    if (int status = LoadBoth(cli, options, err)) {
        return status;
    }
    CWriteBuffer& buffer = cli.session.Document()->m_writer.Buffer();
    const CTreeStore& tree = cli.session.Tree();
    const std::string& out = options.files[2];
    if (options.report == "html") {
        const int flags = (options.costs ? HTML_COSTS : 0) | (options.images ? HTML_IMAGES : 0);
        return Written(err, WriteReport(buffer, out, tree, ReportKind::kHtml, flags));
    }
    if (options.report == "cost") {
        return Written(err, WriteReport(buffer, out, tree, ReportKind::kCost));
    }
    if (options.report == "leader") {
        return Written(err, WriteReport(buffer, out, tree, ReportKind::kLeader));
    }
    return Written(err, WriteReport(buffer, out, tree, ReportKind::kKey));
}

// A game file that does not open stops the import before OUT is written.
int Import(CCliSession& cli, const CCliOptions& options, std::ostream& err) {
    if (int status = LoadBoth(cli, options, err)) {
        return status;
    }
    const std::string& gameFile = options.files[2];
    const int imported = cli.session.Edit().ChangeTree(
        [&](CTreeStore& tree) { return ImportGameData(gameFile, tree, options.importFlags); });
    if (imported != RESULT_DONE) {
        return CannotOpen(err, gameFile);
    }
    return Written(err, cli.session.SaveOobAs(options.files[3]));
}

}  // namespace

int RunCliCommand(const CCliOptions& options, std::ostream& out, std::ostream& err) {
    const std::string& command = options.command;
    // check lists what it finds as its output; the other commands say it on the error stream.
    CCliSession cli(options, command == "check" ? nullptr : &err);
    if (command == "tree") {
        return Tree(cli, options, out, err);
    }
    if (command == "check") {
        return Check(cli, options, out, err);
    }
    if (command == "diff") {
        return Diff(cli, options, out, err);
    }
    if (command == "report") {
        return Report(cli, options, err);
    }
    if (command == "import") {
        return Import(cli, options, err);
    }
    if (command == "new") {
        if (int status = LoadTarget(cli, options.files[0], err)) {
            return status;
        }
        return Written(err, CSession::WriteSkeleton(*cli.database, options.files[1]));
    }
    if (command == "target") {
        if (int status = LoadTarget(cli, options.files[0], err)) {
            return status;
        }
        return Written(err, cli.database->Save(options.files[1]));
    }
    // save
    if (int status = LoadBoth(cli, options, err)) {
        return status;
    }
    if (int status = Written(err, cli.session.SaveOobAs(options.files[2]))) {
        return status;
    }
    if (!options.targetOut.empty()) {
        return Written(err, cli.session.Database()->Save(options.targetOut));
    }
    return EXIT_DONE;
}
