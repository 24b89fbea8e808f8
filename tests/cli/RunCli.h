// harnwick-cli run in process: its exit status and what it wrote on its two streams.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/CliCommands.h"
#include "cli/CliOptions.h"

struct CliRun {
    int status;
    std::string out;
    std::string err;
};

// What the tool does with these arguments: the usage error, or the command's run.
inline CliRun RunCli(std::vector<std::string> args) {
    std::vector<char*> argv{const_cast<char*>("harnwick-cli")};
    for (std::string& arg : args) {
        argv.push_back(arg.data());
    }
    CCliOptions options;
    std::string error;
    if (!ParseCliOptions(static_cast<int>(argv.size()), argv.data(), options, error)) {
        return {EXIT_USAGE, "", error};
    }
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCliCommand(options, out, err);
    return {status, out.str(), err.str()};
}
