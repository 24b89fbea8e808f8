#include "cli/CliOptions.h"

#include <iterator>

#include "model/GameImport.h"

namespace {

// A command, the number of files it takes and its help.
struct CommandShape {
    const char* name;
    std::size_t files;
    const char* synopsis;       // its arguments, after the tool's name
    const char* summary;        // what it does, on one line
    const char* options;        // its own options, a line each
    unsigned statuses;          // bit n: it may exit with status n
    bool readsOob;              // takes --unknown-class
    const char* done = "done";  // what status 0 says
};

// The exit statuses, each with the one command it belongs to, if any.
struct StatusText {
    const char* command;
    const char* text;
};
constexpr StatusText kStatuses[] = {
    {nullptr, "done (check: nothing to fix; diff: no differences)"},
    {nullptr, "an input file cannot be opened"},
    {nullptr, "usage error"},
    {nullptr, "an output file cannot be written"},
    {"check", "problems found"},
    {"diff",
     "the orders of battle differ (not 1, as diff(1) has it: every status\n"
     "     means one thing whatever the command, and 1 says a file cannot be opened)"},
};
static_assert(std::size(kStatuses) == EXIT_DIFFERENT + 1);

constexpr unsigned kReads = 1U << EXIT_DONE | 1U << EXIT_CANNOT_OPEN | 1U << EXIT_USAGE;
constexpr unsigned kWrites = kReads | 1U << EXIT_CANNOT_WRITE;

constexpr CommandShape kCommands[] = {
    {"new", 2, "new TARGET OUT", "write the skeleton of a new order of battle to OUT", "", kWrites,
     false},
    {"tree", 2, "tree TARGET OOB", "list every entry: key, type code, kind, name, cost, men", "",
     kReads, true},
    {"save", 3, "save TARGET OOB OUT [--target-out FILE]",
     "read OOB and write it to OUT as the editor saves it",
     "  --target-out FILE       also write the target file, with the records added while\n"
     "                          reading OOB, to FILE\n",
     kWrites, true},
    {"target", 2, "target TARGET OUT", "read the target file and write it back to OUT", "", kWrites,
     false},
    {"check", 2, "check TARGET OOB", "list, once each, what a designer must fix in OOB", "",
     kReads | 1U << EXIT_PROBLEMS, true, "nothing to fix"},
    {"diff", 3, "diff TARGET A B",
     "list the entries removed, added, moved and changed from order of battle A to B", "",
     kReads | 1U << EXIT_DIFFERENT, true, "no differences"},
    {"report", 3, "report html|cost|leader|key TARGET OOB OUT [--costs] [--images]",
     "write a report of OOB to OUT",
     "  --costs                 the HTML report shows the cost values\n"
     "  --images                the HTML report shows the images\n",
     kWrites, true},
    {"import", 4, "import TARGET OOB GAMEFILE OUT [--missing HOW] [--empty HOW]",
     "read the strengths left in GAMEFILE into OOB and write OUT",
     "  --missing remove|zero|skip  what becomes of entries GAMEFILE does not mention\n"
     "                          (default remove)\n"
     "  --empty remove|skip     what becomes of structures left without men (default\n"
     "                          remove)\n",
     kWrites, true},
};

constexpr const char* kUnknownClassOption =
    "  --unknown-class 1|2|3   class of unit types the target file lacks (1 infantry,\n"
    "                          2 cavalry, 3 artillery; default 1)\n";
constexpr const char* kHelpOption = "  --help                  print this text\n";

bool IsReport(const std::string& name) {
    return name == "html" || name == "cost" || name == "leader" || name == "key";
}

// The options given, to refuse those that do not go with the command.
struct Given {
    bool targetOut = false;
    bool html = false;
    bool import = false;
};

const CommandShape* FindCommand(const std::string& name) {
    for (const auto& shape : kCommands) {
        if (name == shape.name) {
            return &shape;
        }
    }
    return nullptr;
}

// Takes the value of an option that has one.
bool TakeValue(const std::string& arg, const std::string& value, CCliOptions& options, Given& given,
               std::string& error) {
    if (arg == "--target-out") {
        options.targetOut = value;
        given.targetOut = true;
    } else if (arg == "--unknown-class") {
        if (value != "1" && value != "2" && value != "3") {
            error = "--unknown-class takes 1, 2 or 3";
            return false;
        }
        options.unknownClass = value[0] - '0';
    } else if (arg == "--missing") {
        options.importFlags &= ~(IMPORT_REMOVE_MISSING | IMPORT_ZERO_MISSING);
        if (value == "remove") {
            options.importFlags |= IMPORT_REMOVE_MISSING;
        } else if (value == "zero") {
            options.importFlags |= IMPORT_ZERO_MISSING;
        } else if (value != "skip") {
            error = "--missing takes remove, zero or skip";
            return false;
        }
        given.import = true;
    } else {  // --empty
        options.importFlags &= ~IMPORT_REMOVE_EMPTY;
        if (value == "remove") {
            options.importFlags |= IMPORT_REMOVE_EMPTY;
        } else if (value != "skip") {
            error = "--empty takes remove or skip";
            return false;
        }
        given.import = true;
    }
    return true;
}

// "Exit status:" and the statuses of one command, or of every command when it is none.
std::string Statuses(const CommandShape* command) {
    const bool named = !command;
    const unsigned mask = command ? command->statuses : ~0U;
    std::string text =
        "Exit status:\n  0  " + std::string(command ? command->done : kStatuses[0].text) + "\n";
    for (int status = 1; status <= EXIT_DIFFERENT; ++status) {
        if (mask & 1U << status) {
            const StatusText& s = kStatuses[status];
            text += "  " + std::to_string(status) + "  " +
                    (named && s.command ? s.command + std::string(": ") : "") + s.text + "\n";
        }
    }
    return text;
}

}  // namespace

