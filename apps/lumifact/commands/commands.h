// SPDX-License-Identifier: MIT
//
// The commands, one source file each: they do what checked options ask for. Results go to the
// console; a file that fails is reported there and the others go on.
#pragma once

#include "apps/lumifact/command_line/options.h"
#include "apps/lumifact/terminal/console.h"

namespace lumifact::tool {

void runReport(const Options& options, Console& console);
void runProperties(const Options& options, Console& console);
void runTable(const Options& options, Console& console);
void runQuickInfo(const Options& options, Console& console);
void runCaption(const Options& options, Console& console);
void runSize(const Options& options, Console& console);
void runMapLink(const Options& options, Console& console);
void runParse(const Options& options, Console& console);
void runBrowse(const Options& options, Console& console);
void runSettings(const Options& options, Console& console);

}  // namespace lumifact::tool
