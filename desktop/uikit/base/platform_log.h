// SPDX-License-Identifier: MIT
//
// What the platform has to say to whoever debugs an application.
#pragma once

#include <string>

#include "bridge/runtime/object.h"

namespace desktop::uikit {

// Adds a line to the stage's log, where a host puts the lines of the debug log too.
void logLine(const std::string& line);

// How an object is called in a line: by its class.
std::string nameOf(bridge::Object object);

}  // namespace desktop::uikit
