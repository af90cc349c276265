// SPDX-License-Identifier: MIT
//
// The files that links name.
#pragma once

#include <optional>
#include <string>

#include "bridge/foundation/ns_files.h"
#include "desktop/platform.h"

namespace desktop::faces {

// Where the file of a link lies on disk, bytes as on disk: below the device root where the link is
// one of the phone's. None for nil and for links to anything but files.
std::optional<std::string> fileOnDisk(NSURL link);

}  // namespace desktop::faces
