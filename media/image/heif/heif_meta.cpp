// SPDX-License-Identifier: MIT
//
// The child boxes of "meta" become lists once: items, references, properties. Which properties an
// item has and where its bytes lie are looked up in their own boxes when somebody asks, since a
// picture has hundreds of tiles and only few items are asked about. Counts are taken from the file
// as they are; each walk ends where its bytes do, or at the limits of this room.
#include "media/image/heif/heif_meta.h"

#include <algorithm>

#include "media/image/blocks/limits.h"
#include "media/image/heif/heif_locations.h"

namespace media::image {

namespace {

using model::fourCharCode;

// The version of a full box, or none where the box is too short for one.
std::optional<std::uint8_t> versionOf(io::SourceReader& file, const io::IsoBox& box) {
  if (box.payload.size() < 4) return std::nullopt;
  return file.upTo(box.payload.begin, 1).u8(0);
}

// An id is wider from some version on.
std::optional<std::uint32_t> idAt(io::ByteView bytes, std::uint64_t offset, bool isWide) {
  if (isWide) return bytes.u32(offset, io::ByteOrder::big);
  return bytes.u16(offset, io::ByteOrder::big);
}

// An item information entry, of the versions that have a type. ISO/IEC 14496-12, 8.11.6.
std::optional<HeifItem> readItem(io::ByteView bytes) {
  const std::uint8_t version = bytes.u8(0).value_or(0);
  if (version < 2) return std::nullopt;
  const bool isWide = version > 2;
  const auto id = idAt(bytes, 4, isWide);
  const std::uint64_t typeOffset = isWide ? 10 : 8;  // a protection index stands between
  const auto type = bytes.u32(typeOffset, io::ByteOrder::big);
  if (!id || !type) return std::nullopt;
  HeifItem item{*id, *type, {}};
  if (*type != fourCharCode("mime")) return item;
  std::string_view texts = bytes.from(typeOffset + 4).text();  // a name, a content type
  const std::size_t nameEnd = texts.find('\0');
  if (nameEnd == std::string_view::npos) return item;
  texts.remove_prefix(nameEnd + 1);
  item.contentType = texts.substr(0, texts.find('\0'));
  return item;
}

// How many bytes of an item information entry are looked at.
constexpr std::uint64_t longestItemEntry = 512;

// Adds the references of one box: from one item to several.
void appendReferences(const io::IsoBox& box, io::ByteView bytes, bool isWide,
                      std::vector<HeifReference>& references) {
  const std::uint64_t width = isWide ? 4 : 2;
  const auto from = idAt(bytes, 0, isWide);
  const auto count = bytes.u16(width, io::ByteOrder::big);
  if (!from || !count) return;
  for (std::uint64_t index = 0; index < *count; ++index) {
    const auto to = idAt(bytes, width + 2 + index * width, isWide);
    if (!to || references.size() == limits.heifReferences) return;
    references.push_back({box.type, *from, *to});
  }
}

// There is one for each combination of version and flags.
constexpr std::size_t mostAssociationBoxes = 4;

// Walks the property association box and gives the numbers of one item's properties.
// ISO/IEC 23008-12, 9.3.
std::vector<std::size_t> propertyNumbers(io::ByteView bytes, std::uint32_t item) {
  const bool hasWideIds = bytes.u8(0).value_or(0) >= 1;
  const bool hasWideNumbers = (bytes.u8(3).value_or(0) & 1) != 0;
  const std::uint32_t count = bytes.u32(4, io::ByteOrder::big).value_or(0);
  const std::uint64_t idWidth = hasWideIds ? 4 : 2;
  const std::uint64_t width = hasWideNumbers ? 2 : 1;
  std::uint64_t offset = 8;
  for (std::uint32_t entry = 0; entry < count; ++entry) {
    const auto id = idAt(bytes, offset, hasWideIds);
    const auto length = bytes.u8(offset + idWidth);
    if (!id || !length) return {};
    offset += idWidth + 1;
    if (*id != item) {
      offset += *length * width;
      continue;
    }
    const auto numberAt = [&](std::uint64_t at) -> std::size_t {  // without the "essential" bit
      if (hasWideNumbers) return bytes.u16(at, io::ByteOrder::big).value_or(0) & 0x7FFF;
      return bytes.u8(at).value_or(0) & 0x7F;
    };
    std::vector<std::size_t> numbers;
    for (std::uint64_t index = 0; index < *length; ++index) {
      numbers.push_back(numberAt(offset + index * width));
    }
    return numbers;
  }
  return {};
}

}  // namespace

std::optional<HeifMeta> HeifMeta::read(io::SourceReader& file) {
  const auto meta =
      io::findBox(file, {0, file.size()}, fourCharCode("meta"), io::SourceReader::ReadAhead::none);
  if (!meta) return std::nullopt;
  HeifMeta result(file);
  io::IsoBoxWalk walk(file, io::fullBoxBody(*meta));
  while (const auto box = walk.next()) {
    if (box->is("pitm")) result.readPrimaryItem(*box);
    if (box->is("iinf")) result.readItems(*box);
    if (box->is("iref")) result.readReferences(*box);
    if (box->is("iprp")) result.readProperties(*box);
    if (box->is("iloc")) result._locations = *box;
    if (box->is("idat")) result._itemData = *box;
  }
  return result;
}

void HeifMeta::readPrimaryItem(const io::IsoBox& box) {
  const auto version = versionOf(*_file, box);
  const auto bytes = io::boxBytes(*_file, box, 64);
  if (version && bytes) _primaryItem = idAt(*bytes, 4, *version > 0);
}

void HeifMeta::readItems(const io::IsoBox& box) {
  const auto version = versionOf(*_file, box);
  if (!version) return;
  const std::uint64_t countEnd = *version == 0 ? 6 : 8;
  io::IsoBoxWalk walk(*_file, {box.payload.begin + countEnd, box.payload.end});
  while (const auto entry = walk.next()) {
    if (_items.size() == limits.heifItems) return;
    if (!entry->is("infe")) continue;
    const std::uint64_t length = std::min(entry->payload.size(), longestItemEntry);
    if (auto item = readItem(_file->upTo(entry->payload.begin, length))) {
      _items.push_back(*std::move(item));
    }
  }
}

void HeifMeta::readReferences(const io::IsoBox& box) {
  const auto version = versionOf(*_file, box);
  if (!version) return;
  io::IsoBoxWalk walk(*_file, io::fullBoxBody(box));
  while (const auto reference = walk.next()) {
    const auto bytes = io::boxBytes(*_file, *reference, limits.heifTableBytes);
    if (bytes) appendReferences(*reference, *bytes, *version > 0, _references);
  }
}

void HeifMeta::readProperties(const io::IsoBox& box) {
  io::IsoBoxWalk walk(*_file, box.payload);
  while (const auto child = walk.next()) {
    const bool isWanted = child->is("ipma") && _associations.size() < mostAssociationBoxes;
    if (isWanted) _associations.push_back(*child);
    if (!child->is("ipco")) continue;
    io::IsoBoxWalk properties(*_file, child->payload);
    while (const auto property = properties.next()) {
      if (_properties.size() == limits.heifProperties) break;
      _properties.push_back(*property);
    }
  }
}

const HeifItem* HeifMeta::item(std::uint32_t id) const {
  const auto found = std::ranges::find(_items, id, &HeifItem::id);
  return found == _items.end() ? nullptr : &*found;
}

std::optional<std::uint32_t> HeifMeta::firstReference(model::FourCharCode type,
                                                      std::uint32_t from) const {
  const auto found = std::ranges::find_if(_references, [&](const HeifReference& reference) {
    return reference.type == type && reference.from == from;
  });
  return found == _references.end() ? std::nullopt : std::optional(found->to);
}

std::vector<io::IsoBox> HeifMeta::propertiesOf(std::uint32_t id) {
  std::vector<io::IsoBox> found;
  for (const io::IsoBox& box : _associations) {
    const auto bytes = io::boxBytes(*_file, box, limits.heifTableBytes);
    if (!bytes) continue;
    for (const std::size_t number : propertyNumbers(*bytes, id)) {
      if (number > 0 && number <= _properties.size()) found.push_back(_properties[number - 1]);
    }
  }
  return found;
}

std::optional<io::IsoBox> HeifMeta::property(std::uint32_t id, model::FourCharCode type) {
  for (const io::IsoBox& box : propertiesOf(id)) {
    if (box.type == type) return box;
  }
  return std::nullopt;
}

SplicedRanges HeifMeta::bytesOf(std::uint32_t id) {
  SplicedRanges bytes;
  const auto table =
      _locations ? io::boxBytes(*_file, *_locations, limits.heifTableBytes) : std::nullopt;
  if (!table) return bytes;
  const HeifLocation location = findHeifLocation(*table, id);
  if (location.isInItemData && !_itemData) return bytes;
  const io::ByteRange around =
      location.isInItemData ? _itemData->payload : io::ByteRange{0, _file->size()};
  for (const io::ByteRange& extent : location.extents) {
    if (extent.begin >= around.size()) return {};
    const std::uint64_t end = std::min(extent.end, around.size());
    bytes.append({around.begin + extent.begin, around.begin + end});
  }
  return bytes;
}

}  // namespace media::image
