// SPDX-License-Identifier: MIT
//
// Modules of our own that are mapped, with the libraries behind them, when something first needs
// them: a program that never does starts without those libraries.
#pragma once

#include <string>
#include <vector>

#include "model/result.h"

namespace io {

// The function of a module, or null where the module, or a library that it needs, is not installed
// as it should be; takeModuleProblems() says why. The module is one of the program's own files (see
// own_files.h); it stays mapped. Callable from several threads at once.
void* functionOfModule(const std::string& moduleName, const char* functionName);

// The same for the module in a file. Errors: a file that is no whole library, or no module; a
// module of another version, of which nothing has run then; what the dynamic loader says.
model::Result<void*> functionOfModuleAt(const std::string& path, const char* functionName);

// The path of a program that lies beside the modules; empty where it is not installed.
std::string fileBesideModules(const std::string& name);

// What kept modules from being mapped since the last call: a line a module, with its name or path.
std::vector<std::string> takeModuleProblems();

}  // namespace io
