// SPDX-License-Identifier: MIT
//
// JPEG files. ITU-T T.81, annex B; JFIF 1.02; EXIF 2.31, 4.5.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/iso_box.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isJpegFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, "{JFIF}", and what the Exif, XMP,
// Photoshop and ICC segments say. Reads no further than the first scan. Returns none on success.
// Errors: "truncated JPEG" where the file ends before the frame header; "damaged JPEG" where a
// scan, or no marker at all, comes before it.
std::optional<model::Error> readJpegFile(io::SourceReader& file, model::Dictionary& properties);

// The same for a JPEG in a range of a file. REQUIRES: the range lies in the file and starts as
// JPEG files do.
std::optional<model::Error> readJpeg(io::SourceReader& file, io::ByteRange jpeg,
                                     model::Dictionary& properties);

// Whether segments with the marker are frame headers: SOF0 to SOF15. Of such a segment the first
// byte is the depth.
bool isFrameHeader(std::uint8_t marker);

}  // namespace media::image
