// SPDX-License-Identifier: MIT
//
// Makes the Foundation of this process answer as the phone's does, where it differs: texts of
// sizes, dates, numbers and collections, the order of keys, links, property list files, the main
// bundle's identifier, and paths of the phone's file system.
#pragma once

#include "desktop/faces/foundation/foundation_options.h"

namespace desktop::faces {

// Replaces the methods in question on Foundation's own classes, once, and takes the options into
// use, each time. Locale and time zone are the process's: the locale is asked for when texts are
// first made. Not thread-safe: called before the main loop runs.
void correctFoundation(const FoundationOptions& options);

}  // namespace desktop::faces
