// SPDX-License-Identifier: MIT
//
// MRW, the raw files of Minolta's cameras.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isMrwFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, and what the TIFF structure inside
// says. Returns none on success. Errors: "truncated MRW" where the file ends before the size;
// "damaged MRW" where no block gives one.
std::optional<model::Error> readMrwFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
