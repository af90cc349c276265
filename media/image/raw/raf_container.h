// SPDX-License-Identifier: MIT
//
// RAF, the raw files of Fujifilm's cameras.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/iso_box.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isRafFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, and what the metadata of the JPEG
// inside say. Older cameras do not say how deep the sensor's samples are. Returns none on success.
// Errors: "truncated RAF" where the file ends inside its header; "damaged RAF" where nothing in it
// gives a size.
std::optional<model::Error> readRafFile(io::SourceReader& file, model::Dictionary& properties);

// Where the JPEG inside lies, as the header says; nowhere without a header.
io::ByteRange innerJpegOfRaf(io::SourceReader& file);

}  // namespace media::image
