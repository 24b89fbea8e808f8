// The command line of harnwick-cli: a command, its file arguments and its options.
#pragma once

#include <string>
#include <vector>

// Exit statuses. Each means one thing whatever the command, so a script that runs several
// commands can tell every outcome apart: diff's "the files differ" is 5 rather than the 1 of
// diff(1), since 1 already says that an input file cannot be opened.
enum : int {
    EXIT_DONE = 0,
    EXIT_CANNOT_OPEN = 1,
    EXIT_USAGE = 2,
    EXIT_CANNOT_WRITE = 3,
    EXIT_PROBLEMS = 4,
    EXIT_DIFFERENT = 5,
};

struct CCliOptions {
    std::string command;
    std::string report;  // html, cost, leader or key, for the report command
    std::vector<std::string> files;
    int unknownClass = 1;
    std::string targetOut;
    bool costs = false;   // --costs: the HTML report's cost values
    bool images = false;  // --images: the HTML report's images
    int importFlags = 0;  // IMPORT_* flags, from --missing and --empty
    bool help = false;
    bool version = false;
};

// Fills options from the arguments; false, with a message in error, when they make no sense.
bool ParseCliOptions(int argc, char** argv, CCliOptions& options, std::string& error);

// The tool's help: every command when command is empty, else that command's own.
std::string CliUsage(const std::string& command = {});
// "harnwick-cli VERSION" and a line end.
std::string CliVersion();
