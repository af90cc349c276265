// SPDX-License-Identifier: MIT
//
// The "meta" box of HEIF and AVIF files: which items there are, what they are, where they lie, and
// how they belong together. ISO/IEC 14496-12, 8.11; ISO/IEC 23008-12.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "io/iso_box.h"
#include "io/source_reader.h"
#include "media/image/blocks/spliced_ranges.h"

namespace media::image {

struct HeifItem {
  std::uint32_t id = 0;
  model::FourCharCode type = 0;  // 'hvc1', 'grid', 'Exif', 'mime', ...
  std::string contentType;       // of 'mime' items: "application/rdf+xml"
};

// "from" is described by, made of, or else refers to "to".
struct HeifReference {
  model::FourCharCode type = 0;  // 'cdsc', 'dimg', 'auxl', 'thmb', ...
  std::uint32_t from = 0;
  std::uint32_t to = 0;
};

// All lists are bounded by the limits of the room; what is damaged is left out.
class HeifMeta {
 public:
  // Reads the box's tables. None where the file has no "meta" box at its top level. REQUIRES: the
  // file outlives the result.
  static std::optional<HeifMeta> read(io::SourceReader& file);

  std::optional<std::uint32_t> primaryItem() const { return _primaryItem; }
  const std::vector<HeifItem>& items() const { return _items; }
  const std::vector<HeifReference>& references() const { return _references; }

  // The item of an id, or null.
  const HeifItem* item(std::uint32_t id) const;
  // The first item that an item refers to in that way, if any.
  std::optional<std::uint32_t> firstReference(model::FourCharCode type, std::uint32_t from) const;

  // An item's properties, in the order in which they apply.
  std::vector<io::IsoBox> propertiesOf(std::uint32_t id);
  // The item's first property of that type, if any.
  std::optional<io::IsoBox> property(std::uint32_t id, model::FourCharCode type);

  // Where an item's bytes lie; empty where the file does not say or has them elsewhere.
  SplicedRanges bytesOf(std::uint32_t id);

 private:
  explicit HeifMeta(io::SourceReader& file) : _file(&file) {}
  void readPrimaryItem(const io::IsoBox& box);
  void readItems(const io::IsoBox& box);
  void readReferences(const io::IsoBox& box);
  void readProperties(const io::IsoBox& box);

  io::SourceReader* _file;
  std::optional<std::uint32_t> _primaryItem;
  std::vector<HeifItem> _items;
  std::vector<HeifReference> _references;
  std::vector<io::IsoBox> _properties;  // by their number, from 1
  std::vector<io::IsoBox> _associations;
  std::optional<io::IsoBox> _locations;
  std::optional<io::IsoBox> _itemData;
};

}  // namespace media::image
