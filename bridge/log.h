// SPDX-License-Identifier: MIT
//
// The debug log: one line at debug level, "[source:line] text".
#pragma once

#include <string>

namespace bridge {

// On the phone the system log shows the line, with all its parts public; on the desktop the host
// decides where it goes.
void logDebug(const char* source, int line, const std::string& text);

}  // namespace bridge
