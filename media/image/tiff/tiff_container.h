// SPDX-License-Identifier: MIT
//
// TIFF files, and the raw files of cameras that are plain TIFF structures: DNG, NEF, ARW, ORF, PEF,
// SRW.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

// Whether a file that starts with these bytes (16 are enough) is a TIFF structure.
bool isTiffFile(io::ByteView head);

// Fills the properties of the file's main image: size, depth, colour model, density, alpha,
// profile name, and the metadata sections. The main image of a raw file is its largest one at
// full resolution, of the size that the camera's own pictures have; of other files it is the first.
// Returns none on success. Errors: "truncated TIFF" where the first IFD cannot be read; "TIFF
// without an image" where no IFD says how large it is.
std::optional<model::Error> readTiffFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
