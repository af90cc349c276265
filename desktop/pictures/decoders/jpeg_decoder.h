// SPDX-License-Identifier: MIT
//
// JPEG files: by the thumbnail in their Exif block where that is large enough, else scaled while
// they are decoded.
#pragma once

#include <optional>

#include "desktop/pictures/pixels/orientation.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// The orientation is that of the Exif block, unless one is given. Where the file is cut off, the
// rest of the picture is gray. Errors: libjpeg's messages. REQUIRES: the request is not empty.
model::Result<Picture> decodeJpeg(io::ByteSource& source, const Request& request,
                                  std::optional<Orientation> orientation = std::nullopt);

}  // namespace desktop::pictures
