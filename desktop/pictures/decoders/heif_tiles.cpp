// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/heif_tiles.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include "desktop/pictures/decoders/heif_tile_layout.h"
#include "desktop/pictures/decoders/tile_decoder.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/pixels/row_scaler.h"
#include "media/image/heif/heif_meta.h"

namespace desktop::pictures {

namespace {

using Coded = std::vector<std::uint8_t>;

// A row of tiles at a time.
class BandDecoder {
 public:
  explicit BandDecoder(const HeifTileLayout& layout)
      : _layout(layout), _width(paddedWidth(layout.columns * layout.tile.width)) {
    const int count = std::min(limits.decoderThreads, layout.columns);
    for (int number = 0; number < count; ++number)
      _decoders.push_back(makeTileDecoder({layout.tile, layout.configuration}));
    _pixels.resize(_width * static_cast<std::size_t>(layout.tile.height));
  }

  // Decodes the tiles of a band. False where one cannot be.
  bool decode(const std::vector<Coded>& tiles) {
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> isDamaged = false;
    const auto work = [&](TileDecoder* decoder) {
      for (std::size_t column = next++; column < tiles.size() && !isDamaged; column = next++) {
        if (decoder == nullptr || !decodeTile(*decoder, tiles[column], column)) isDamaged = true;
      }
    };
    std::vector<std::jthread> threads;
    for (std::size_t index = 1; index < _decoders.size(); ++index)
      threads.emplace_back(work, _decoders[index].get());
    work(_decoders.front().get());
    threads.clear();  // waits for them
    return !isDamaged;
  }

  std::span<const std::uint32_t> row(int number) const {
    return std::span(_pixels).subspan(static_cast<std::size_t>(number) * _width,
                                      static_cast<std::size_t>(_layout.size.width));
  }

 private:
  bool decodeTile(TileDecoder& decoder, const Coded& coded, std::size_t column) {
    const std::size_t left = column * static_cast<std::size_t>(_layout.tile.width);
    return decoder.decode(coded, &_pixels[left], static_cast<std::ptrdiff_t>(_width));
  }

  const HeifTileLayout& _layout;
  std::size_t _width;  // of a band, pixels
  std::vector<std::unique_ptr<TileDecoder>> _decoders;
  std::vector<std::uint32_t> _pixels;
};

// The coded tiles of a band; empty where some cannot be read.
std::vector<Coded> codedBand(media::image::HeifMeta& meta, io::SourceReader& file,
                             const HeifTileLayout& layout, int band) {
  std::vector<Coded> tiles;
  const auto columns = static_cast<std::size_t>(layout.columns);
  const std::size_t first = static_cast<std::size_t>(band) * columns;
  for (const std::uint32_t item : std::span(layout.items).subspan(first, columns)) {
    auto pieces = meta.bytesOf(item);
    const auto bytes = pieces.all(file);
    if (!bytes) return {};
    tiles.emplace_back(bytes->bytes().begin(), bytes->bytes().end());
  }
  return tiles;
}

}  // namespace

std::optional<Picture> decodeHeifTiles(io::ByteSource& source, PixelSize upright,
                                       PixelSize target) {
  io::SourceReader file(source);
  auto meta = media::image::HeifMeta::read(file);
  const auto layout = meta ? readHeifTileLayout(*meta, file) : std::nullopt;
  if (!layout || layout->orientation.turned(layout->size) != upright) return std::nullopt;
  RowScaler scaler(layout->size, layout->orientation.turned(target));
  BandDecoder decoder(*layout);
  for (int band = 0; band < layout->rows; ++band) {
    const auto coded = codedBand(*meta, file, *layout, band);
    if (coded.empty() || !decoder.decode(coded)) return std::nullopt;
    const int top = band * layout->tile.height;
    const int height = std::min(layout->tile.height, layout->size.height - top);
    for (int row = 0; row < height; ++row) scaler.addRow(decoder.row(row));
  }
  return layout->orientation.upright(scaler.take());
}

}  // namespace desktop::pictures
