// SPDX-License-Identifier: MIT
//
// BMP files of Windows and OS/2. Microsoft, "Bitmap Header Types".
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isBmpFile(io::ByteView head);

// Fills the properties: size, depth, colour model, density, alpha, profile name. Returns none on
// success. Errors: "truncated BMP" where the file ends inside its header; "damaged BMP" where the
// header gives no size.
std::optional<model::Error> readBmpFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
