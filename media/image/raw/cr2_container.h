// SPDX-License-Identifier: MIT
//
// CR2, the raw files of Canon's cameras from 2004 on: TIFF structures.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isCr2File(io::ByteView head);

// Fills the properties: size, depth, colour model, density, and the metadata sections. Returns none
// on success. Errors: "truncated CR2" where the first IFD cannot be read; "damaged CR2" where
// nothing says how large the image is.
std::optional<model::Error> readCr2File(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
