// SPDX-License-Identifier: MIT
//
// How a HEIF picture is made of tiles. ISO/IEC 23008-12, 6.6.2.3.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "desktop/pictures/pixels/orientation.h"
#include "media/image/heif/heif_meta.h"

namespace desktop::pictures {

struct HeifTileLayout {
  PixelSize size;  // of the picture, before it is turned
  PixelSize tile;
  int columns = 1;
  int rows = 1;
  Orientation orientation;
  std::vector<std::uint8_t> configuration;  // of all tiles: an HEVC configuration record
  std::vector<std::uint32_t> items;         // the tiles, row by row
};

// The layout of the primary picture; none where it is no grid of equal HEVC tiles that covers it,
// nor one HEVC picture, or has properties that change it in other ways than turning.
std::optional<HeifTileLayout> readHeifTileLayout(media::image::HeifMeta& meta,
                                                 io::SourceReader& file);

}  // namespace desktop::pictures
