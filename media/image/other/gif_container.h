// SPDX-License-Identifier: MIT
//
// GIF files. GIF89a Specification, clauses 17 to 26.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isGifFile(io::ByteView head);

// Fills the properties: size, depth, colour model, alpha, the first frame's delay in "{GIF}", and
// what an XMP packet before it says. Reads no further than the first frame's header. Returns none
// on success. Errors: "truncated GIF" where the file ends before the size.
std::optional<model::Error> readGifFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
