// SPDX-License-Identifier: MIT
//
// Photoshop's image resources, of which only the IPTC datasets are read; thumbnails and paths are
// passed over. Adobe Photoshop File Formats Specification, "Image Resource Blocks".
#pragma once

#include "desktop/imageio/spliced_ranges.h"
#include "model/value.h"

namespace desktop::imageio {

// As readPhotoshopResources(ByteView, ...) of metadata_blocks.h, for resources read on demand.
void readPhotoshopResources(const BlockReader& resources, model::Dictionary& properties);

}  // namespace desktop::imageio
