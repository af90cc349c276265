// SPDX-License-Identifier: MIT
//
// HEIF and AVIF files. ISO/IEC 23008-12; AV1 Image File Format 1.0.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

// Whether the brands of an ISO base media file are those of images. 512 bytes of head are enough.
bool isHeifFile(io::ByteView head);

// Fills the properties of the primary image: size as stored, before rotation; depth, colour model,
// alpha, profile name, density, orientation; the tile size in "{TIFF}"; and what the Exif and XMP
// items say. Coded images are not read. Returns none on success, also where there is no still but a
// sequence of images, of which nothing is said. Errors: "truncated HEIF" where the file ends before
// the size; "damaged HEIF" where there is no primary image or it has no size.
std::optional<model::Error> readHeifFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
