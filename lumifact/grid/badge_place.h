// SPDX-License-Identifier: MIT
//
// Where a thumbnail's badge stands, so that the caption does not lie over it.
#pragma once

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

// Lifts the badge above the caption bar; in a panorama view brings it to the front and makes it a
// quarter as wide as it is, each time anew. Left alone are badges in the album list and beside a
// banner, and all of them where the user wants no captions.
void placeBadge(PUPhotoViewContentHelper helper);

}  // namespace lumifact
