// SPDX-License-Identifier: MIT
//
// CRW, the raw files of Canon's cameras until 2004, which are heaps of records. Canon, "CIFF
// Specification on Image Data File", 1.0.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isCrwFile(io::ByteView head);

// Fills the properties: size, colour model, orientation, "{TIFF}", "{Exif}" and "{CIFF}". The
// records do not say how deep the sensor's samples are. Returns none on success. Errors: "truncated
// CRW" where the directory at the end of the file is missing; "damaged CRW" where no record gives a
// size.
std::optional<model::Error> readCrwFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
