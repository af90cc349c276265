// SPDX-License-Identifier: MIT
//
// ICO files: icons of Windows, and cursors. Microsoft, "Icons".
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "io/source_reader.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

bool isIcoFile(io::ByteView head);

// Fills the properties of the first icon: size, depth, colour model, alpha. Returns none on
// success. Errors: "truncated ICO" where the file ends before the icon's own header; "damaged ICO"
// where that gives no size.
std::optional<model::Error> readIcoFile(io::SourceReader& file, model::Dictionary& properties);

}  // namespace media::image
