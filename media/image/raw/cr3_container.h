// SPDX-License-Identifier: MIT
//
// CR3, the raw files of Canon's cameras from 2018 on: ISO boxes around TIFF structures. Films of
// the same brand are no CR3.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isCr3File(io::ByteView head);

// Fills the properties: size, depth, colour model, density, and what the boxes of TIFF directories
// and the XMP box say. Returns none on success. Errors: "truncated CR3" where the file ends before
// the size; "damaged CR3" where no box gives one.
std::optional<model::Error> readCr3File(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
