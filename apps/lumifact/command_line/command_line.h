// SPDX-License-Identifier: MIT
//
// The command line read into a command and its options.
#pragma once

#include <string>
#include <vector>

#include "apps/lumifact/command_line/command.h"
#include "apps/lumifact/command_line/options.h"

namespace lumifact::tool {

// What to do: run a command, or print a text (help, the version), or tell what is wrong.
struct CommandLine {
  const Command* command = nullptr;  // to run, where there is neither a text nor an error
  Options options;
  std::string text;
  std::string usageError;  // why the line makes no sense; empty where it does
};

// Reads the arguments behind the program's name. The first word is the command; options stand
// before or behind it. The version, then help, comes before
// everything that is wrong.
CommandLine readCommandLine(const Tool& tool, const std::vector<std::string>& arguments);

}  // namespace lumifact::tool
