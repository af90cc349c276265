// SPDX-License-Identifier: MIT
//
// The list of properties of an X3F file: pairs of texts.
#pragma once

#include "io/byte_view.h"
#include "model/value.h"

namespace media::image {

// Fills "{TIFF}" and "{Exif}" from the section's bytes; values already present stay.
void readX3fProperties(io::ByteView list, model::Dictionary& properties);

}  // namespace media::image
