// SPDX-License-Identifier: MIT
//
// Raw files of cameras by the JPEG previews that they carry: those that are TIFF structures (DNG,
// NEF, CR2, ARW, ORF, PEF, RW2, SRW), and RAF; sensor data are not developed.
#pragma once

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// The picture is at most as large as the largest preview. REQUIRES: the request is not empty.
model::Result<Picture> decodeRaw(io::ByteSource& source, const Request& request);

// RAF has one preview, which says itself which way up it is.
model::Result<Picture> decodeRaf(io::ByteSource& source, const Request& request);

}  // namespace desktop::pictures
