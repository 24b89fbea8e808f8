// harnwick-cli: the core of the editor in batch form.
#include <iostream>

#include "cli/CliCommands.h"
#include "cli/CliOptions.h"

int main(int argc, char** argv) {
    CCliOptions options;
    std::string error;
    if (!ParseCliOptions(argc, argv, options, error)) {
        std::cerr << "harnwick-cli: " << error << "\n\n" << CliUsage(options.command);
        return EXIT_USAGE;
    }
    if (options.help || options.version) {
        std::cout << (options.help ? CliUsage(options.command) : CliVersion());
        return EXIT_DONE;
    }
    return RunCliCommand(options, std::cout, std::cerr);
}
