// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/heif_tile_layout.h"

#include <algorithm>
#include <string_view>

#include "desktop/pictures/pixels/limits.h"
#include "media/image/heif/heif_orientation.h"

namespace desktop::pictures {

namespace {

using media::image::HeifMeta;
using model::fourCharCode;

// Properties that leave the pixels where and as they are.
bool isHarmless(const io::IsoBox& property) {
  constexpr model::FourCharCode types[] = {
      fourCharCode("ispe"), fourCharCode("colr"), fourCharCode("pixi"), fourCharCode("hvcC"),
      fourCharCode("pasp"), fourCharCode("clli"), fourCharCode("mdcv"), fourCharCode("auxC"),
      fourCharCode("rloc"), fourCharCode("udes"), fourCharCode("altt"), fourCharCode("lsel")};
  return std::ranges::find(types, property.type) != std::end(types);
}

bool isTurn(const io::IsoBox& property) {
  return property.is("irot") || property.is("imir");
}

// None where the item has properties that change it in other ways.
std::optional<Orientation> orientationOf(HeifMeta& meta, io::SourceReader& file,
                                         std::uint32_t item) {
  const auto properties = meta.propertiesOf(item);
  const bool isTurnedOnly = std::ranges::all_of(
      properties, [](const auto& each) { return isTurn(each) || isHarmless(each); });
  if (!isTurnedOnly) return std::nullopt;
  return Orientation(media::image::heifOrientation(meta, file, item).value_or(1));
}

int sideOf(std::optional<std::uint32_t> length) {
  return static_cast<int>(std::min<std::uint32_t>(length.value_or(0), 1 << 30));
}

// ISO/IEC 23008-12, 6.5.3.
PixelSize extentOf(HeifMeta& meta, io::SourceReader& file, std::uint32_t item) {
  const auto box = meta.property(item, fourCharCode("ispe"));
  const auto bytes = box ? io::boxBytes(file, *box, 64) : std::nullopt;
  if (!bytes) return {};
  return {sideOf(bytes->u32(4, io::ByteOrder::big)), sideOf(bytes->u32(8, io::ByteOrder::big))};
}

// Reads what the grid's own bytes say. False where they are damaged.
bool readGrid(HeifMeta& meta, io::SourceReader& file, std::uint32_t item, HeifTileLayout& layout) {
  auto pieces = meta.bytesOf(item);
  const auto bytes = pieces.all(file);
  if (!bytes || bytes->size() < 8) return false;
  const bool isWide = (*bytes->u8(1) & 1) != 0;
  layout.rows = *bytes->u8(2) + 1;
  layout.columns = *bytes->u8(3) + 1;
  const auto side = [&](std::uint64_t index) {
    if (isWide) return sideOf(bytes->u32(4 + 4 * index, io::ByteOrder::big));
    return sideOf(bytes->u16(4 + 2 * index, io::ByteOrder::big));
  };
  layout.size = {side(0), side(1)};
  for (const auto& reference : meta.references()) {
    if (reference.type == fourCharCode("dimg") && reference.from == item)
      layout.items.push_back(reference.to);
  }
  return layout.items.size() ==
         static_cast<std::size_t>(layout.rows) * static_cast<std::size_t>(layout.columns);
}

// Whether all tiles are HEVC pictures with the same properties, none of which turns or crops it.
bool areAlike(HeifMeta& meta, const HeifTileLayout& layout) {
  const auto propertiesOf = [&](std::uint32_t item) {
    std::vector<std::uint64_t> places;
    for (const io::IsoBox& property : meta.propertiesOf(item)) {
      if (property.is("ispe") || property.is("hvcC")) places.push_back(property.offset);
      if (!isHarmless(property)) places.push_back(~property.offset);  // like no other's
    }
    return places;
  };
  const auto first = propertiesOf(layout.items.front());
  return std::ranges::all_of(layout.items, [&](std::uint32_t item) {
    const media::image::HeifItem* tile = meta.item(item);
    return tile != nullptr && tile->type == fourCharCode("hvc1") && propertiesOf(item) == first;
  });
}

bool isWithinLimits(const HeifTileLayout& layout) {
  const auto isSide = [](int length) { return length > 0 && length <= limits.imageSide; };
  const auto [width, height] = layout.size;
  const auto [tileWidth, tileHeight] = layout.tile;
  if (!isSide(width) || !isSide(height) || !isSide(tileWidth) || !isSide(tileHeight)) return false;
  // The grid covers the picture, and not a tile more.
  const auto covers = [](int count, int tile, int side) {
    return std::int64_t{count} * tile >= side && std::int64_t{count - 1} * tile < side;
  };
  // A tile must not be written over the next one.
  if (layout.columns > 1 && paddedWidth(tileWidth) != static_cast<std::size_t>(tileWidth))
    return false;
  const std::int64_t band = std::int64_t{layout.columns} * tileWidth * tileHeight * 4;
  return covers(layout.columns, tileWidth, width) && covers(layout.rows, tileHeight, height) &&
         band <= std::int64_t{limits.decodedMegabytes} << 20;
}

// Finds the tiles of an item. False where it is of another kind.
bool readTiles(HeifMeta& meta, io::SourceReader& file, const media::image::HeifItem& item,
               HeifTileLayout& layout) {
  if (item.type == fourCharCode("hvc1")) {
    layout.items = {item.id};
    layout.size = extentOf(meta, file, item.id);
    return true;
  }
  return item.type == fourCharCode("grid") && readGrid(meta, file, item.id, layout) &&
         areAlike(meta, layout);
}

}  // namespace

std::optional<HeifTileLayout> readHeifTileLayout(HeifMeta& meta, io::SourceReader& file) {
  const auto primary = meta.primaryItem();
  const media::image::HeifItem* item = primary ? meta.item(*primary) : nullptr;
  HeifTileLayout layout;
  if (item == nullptr || !readTiles(meta, file, *item, layout)) return std::nullopt;
  const auto orientation = orientationOf(meta, file, *primary);
  if (!orientation) return std::nullopt;
  layout.orientation = *orientation;
  layout.tile = extentOf(meta, file, layout.items.front());
  if (!isWithinLimits(layout)) return std::nullopt;
  const auto box = meta.property(layout.items.front(), fourCharCode("hvcC"));
  const auto configuration =
      box ? io::boxBytes(file, *box, limits.configurationBytes) : std::nullopt;
  if (!configuration) return std::nullopt;
  layout.configuration.assign(configuration->bytes().begin(), configuration->bytes().end());
  return layout;
}

}  // namespace desktop::pictures
