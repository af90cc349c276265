// SPDX-License-Identifier: MIT
//
// What the desktop offers in place of the phone's system log: one function that takes a line.
#pragma once

#pragma GCC visibility push(default)
extern "C" {
// The texts are borrowed for the call; none is null.
void desktop_debugLog(const char* format, const char* source, int line, const char* text);
}
#pragma GCC visibility pop
