// SPDX-License-Identifier: MIT
//
// Whether a name is that of a time zone, so that a mistyped one is not taken for UTC.
#pragma once

#include <string>

namespace lumifact::tool {

// A zone of the system's data base ("Europe/Berlin", "UTC"), or a POSIX rule ("CET-1CEST"). Where
// the system has no data base every name is taken.
bool timeZoneExists(const std::string& name);

}  // namespace lumifact::tool
