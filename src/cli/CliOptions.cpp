#include "cli/CliOptions.h"

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
    bool targetOut;
};

constexpr CommandShape kCommands[] = {
    {"new", 2, false},    {"tree", 2, false},  {"save", 3, true},
    {"target", 2, false}, {"check", 2, false},
};

const CommandShape* FindCommand(const std::string& name) {
    for (const auto& shape : kCommands) {
        if (name == shape.name) {
            return &shape;
        }
    }
    return nullptr;
}

}  // namespace

bool ParseCliOptions(int argc, char** argv, CCliOptions& options, std::string& error) {
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--unknown-class" || arg == "--target-out") {
            if (i + 1 >= argc) {
                error = arg + " needs a value";
                return false;
            }
            const std::string value = argv[++i];
            if (arg == "--target-out") {
                options.targetOut = value;
            } else if (value == "1" || value == "2" || value == "3") {
                options.unknownClass = value[0] - '0';
            } else {
                error = "--unknown-class takes 1, 2 or 3";
                return false;
            }
        } else if (arg.size() > 1 && arg[0] == '-' && arg[1] == '-') {
            error = "unknown option " + arg;
            return false;
        } else if (options.command.empty()) {
            options.command = arg;
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
    if (!options.targetOut.empty() && !shape->targetOut) {
        error = "--target-out goes with save only";
        return false;
    }
    return true;
}
