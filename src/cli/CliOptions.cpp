#include "cli/CliOptions.h"

#include "model/GameImport.h"

const char* const kCliUsage =
    "Usage: harnwick-cli COMMAND FILES... [OPTIONS]\n"
    "\n"
    "Commands:\n"
    "  new TARGET OUT                 write the skeleton of a new order of battle to OUT\n"
    "  tree TARGET OOB                list every entry: key, type code, kind, name, cost, men\n"
    "  save TARGET OOB OUT            read OOB and write it to OUT as the editor saves it\n"
    "       [--target-out FILE]       also write the target file (with records added) to FILE\n"
    "  target TARGET OUT              read the target file and write it back to OUT\n"
    "  check TARGET OOB               list what a designer must fix in OOB\n"
    "  report html|cost|leader|key TARGET OOB OUT\n"
    "       [--costs] [--images]      write a report of OOB to OUT (the options: html only)\n"
    "  import TARGET OOB GAMEFILE OUT read the strengths left in GAMEFILE into OOB, write OUT\n"
    "       [--missing remove|zero|skip]  entries GAMEFILE does not mention (default remove)\n"
    "       [--empty remove|skip]     structures left without men (default remove)\n"
    "\n"
    "Options:\n"
    "  --unknown-class 1|2|3          class of unit types the target file lacks (1 infantry,\n"
    "                                 2 cavalry, 3 artillery; default 1)\n"
    "  --help                         print this text\n"
    "\n"
    "Exit status: 0 done, 1 an input file cannot be opened, 2 usage error,\n"
    "3 an output file cannot be written, 4 (check) problems found.\n";

namespace {

struct CommandShape {
    const char* name;
    std::size_t files;
};

constexpr CommandShape kCommands[] = {
    {"new", 2}, {"tree", 2}, {"save", 3}, {"target", 2}, {"check", 2}, {"report", 3}, {"import", 4},
};

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

}  // namespace

bool ParseCliOptions(int argc, char** argv, CCliOptions& options, std::string& error) {
    Given given;
    // The import dialog's first choices: remove what the game file does not mention, and remove
    // structures left empty.
    options.importFlags = IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
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
    if (options.help) {
        return true;
    }
    const CommandShape* shape = FindCommand(options.command);
    if (!shape) {
        error = options.command.empty() ? "no command given" : "unknown command " + options.command;
        return false;
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
