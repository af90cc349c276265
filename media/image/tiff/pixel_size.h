// SPDX-License-Identifier: MIT
//
// How large a TIFF structure says that its image is.
#pragma once

#include <cstdint>
#include <optional>

#include "media/image/ifd/tiff_ifd.h"
#include "model/value.h"

namespace media::image {

struct PixelSize {
  std::int64_t width = 0;
  std::int64_t height = 0;

  bool isEmpty() const { return width <= 0 || height <= 0; }
  double area() const {
    return isEmpty() ? 0 : static_cast<double>(width) * static_cast<double>(height);
  }
};

// The number of a field at an index, a fraction cut to a whole one; none where it is missing, below
// 0 or beyond 32 bits.
std::optional<std::int64_t> integerOf(TiffStructure& structure, const Ifd& ifd, std::uint16_t tag,
                                      std::size_t index = 0);

// What the IFD's ImageWidth and ImageLength say.
PixelSize storedSize(TiffStructure& structure, const Ifd& ifd);

// The size that the Exif IFD gives, as it was read into the properties.
PixelSize exifSize(const model::Dictionary& properties);

// Of two sizes the one with more pixels.
inline PixelSize larger(PixelSize one, PixelSize other) {
  return other.area() > one.area() ? other : one;
}

}  // namespace media::image
