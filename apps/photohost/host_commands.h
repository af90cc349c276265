// SPDX-License-Identifier: MIT
//
// The commands of scripts that only this application has: items, albums, selections.
#pragma once

#include "desktop/script/script_runner.h"

namespace photohost {

// open, peek, zoom-level, back, select and swipe-...; and "item N" for tap and long-press.
void addHostCommands(desktop::script::ScriptRunner& runner);

}  // namespace photohost
