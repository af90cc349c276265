// SPDX-License-Identifier: MIT
//
// Modules of our own that are mapped, with the libraries behind them, when something first needs
// them: a program that never does starts without those libraries.
#pragma once

#include <string>

namespace io {

// The function of a module, or null where the module, or a library that it needs, is not
// installed. The module is looked for in the module folder of the tree that the program lies in
// (the installed or the build tree), then where it was to be installed; it stays mapped.
void* functionOfModule(const std::string& moduleName, const char* functionName);

// The path of a program that lies beside the modules; empty where it is not installed.
std::string fileBesideModules(const std::string& name);

}  // namespace io
