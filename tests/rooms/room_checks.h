// SPDX-License-Identifier: MIT
//
// The rules that all rooms keep. Each check answers one line an offence, which names the files and
// the rule, in the order of the paths.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/rooms/room_rules.h"
#include "tests/rooms/source_tree.h"

namespace rooms {

using Offences = std::vector<std::string>;

// A room includes its own files, and what its line allows; of the folders that its line puts in
// order, each includes itself and those before it. What belongs to no room may include everything.
Offences forbiddenIncludes(const SourceTree& tree, const std::vector<Room>& rooms);

// No file includes itself by way of others, a header and the source of its name taken as one. Names
// each include that a circle goes through.
Offences circlesOfFiles(const SourceTree& tree);

// The platform and what is made for any extension name none, in no spelling. REQUIRES: the name is
// in lower case.
Offences namesOfProduct(const SourceTree& tree, std::string_view product);

// The nearest README.md above a file (that of the root apart) names it in `such quotes`: with or
// without its suffix, or as a pattern with `*`.
Offences filesWithoutWords(const SourceTree& tree);

// No folder holds more than thirty headers and sources.
Offences fullFolders(const SourceTree& tree);

// A source of more than 150 lines, tests apart, opens with at least two lines on how it works.
Offences longSourcesWithoutWords(const SourceTree& tree);

}  // namespace rooms
