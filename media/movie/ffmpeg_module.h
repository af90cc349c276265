// SPDX-License-Identifier: MIT
//
// The door to FFmpeg: a module of our own that is mapped, with FFmpeg behind it, when the first
// file needs it. A program that meets none starts without its hundred libraries.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "model/media_asset.h"

namespace media::movie {

// What FFmpeg makes of a source. None where it knows nothing of it or takes too long, or where the
// module or FFmpeg is not installed. `name` is a hint to the kind of the file; it is not opened.
std::optional<model::MediaAsset> readWithFfmpeg(const std::string& name, io::ByteSource& source);

// The module's one function, under its C name. Fills the asset and returns 0, or returns another
// number and leaves it as it is.
extern "C" {
using ReadAssetWithFfmpeg = int (*)(const char* name, io::ByteSource* source,
                                    model::MediaAsset* asset);
}
inline constexpr char ffmpegModuleFunction[] = "desktopReadAssetWithFfmpeg";

}  // namespace media::movie
