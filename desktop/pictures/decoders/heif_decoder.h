// SPDX-License-Identifier: MIT
//
// HEIF and AVIF files with libheif: by a thumbnail item where one is large enough, else whole.
#pragma once

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// REQUIRES: the request is not empty.
model::Result<Picture> decodeHeif(io::ByteSource& source, const Request& request);

// Loads libheif's decoders.
void loadHeifDecoders();

}  // namespace desktop::pictures
