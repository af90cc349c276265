// SPDX-License-Identifier: MIT
//
// Which files the options of a command name.
#pragma once

#include <optional>

#include "apps/lumifact/command_line/options.h"
#include "apps/lumifact/files/file_list.h"
#include "model/result.h"

namespace lumifact::tool {

// Whether the options name files at all, or one file; the checks of commands over files.
std::optional<model::Error> checkFiles(const Options& options);
std::optional<model::Error> checkOneFile(const Options& options);

// The files that the options name, one after the other.
FileListRequest filesOf(const Options& options);

}  // namespace lumifact::tool
