// SPDX-License-Identifier: MIT
//
// From a photo or video file to pixels.
#pragma once

#include <string>

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"

namespace desktop::pictures {

// Decodes the file at the path, as little of it as the request needs. What kind of file it is, its
// bytes say, and its name only where they do not.
//
// Errors: what the system says of opening ("No such file or directory", "Is a directory"); "not a
// regular file" for FIFOs and devices, which are not waited for; "empty file"; "not a picture or
// video"; else what its reader says. The decoders are libraries that a hostile file may crash or
// keep busy: programs that must not end with them use PictureLoader.
model::Result<Picture> decodePicture(const std::string& path, const Request& request);

// The same for a source. `name` tells its kind where the bytes do not; it is not opened. Errors:
// from "empty file" on.
model::Result<Picture> decodeSource(const std::string& name, io::ByteSource& source,
                                    const Request& request);

// Loads the libraries of all decoders, as a process that may not open files later has to.
void loadDecoders();

}  // namespace desktop::pictures
