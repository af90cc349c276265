// SPDX-License-Identifier: MIT
//
// The loop that the commands over many files share: gather, work, print in order, report failures.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "apps/lumifact/command_line/options.h"
#include "apps/lumifact/files/file_runner.h"
#include "apps/lumifact/terminal/console.h"

namespace lumifact::tool {

// What is done with every file that the options name.
struct FileScan {
  // Makes a file's result; on any thread.
  std::function<model::Result<FileText>(const std::string& path)> work;
  // What stands between two results.
  std::string_view separator = {};
};

// Prints the results in the order of the files; failures are reported and the others go on.
void scanFiles(const Options& options, Console& console, const FileScan& scan);

// The text with a line break at its end, unless it has one.
std::string asLines(std::string text);

}  // namespace lumifact::tool
