// SPDX-License-Identifier: MIT
//
// Face regions. Metadata Working Group, Guidelines for Handling Image Metadata 2.0, 5.9.
#pragma once

#include <optional>

#include "media/image/xmp/xmp_value.h"
#include "model/value.h"

namespace media::image {

// The "Regions" of "{ExifAux}": the size of the image they were measured in, and the list.
std::optional<model::Value> xmpRegions(const XmpValue& regions);

}  // namespace media::image
