// The commands of harnwick-cli. Each returns the tool's exit status.
#pragma once

#include <iosfwd>

#include "cli/CliOptions.h"

int RunCliCommand(const CCliOptions& options, std::ostream& out, std::ostream& err);
