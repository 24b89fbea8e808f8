// harnwick-cli: the core of the editor in batch form.
#include <iostream>

#include "cli/CliCommands.h"
#include "cli/CliOptions.h"

int main(int argc, char** argv) {
    CCliOptions options;
    std::string error;
    if (!ParseCliOptions(argc, argv, options, error)) {
        std::cerr << "harnwick-cli: " << error << "\n\n" << kCliUsage;
        return EXIT_USAGE;
    }
    if (options.help) {
        std::cout << kCliUsage;
        return EXIT_DONE;
    }
    return RunCliCommand(options, std::cout, std::cerr);
}
