// SPDX-License-Identifier: MIT
//
// A phone's image is a grid: an item without pixels of its own, made of tiles which are items too.
// Some properties stand with the grid, some with its tiles only.
#include "media/image/heif/heif_container.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/heif/heif_color.h"
#include "media/image/heif/heif_meta.h"
#include "media/image/heif/heif_orientation.h"

namespace media::image {

namespace {

using model::fourCharCode;

// How many references to the primary image are followed to tell what an item is to it.
constexpr int mostFollowed = 64;

struct PixelSize {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
};

class HeifReader {
 public:
  HeifReader(io::SourceReader& file, HeifMeta& meta, model::Dictionary& properties)
      : _file(file), _meta(meta), _properties(properties) {}

  // Whether the image has a size.
  bool read() {
    const auto primary = _meta.primaryItem();
    if (!primary) return false;
    _primary = *primary;
    _tile = _meta.firstReference(fourCharCode("dimg"), _primary).value_or(_primary);
    const auto size = imageSize();
    if (!size) return false;
    _properties.insert_or_assign("PixelWidth", size->width);
    _properties.insert_or_assign("PixelHeight", size->height);
    _properties.insert_or_assign("PrimaryImage", true);
    readBlocks();
    readColor();
    readTileSize();
    readOrientation();
    if (hasAlpha()) _properties.insert_or_assign("HasAlpha", true);
    setDensityFromTiff(_properties);
    return true;
  }

 private:
  io::ByteView startOf(const std::optional<io::IsoBox>& property) {
    return property ? _file.upTo(property->payload.begin,
                                 std::min(property->payload.size(), longestStart))
                    : io::ByteView();
  }

  // A property of the primary image, or of its tiles where it has none.
  std::optional<io::IsoBox> sharedProperty(model::FourCharCode type) {
    const auto box = _meta.property(_primary, type);
    return box ? box : _meta.property(_tile, type);
  }

  // The spatial extents property. ISO/IEC 23008-12, 6.5.3.
  std::optional<PixelSize> extentsOf(std::uint32_t item) {
    const io::ByteView bytes = startOf(_meta.property(item, fourCharCode("ispe")));
    const PixelSize size{bytes.u32(4, io::ByteOrder::big).value_or(0),
                         bytes.u32(8, io::ByteOrder::big).value_or(0)};
    if (size.width == 0 || size.height == 0) return std::nullopt;
    return size;
  }

  bool isGrid() const {
    const HeifItem* item = _meta.item(_primary);
    return item && item->type == fourCharCode("grid");
  }

  // The size that the grid item's own bytes state. ISO/IEC 23008-12, 6.6.2.3.2.
  std::optional<PixelSize> gridSize() {
    SplicedRanges item = _meta.bytesOf(_primary);
    const auto bytes = item.view(_file, 0, std::min<std::uint64_t>(item.size(), 12));
    if (!bytes) return std::nullopt;
    const bool isWide = (bytes->u8(1).value_or(0) & 1) != 0;
    const auto number = [&](std::uint64_t index) -> std::uint32_t {
      if (isWide) return bytes->u32(4 + index * 4, io::ByteOrder::big).value_or(0);
      return bytes->u16(4 + index * 2, io::ByteOrder::big).value_or(0);
    };
    const PixelSize size{number(0), number(1)};
    if (size.width == 0 || size.height == 0) return std::nullopt;
    return size;
  }

  std::optional<PixelSize> imageSize() {
    if (const auto size = extentsOf(_primary)) return size;
    return isGrid() ? gridSize() : std::nullopt;
  }

  void readBlocks() {
    EmbeddedBlocks blocks;
    const HeifItem* exif =
        blockItem([](const HeifItem& item) { return item.type == fourCharCode("Exif"); });
    const HeifItem* xmp =
        blockItem([](const HeifItem& item) { return item.contentType == "application/rdf+xml"; });
    if (exif) blocks.exif = exifStructure(_meta.bytesOf(exif->id));
    if (xmp) blocks.xmp = _meta.bytesOf(xmp->id);
    readEmbeddedBlocks(_file, blocks, _properties);
  }

  // An item that describes the primary image, else any one.
  template <typename Test>
  const HeifItem* blockItem(Test test) const {
    int followed = 0;
    for (const HeifReference& reference : _meta.references()) {
      const bool describes = reference.type == fourCharCode("cdsc") && reference.to == _primary;
      if (!describes || ++followed > mostFollowed) continue;
      const HeifItem* item = _meta.item(reference.from);
      if (item && test(*item)) return item;
    }
    const auto any = std::ranges::find_if(_meta.items(), test);
    return any == _meta.items().end() ? nullptr : &*any;
  }

  // Behind a number that says how many more bytes come before the TIFF structure. ISO/IEC
  // 23008-12, A.2.1. Some writers leave the number out.
  SplicedRanges exifStructure(SplicedRanges item) {
    const auto start = item.view(_file, 0, std::min<std::uint64_t>(item.size(), 4));
    if (!start || start->startsWith("II*") || start->startsWith("MM")) return item;
    return item.from(4 + std::uint64_t{start->u32(0, io::ByteOrder::big).value_or(0)});
  }

