// SPDX-License-Identifier: MIT
//
// The time zone of a run, by its name.
#pragma once

#include <string>

namespace lumifact::tool {

// A zone of the system's data base ("Europe/Berlin", "UTC"), or a POSIX rule ("CET-1CEST"). Where
// the system has no data base every name is taken. So a mistyped name is not taken for UTC.
bool timeZoneExists(const std::string& name);

// Makes the zone that of the process and of the programs that it becomes.
// REQUIRES: no other thread runs.
void setTimeZone(const std::string& name);

}  // namespace lumifact::tool
