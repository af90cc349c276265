// SPDX-License-Identifier: MIT
//
// The video usability information (VUI) of the sequence parameter sets that "avcC" and "hvcC" boxes
// carry: colour, range and chroma location. ITU-T H.264 and H.265, annex E.
#pragma once

#include <cstdint>
#include <optional>

#include "io/byte_view.h"
#include "media/movie/tracks/colour_tags.h"

namespace media::movie {

// The defaults are what holds where the stream does not say.
struct VideoUsability {
  bool isFullRange = false;
  std::optional<ColourCodes> colour;
  std::uint32_t chromaTopField = 0;
  std::uint32_t chromaBottomField = 0;
  std::uint32_t pixelWidth = 0;  // of a pixel's shape; 0 where it is not stated
  std::uint32_t pixelHeight = 0;

  bool operator==(const VideoUsability&) const = default;
};

// From the payload of an "avcC" or "hvcC" box (ISO/IEC 14496-15). The defaults where the parameter
// set is missing or damaged.
VideoUsability usabilityOfAvcConfiguration(io::ByteView configuration);
VideoUsability usabilityOfHevcConfiguration(io::ByteView configuration);

// From a bare stream: units behind marks, H.264 and H.265, annex B.
VideoUsability usabilityOfAvcStream(io::ByteView stream);
VideoUsability usabilityOfHevcStream(io::ByteView stream);

}  // namespace media::movie
