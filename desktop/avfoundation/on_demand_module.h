// SPDX-License-Identifier: MIT
//
// Modules of our own that are mapped, with the libraries behind them, when the first file needs
// them.
#pragma once

#include <string>

namespace desktop::avfoundation {

// The function of a module, or null where the module, or a library that it needs, is not
// installed. The module is looked for beside the program, in the library folder that belongs to
// the program, and where it was to be installed; it stays mapped.
void* functionOfModule(const std::string& moduleName, const char* functionName);

}  // namespace desktop::avfoundation
