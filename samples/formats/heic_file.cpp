// SPDX-License-Identifier: MIT
//
// A phone's HEIC: the picture as a grid of tiles that are coded each by itself, a thumbnail beside
// it, and metadata as items that describe the grid. Items are collected first, with their
// properties and bytes; where they lie is known only when all of them are, and is written in front
// of them.
#include "samples/formats/heic_file.h"

#include "samples/coding/video_encoder.h"
#include "samples/formats/box_writer.h"
#include "samples/formats/heic_items.h"

namespace samples {

namespace {

constexpr int tileSize = 512;
constexpr int thumbnailWidth = 320;
constexpr int thumbnailHeight = 240;

// Properties of the pictures, in the order in which the phone lists them.
enum Property {
  profile = 1,
  tileCoding,
  tileExtent,
  extent,
  rotation,
  depth,
  thumbnailCoding,
  thumbnailExtent,
};

Bytes profileBox(const Bytes& icc) {
  BoxWriter box;
  box.begin("colr");
  box.text("prof");
  box.append(icc);
  box.end();
  return box.take();
}

Bytes codingBox(const Bytes& configuration) {
  BoxWriter box;
  box.begin("hvcC");
  box.append(configuration);
  box.end();
  return box.take();
}

Bytes extentBox(int width, int height) {
  BoxWriter box;
  box.begin("ispe", 0);
  box.u32(width);
  box.u32(height);
  box.end();
  return box.take();
}

// Quarter turns against the clock.
Bytes rotationBox(int orientation) {
  BoxWriter box;
  box.begin("irot");
  box.u8(orientation == 6 ? 3 : orientation == 3 ? 2 : orientation == 8 ? 1 : 0);
  box.end();
  return box.take();
}

Bytes depthBox() {
  BoxWriter box;
  box.begin("pixi", 0);
  for (const int part : {3, 8, 8, 8}) box.u8(part);
  box.end();
  return box.take();
}

Bytes gridData(const Picture& stored, int rows, int columns) {
  ByteWriter data;
  data.u16(0);
  data.u8(rows - 1);
  data.u8(columns - 1);
  data.u16(stored.width());
  data.u16(stored.height());
  return data.take();
}

// A tile of the picture; past its edges the last pixels are repeated.
Picture tileAt(const Picture& stored, int left, int top) {
  Picture tile(tileSize, tileSize);
  for (int y = 0; y < tileSize; ++y)
    for (int x = 0; x < tileSize; ++x) tile.at(x, y) = stored.clamped(left + x, top + y);
  return tile;
}

model::Result<CodedVideo> encodeTiles(const Picture& stored, int rows, int columns) {
  return encodeVideo({.codec = VideoCodec::hevc,
                      .width = tileSize,
                      .height = tileSize,
                      .quality = 22,
                      .stillPictures = true},
                     rows * columns, [&](int index) {
                       return tileAt(stored, index % columns * tileSize,
                                     index / columns * tileSize);
                     });
}

model::Result<CodedVideo> encodeThumbnail(const Picture& stored) {
  return encodeVideo({.codec = VideoCodec::hevc,
                      .width = thumbnailWidth,
                      .height = thumbnailHeight,
                      .quality = 26,
                      .stillPictures = true},
                     1, [&](int) { return reduced(stored, thumbnailWidth, thumbnailHeight); });
}

// The offset of the TIFF block behind the marker that JPEG files have before it.
Bytes exifItem(const Bytes& block) {
  ByteWriter data;
  data.u32(6);
  data.text(std::string_view("Exif\0\0", 6));
  data.append(block);
  return data.take();
}

void addMetadata(HeifPicture& picture, const HeicLook& look) {
  const auto add = [&](std::string_view type, Bytes data) {
    picture.items.push_back({.type = type,
                             .data = std::move(data),
                             .isHidden = true,
                             .reference = "cdsc",
                             .targets = {picture.primary}});
  };
  if (!look.exif.empty()) add("Exif", exifItem(look.exif));
  if (!look.xmp.empty()) add("mime", Bytes(look.xmp.begin(), look.xmp.end()));
}

// Pictures before metadata or behind them.
void setOrder(HeifPicture& picture, bool metadataLast) {
  std::vector<std::size_t> metadata;
  for (std::size_t index = 0; index < picture.items.size(); ++index) {
    const HeifItem& item = picture.items[index];
    if (item.insideMeta) continue;
    (item.type == "hvc1" ? picture.order : metadata).push_back(index);
  }
  picture.order.insert(metadataLast ? picture.order.end() : picture.order.begin(), metadata.begin(),
                       metadata.end());
}

}  // namespace

model::Result<Bytes> phoneHeicFile(const Picture& stored, const HeicLook& look) {
  const int rows = (stored.height() + tileSize - 1) / tileSize;
  const int columns = (stored.width() + tileSize - 1) / tileSize;
  const model::Result<CodedVideo> tiles = encodeTiles(stored, rows, columns);
  if (!tiles) return tiles.error();
  const model::Result<CodedVideo> thumbnail = encodeThumbnail(stored);
  if (!thumbnail) return thumbnail.error();
  HeifPicture picture;
  picture.properties = {profileBox(look.profile),
                        codingBox(tiles->configuration),
                        extentBox(tileSize, tileSize),
                        extentBox(stored.width(), stored.height()),
                        rotationBox(look.orientation),
                        depthBox(),
                        codingBox(thumbnail->configuration),
                        extentBox(thumbnailWidth, thumbnailHeight)};
  HeifItem grid{.type = "grid",
                .data = gridData(stored, rows, columns),
                .insideMeta = true,
                .properties = {extent, profile, rotation, depth},
                .reference = "dimg"};
  for (const CodedFrame& tile : tiles->frames) {
    grid.targets.push_back(picture.items.size());
    picture.items.push_back({.type = "hvc1",
                             .data = tile.data,
                             .isHidden = true,
                             .properties = {tileExtent, profile, tileCoding}});
  }
  picture.primary = picture.items.size();
  picture.items.push_back(std::move(grid));
  picture.items.push_back(
      {.type = "hvc1",
       .data = thumbnail->frames.front().data,
       .properties = {thumbnailExtent, profile, thumbnailCoding, rotation, depth},
       .reference = "thmb",
       .targets = {picture.primary}});
  addMetadata(picture, look);
  setOrder(picture, look.exifLast);
  return heifFile(picture);
}

}  // namespace samples
