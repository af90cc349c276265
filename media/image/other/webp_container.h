// SPDX-License-Identifier: MIT
//
// WebP files. Google, "WebP Container Specification"; RFC 6386, 9.1 (VP8); "WebP Lossless
// Bitstream Format", 3 (VP8L).
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isWebpFile(io::ByteView head);

// Fills the properties: size, depth, colour model, alpha, profile name, density, and what the Exif
// and XMP chunks say. Image data is jumped over. Returns none on success. Errors: "truncated WebP"
// where the file ends before the size; "damaged WebP" where no chunk gives one.
std::optional<model::Error> readWebpFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
