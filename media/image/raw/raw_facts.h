// SPDX-License-Identifier: MIT
//
// What raw files of all makers have in common: a sensor's picture, and a JPEG for those who cannot
// develop it.
#pragma once

#include <cstdint>

#include "io/iso_box.h"
#include "io/source_reader.h"
#include "media/image/tiff/pixel_size.h"
#include "model/value.h"

namespace media::image {

// Says that the picture has that size and is in colour, of that many bits a sample; 0 where the
// file does not tell.
void setRawPixels(PixelSize size, std::int64_t depth, model::Dictionary& properties);

// Says which way up the picture is, by the degrees that it is turned clockwise to be shown; unless
// that is said already.
void setRotation(std::int64_t degrees, model::Dictionary& properties);

// The metadata of a JPEG inside; what the properties have already stays. Of the JPEG's own picture
// (size, colours, profile, "{JFIF}") nothing is said. Nothing where the range holds no JPEG.
void readInnerJpeg(io::SourceReader& file, io::ByteRange jpeg, model::Dictionary& properties);

}  // namespace media::image
