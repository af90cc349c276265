// SPDX-License-Identifier: MIT
//
// The command line read into a command and its options.
#pragma once

#include <string>
#include <vector>

#include "apps/lumifact/command_line/options.h"
#include "apps/lumifact/terminal/console.h"

namespace lumifact::tool {

// What to do: run a command, or print a text (help, the version), or tell what is wrong.
struct CommandLine {
  void (*run)(const Options& options, Console& console) = nullptr;
  Options options;
  std::string text;        // to print, where there is nothing to run
  std::string usageError;  // why the line makes no sense; empty where it does
};

// Reads the arguments behind the program's name. All behind "--" are files (or words of the
// command), whatever they look like.
CommandLine readCommandLine(const std::vector<std::string>& arguments);

}  // namespace lumifact::tool
