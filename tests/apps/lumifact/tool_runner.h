// SPDX-License-Identifier: MIT
//
// Runs the built tool as a user's shell does.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lumifact::tool {

// What a run had, and what came of it.
struct ToolRun {
  std::vector<std::string> arguments;
  std::string input = {};  // standard input
  // Set beside a plain environment: UTC, no locale, a home without settings.
  std::vector<std::pair<std::string, std::string>> variables = {};
  std::string folder = "/";  // working directory
};

struct ToolResult {
  int status = -1;  // the exit status; 1000 and the signal where one ended it
  std::string output;
  std::string messages;
};

ToolResult runTool(const ToolRun& run);
ToolResult runTool(const std::vector<std::string>& arguments);

// As above, with standard output and standard error on one terminal; both come as the output.
ToolResult runToolOnTerminal(const ToolRun& run);

// Runs a line of the shell, in which $TOOL is the tool.
ToolResult runShell(const std::string& line);

// The lines of a text.
std::vector<std::string> linesOf(const std::string& text);

}  // namespace lumifact::tool
