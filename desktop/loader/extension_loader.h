// SPDX-License-Identifier: MIT
//
// Maps extensions into a host, as a code-injection loader does: every NAME.so of a folder whose
// NAME.plist names the host.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/loader/extension_filter.h"

namespace desktop::loader {

// Hears of each extension that is passed over because it is broken: its file and why.
using LoadProblem = std::function<void(const std::string& path, const std::string& reason)>;

// Maps the matching extensions of the folder in the order of their names and answers the paths of
// those that were mapped; their initialisers have run. They stay for the life of the process, and
// each is mapped once however often it is asked for.
//
// A filter or library that is broken (or a filter without its library) is told to `problem` and
// passed over; a library without a filter is for nobody. A folder that does not exist holds no
// extensions; one that cannot be read is told.
std::vector<std::string> loadExtensions(const std::string& folder, const Host& host,
                                        const LoadProblem& problem);

}  // namespace desktop::loader
