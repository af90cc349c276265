// SPDX-License-Identifier: MIT
//
// OpenEXR files. "OpenEXR File Layout".
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isExrFile(io::ByteView head);

// Fills the properties: size, depth, colour model, alpha, floats, of the first part. Returns none
// on success. Errors: "truncated EXR" where the file ends before the size; "damaged EXR" where no
// attribute gives one.
std::optional<model::Error> readExrFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
