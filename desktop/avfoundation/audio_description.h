// SPDX-License-Identifier: MIT
//
// A sound sample entry as a format description with its stream description.
#pragma once

#include "desktop/avfoundation/sample_entry.h"

namespace desktop::avfoundation {

// REQUIRES: the entry is that of a sound track. Fields that are missing from a short entry are 0.
model::FormatDescription audioDescription(const SampleEntry& entry);

}  // namespace desktop::avfoundation
