// SPDX-License-Identifier: MIT
//
// X3F, the raw files of Sigma's cameras.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isX3fFile(io::ByteView head);

// Fills the properties: size, colour model, orientation, and what the JPEG inside and the list of
// properties say. No part of the file says how deep the sensor's samples are. Returns none on
// success. Errors: "truncated X3F" where the file ends inside its header; "damaged X3F" where that
// gives no size.
std::optional<model::Error> readX3fFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
