// SPDX-License-Identifier: MIT
//
// PNG files. ISO/IEC 15948 (PNG), with the extensions eXIf and APNG.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isPngFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, alpha, profile name, "{PNG}", and what
// Exif, XMP and IPTC blocks say, be they chunks or texts. Image data is jumped over. Returns none
// on success. Errors: "truncated PNG" where the file ends before the size; "damaged PNG" where
// another chunk stands in its place.
std::optional<model::Error> readPngFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
