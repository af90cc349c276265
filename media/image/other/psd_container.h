// SPDX-License-Identifier: MIT
//
// PSD and PSB files. Adobe Photoshop File Formats Specification.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isPsdFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, alpha, profile name, and what the Exif,
// IPTC and XMP resources say. Returns none on success. Errors: "truncated PSD" where the file ends
// inside its header; "damaged PSD" where that gives no size.
std::optional<model::Error> readPsdFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
