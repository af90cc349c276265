// SPDX-License-Identifier: MIT
//
// What the platform has to say to whoever debugs an application.
#pragma once

#include <string>
#include <vector>

#include "bridge/runtime/object.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// The lines so far; a host puts those of the debug log here too.
std::vector<std::string>& platformLog();
void logLine(const std::string& line);

// How an object is called in a line: by its class.
std::string nameOf(Object object);

}  // namespace desktop::uikit
