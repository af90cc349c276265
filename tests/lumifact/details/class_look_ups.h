// SPDX-License-Identifier: MIT
//
// Counts how often this program asks the runtime for a class by its name.
#pragma once

#include <string>

namespace lumifact::host {

// Since the program began.
int lookUpsOf(const std::string& className);

}  // namespace lumifact::host
