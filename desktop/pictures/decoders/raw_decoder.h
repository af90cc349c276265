// SPDX-License-Identifier: MIT
//
// Raw files of cameras that are TIFF structures (DNG, NEF, CR2, ARW), by the JPEG previews that
// they carry; sensor data are not developed.
#pragma once

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// The picture is at most as large as the largest preview. REQUIRES: the request is not empty.
model::Result<Picture> decodeRaw(io::ByteSource& source, const Request& request);

}  // namespace desktop::pictures
