// SPDX-License-Identifier: MIT
//
// The formats that Qt's readers read: PNG, GIF, BMP, TIFF, WebP, each with its first image.
#pragma once

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// `format` is Qt's name: "png", "tiff". Raises Qt's limit of memory for one image to that of this
// room, for the whole process. Fails where Qt's reader of the format is not installed. REQUIRES:
// the request is not empty.
model::Result<Picture> decodeWithQt(const char* format, io::ByteSource& source,
                                    const Request& request);

// Loads Qt's readers.
void loadQtDecoders();

}  // namespace desktop::pictures
