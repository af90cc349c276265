// SPDX-License-Identifier: MIT
//
// An image file as the properties dictionary of its first image, keys and value types as the
// phone's image framework gives them.
#pragma once

#include <optional>
#include <string>

#include "io/byte_source.h"
#include "model/result.h"
#include "model/value.h"

namespace media::image {

// The properties of the first image: "PixelWidth", "PixelHeight", "ColorModel", "Depth",
// "Orientation", "{Exif}", "{GPS}", "{TIFF}", "{MakerApple}", ... None where the bytes are no
// image (a movie, a text). Reads only what it needs: never coded pixels.
//
// Errors: a read that fails; an empty source ("empty file"); an image that ends before its size
// is known ("truncated JPEG"). Damaged metadata inside an image is no error: what cannot be read
// is left out.
model::Result<std::optional<model::Dictionary>> copyProperties(io::ByteSource& source);

// What an image file says beyond its dictionary.
struct ImageFacts {
  model::Dictionary properties;  // as copyProperties() gives them
  // The offset of "DateTimeOriginal" from UTC as it is written ("+02:00"): the phone's framework
  // does not show it, but when the photo was taken depends on it.
  std::optional<std::string> offsetTimeOriginal;
  // What a limit cut, to be told beside it: can stand behind "FILE: "; empty where nothing.
  std::string shortfall = {};
};

// As copyProperties(), with those facts.
model::Result<std::optional<ImageFacts>> readImageFacts(io::ByteSource& source);

}  // namespace media::image
