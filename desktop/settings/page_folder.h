// SPDX-License-Identifier: MIT
//
// The pages of settings that extensions have put into a folder.
#pragma once

#include <string>
#include <vector>

#include "desktop/settings/page.h"
#include "model/result.h"

namespace desktop::settings {

// The pages of a folder's property lists in the order of their files' names. One that cannot be
// shown is a page without rows that says why. So is one that claims what another page has: a name
// that differs in nothing but capitals, which are one file on some systems, or a preference file.
// The page that comes first in the order of names has it.
//
// A folder that is missing holds none. Errors: what the system says of one that cannot be read;
// more pages than pageLimits allows.
model::Result<std::vector<Page>> readPages(const std::string& folder);

}  // namespace desktop::settings
