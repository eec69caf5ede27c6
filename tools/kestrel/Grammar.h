// The grammar of the command line.
#pragma once

#include "tools/kestrel/Commands.h"

#include <CLI/CLI.hpp>
#include <string>

namespace kestrel {

inline std::string inQuotes(std::string const& text) { return '"' + text + '"'; }

/// Adds all commands to `app`, with options that fill `request`, which outlives it.
void addCommands(CLI::App& app, Request& request);

}  // namespace kestrel
