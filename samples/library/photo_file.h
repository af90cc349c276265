// SPDX-License-Identifier: MIT
//
// A photo of the library as a file's bytes.
#pragma once

#include "model/result.h"
#include "samples/formats/byte_writer.h"
#include "samples/library/item.h"

namespace samples {

// Errors: an encoder that is missing or fails.
model::Result<Bytes> makePhoto(const Photo& photo);

}  // namespace samples
