// SPDX-License-Identifier: MIT
//
// TGA files. Truevision, "TGA File Format Specification", 2.0.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isTgaFile(io::ByteView head);

// Fills the properties: size, depth, colour model, alpha. The format has no mark in front: a file
// is taken for one where each byte of its header may be one's. Returns none on success. Errors:
// "truncated TGA" where the file ends inside its header.
std::optional<model::Error> readTgaFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