std::string CliUsage(const std::string& command) {
    if (const CommandShape* shape = FindCommand(command)) {
        return std::string("Usage: harnwick-cli ") + shape->synopsis + " [OPTIONS]\n\n" + "  " +
               shape->summary + "\n\nOptions:\n" + shape->options +
               (shape->readsOob ? kUnknownClassOption : "") + kHelpOption + "\n" + Statuses(shape);
    }
    std::string usage =
        "Usage: harnwick-cli COMMAND FILES... [OPTIONS]\n"
        "       harnwick-cli COMMAND --help\n"
        "       harnwick-cli --version\n"
        "\n"
        "Commands:\n";
    for (const CommandShape& shape : kCommands) {
        usage += "  " + std::string(shape.synopsis) + "\n      " + shape.summary + "\n";
    }
    return usage + "\nOptions:\n" + kUnknownClassOption + kHelpOption +
           "  --version               print the version\n"
           "Each command's own options: harnwick-cli COMMAND --help\n\n" +
           Statuses(nullptr);
}

std::string CliVersion() {
    return "harnwick-cli " HARNWICK_VERSION "\n";
}

bool ParseCliOptions(int argc, char** argv, CCliOptions& options, std::string& error) {
    Given given;
    // The import dialog's first choices: remove what the game file does not mention, and remove
    // structures left empty.
    options.importFlags = IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--version") {
            options.version = true;
        } else if (arg == "--costs" || arg == "--images") {
            (arg == "--costs" ? options.costs : options.images) = true;
            given.html = true;
        } else if (arg == "--unknown-class" || arg == "--target-out" || arg == "--missing" ||
                   arg == "--empty") {
            if (i + 1 >= argc) {
                error = arg + " needs a value";
                return false;
            }
            if (!TakeValue(arg, argv[++i], options, given, error)) {
                return false;
            }
        } else if (arg.size() > 1 && arg[0] == '-' && arg[1] == '-') {
            error = "unknown option " + arg;
            return false;
        } else if (options.command.empty()) {
            options.command = arg;
        } else if (options.command == "report" && options.report.empty()) {
            options.report = arg;
        } else {
            options.files.push_back(arg);
        }
    }
    const CommandShape* shape = FindCommand(options.command);
    if ((options.command.empty() && options.help) || options.version) {
        return true;
    }
    if (!shape) {
        error = options.command.empty() ? "no command given" : "unknown command " + options.command;
        return false;
    }
    if (options.help) {
        return true;
    }
    if (options.files.size() != shape->files) {
        error = options.command + " takes " + std::to_string(shape->files) + " files";
        return false;
    }
    if (options.command == "report" && !IsReport(options.report)) {
        error = "report takes html, cost, leader or key";
        return false;
    }
    if (given.targetOut && options.command != "save") {
        error = "--target-out goes with save only";
        return false;
    }
    if (given.html && options.report != "html") {
        error = "--costs and --images go with report html only";
        return false;
    }
    if (given.import && options.command != "import") {
        error = "--missing and --empty go with import only";
        return false;
    }
    return true;
}
