// The command line of harnwick-cli: a command, its file arguments and its options.
#pragma once

#include <string>
#include <vector>

// Exit statuses.
enum : int {
    EXIT_DONE = 0,
    EXIT_CANNOT_OPEN = 1,
    EXIT_USAGE = 2,
    EXIT_CANNOT_WRITE = 3,
    EXIT_PROBLEMS = 4,
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
};

// Fills options from the arguments; false, with a message in error, when they make no sense.
bool ParseCliOptions(int argc, char** argv, CCliOptions& options, std::string& error);

extern const char* const kCliUsage;