  void readColor() {
    if (auto name = profileName()) setIfAbsent(_properties, "ProfileName", *std::move(name));
    HeifPixels pixels = heifPixels(startOf(sharedProperty(fourCharCode("pixi"))));
    if (pixels.depth == 0) pixels = hevcPixels(startOf(sharedProperty(fourCharCode("hvcC"))));
    if (pixels.depth == 0) pixels = av1Pixels(startOf(sharedProperty(fourCharCode("av1C"))));
    _properties.insert_or_assign("Depth", pixels.depth == 0 ? 8 : pixels.depth);
    _properties.insert_or_assign("ColorModel", pixels.isGray ? "Gray" : "RGB");
  }

  // A real profile goes before a name that only stands for numbers.
  std::optional<std::string> profileName() {
    std::optional<std::string> byNumbers;
    for (const std::uint32_t item : {_primary, _tile}) {
      for (const io::IsoBox& box : _meta.propertiesOf(item)) {
        if (!box.is("colr")) continue;
        if (auto name = heifIccName(_file, box)) return name;
        if (!byNumbers) byNumbers = heifCodedColorName(startOf(box));
      }
    }
    return byNumbers;
  }

  void readTileSize() {
    if (!isGrid()) return;
    const auto size = extentsOf(_tile);
    if (!size || _tile == _primary) return;
    model::Dictionary& tiff = section(_properties, "{TIFF}");
    tiff.insert_or_assign("TileWidth", size->width);
    tiff.insert_or_assign("TileLength", size->height);
  }

  // The image's own turns and mirrorings go before what Exif says: they are what is shown.
  void readOrientation() {
    const auto orientation = heifOrientation(_meta, _file, _primary);
    if (!orientation) return;
    _properties.insert_or_assign("Orientation", *orientation);
    section(_properties, "{TIFF}").insert_or_assign("Orientation", *orientation);
  }

  // Whether another item is the primary image's alpha plane. ISO/IEC 23008-12, 6.5.8.
  bool hasAlpha() {
    constexpr std::string_view names[] = {"urn:mpeg:mpegB:cicp:systems:auxiliary:alpha",
                                          "urn:mpeg:hevc:2015:auxid:1"};
    int followed = 0;
    for (const HeifReference& reference : _meta.references()) {
      const bool isAuxiliary = reference.type == fourCharCode("auxl") && reference.to == _primary;
      if (!isAuxiliary || ++followed > mostFollowed) continue;
      const io::ByteView type =
          startOf(_meta.property(reference.from, fourCharCode("auxC"))).from(4);
      const std::string_view name = type.text().substr(0, type.text().find('\0'));
      if (std::ranges::find(names, name) != std::end(names)) return true;
    }
    return false;
  }

  static constexpr std::uint64_t longestStart = 64;  // bytes of a property that are looked at

  io::SourceReader& _file;
  HeifMeta& _meta;
  model::Dictionary& _properties;
  std::uint32_t _primary = 0;
  std::uint32_t _tile = 0;  // the primary image itself where it has no tiles
};

// Whether the last box of the file ends behind the file.
bool isCutOff(io::SourceReader& file) {
  io::IsoBoxWalk walk(file, {0, file.size()}, io::SourceReader::ReadAhead::none);
  std::uint64_t end = 0;
  while (const auto box = walk.next()) {
    if (box->isCut) return true;
    end = box->payload.end;
  }
  return end < file.size();
}

// Frames without a still among them are a movie.
bool isSequence(io::SourceReader& file) {
  return io::findBox(file, {0, file.size()}, fourCharCode("moov"),
                     io::SourceReader::ReadAhead::none)
      .has_value();
}

}  // namespace

bool isHeifFile(io::ByteView head) {
  constexpr std::string_view imageBrands[] = {"heic", "heix", "heim", "heis", "hevc",
                                              "hevx", "hevm", "hevs", "mif1", "mif2",
                                              "mif3", "msf1", "miaf", "avif", "avis"};
  constexpr std::string_view movieBrands[] = {"qt  ", "isom", "iso2", "iso4", "iso5", "iso6",
                                              "mp41", "mp42", "avc1", "M4V ", "M4A ", "crx "};
  const auto isOneOf = [](std::string_view brand, auto& brands) {
    return std::ranges::find(brands, brand) != std::end(brands);
  };
  if (!head.from(4).startsWith("ftyp")) return false;
  const std::string_view brands =
      head.text().substr(0, head.u32(0, io::ByteOrder::big).value_or(0));
  if (brands.size() < 12 || isOneOf(brands.substr(8, 4), movieBrands)) return false;
  if (isOneOf(brands.substr(8, 4), imageBrands)) return true;
  for (std::size_t offset = 16; offset + 4 <= brands.size(); offset += 4) {
    if (isOneOf(brands.substr(offset, 4), imageBrands)) return true;
  }
  return false;
}

std::optional<model::Error> readHeifFile(io::SourceReader& file, model::Dictionary& properties) {
  auto meta = HeifMeta::read(file);
  if (meta && HeifReader(file, *meta, properties).read()) return std::nullopt;
  if (!meta && isSequence(file)) return std::nullopt;
  return model::Error{isCutOff(file) ? "truncated HEIF" : "damaged HEIF"};
}

}  // namespace media::image
