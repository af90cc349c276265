// SPDX-License-Identifier: MIT
//
// RW2 and RWL, the raw files of Panasonic's and Leica's cameras: TIFF structures with tags of their
// own.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isRw2File(io::ByteView head);

// Fills the properties: size, depth, colour model, density, and what the metadata of the first IFD
// and of the JPEG inside say. Returns none on success. Errors: "truncated RW2" where the first IFD
// cannot be read; "damaged RW2" where it gives no size.
std::optional<model::Error> readRw2File(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
