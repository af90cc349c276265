// SPDX-License-Identifier: MIT
//
// An asset's date and size as the platform words them for the user.
#pragma once

#include <cstdint>
#include <string>

#include "bridge/foundation.h"
#include "lumifact/platform.h"

namespace lumifact {

// "Sep 30, 2018 at 2:03:20 PM": medium date and time; "(null)" for no date.
std::string dateText(NSDate date);

// "2.4 MB"; negative sizes too.
std::string fileSizeText(std::int64_t bytes);

}  // namespace lumifact
