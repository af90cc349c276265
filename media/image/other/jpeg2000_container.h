// SPDX-License-Identifier: MIT
//
// JPEG 2000: JP2 and JPX files, and bare codestreams. ITU-T T.800, annexes A and I.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isJpeg2000File(io::ByteView head);

// Fills the properties: size, depth, colour model, density, alpha, profile name, and what the Exif,
// IPTC and XMP boxes say. Returns none on success. Errors: "truncated JPEG 2000" where the file
// ends before the size; "damaged JPEG 2000" where nothing gives one.
std::optional<model::Error> readJpeg2000File(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
