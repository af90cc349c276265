// SPDX-License-Identifier: MIT
//
// Where the files lie that were built or installed together with the running program.
#pragma once

#include <string>
#include <string_view>

namespace io {

// A file of the program's own: `built` below the build tree for a program that lies in it, else
// `installed` below the prefix of which the program's folder is the one for programs, else below
// the prefix that it was to be installed in. Empty where there is none; no other folder is looked
// into, whatever lies above the program.
std::string ownFile(std::string_view built, std::string_view installed);

}  // namespace io
