// SPDX-License-Identifier: MIT
//
// The widths of offsets, lengths and indices are given once for all items, and may be 0. An item
// may claim any number of extents, so the extents of items that are not wanted are jumped over by
// multiplication, never one by one.
#include "media/image/heif/heif_locations.h"

#include <optional>

#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

// Takes big-endian numbers of given widths off the front.
class Cursor {
 public:
  explicit Cursor(io::ByteView rest) : _rest(rest) {}

  // None behind the end; 0 for a width of 0.
  std::optional<std::uint64_t> take(std::uint64_t width) {
    const auto bytes = _rest.sub(0, width);
    if (!bytes || width > 8) return std::nullopt;
    std::uint64_t value = 0;
    for (const std::uint8_t byte : bytes->bytes()) value = (value << 8) | byte;
    _rest = _rest.from(width);
    return value;
  }
  bool skip(std::uint64_t length) {
    if (!_rest.contains(0, length)) return false;
    _rest = _rest.from(length);
    return true;
  }

 private:
  io::ByteView _rest;
};

// Widths in bytes.
struct Widths {
  std::uint64_t id;
  std::uint64_t itemCount;
  std::uint64_t method;
  std::uint64_t offset;
  std::uint64_t length;
  std::uint64_t base;
  std::uint64_t index;
  std::uint64_t extent() const { return index + offset + length; }
};

std::optional<Widths> takeWidths(Cursor& cursor) {
  const auto version = cursor.take(1);
  if (!version || *version > 2 || !cursor.skip(3)) return std::nullopt;
  const auto packed = cursor.take(2);
  if (!packed) return std::nullopt;
  const auto nibble = [&](int place) { return *packed >> (4 * place) & 0xF; };
  const std::uint64_t wide = *version == 2 ? 4 : 2;
  return Widths{wide,      wide,      *version == 0 ? 0ULL : 2ULL,     nibble(3),
                nibble(2), nibble(1), *version == 0 ? 0ULL : nibble(0)};
}

struct Entry {
  std::uint64_t id;
  std::uint64_t method;
  std::uint64_t dataReference;
  std::uint64_t base;
  std::uint64_t extentCount;
};

std::optional<Entry> takeEntry(Cursor& cursor, const Widths& widths) {
  const auto id = cursor.take(widths.id);
  const auto method = cursor.take(widths.method);
  const auto dataReference = cursor.take(2);
  const auto base = cursor.take(widths.base);
  const auto extentCount = cursor.take(2);
  if (!id || !method || !dataReference || !base || !extentCount) return std::nullopt;
  return Entry{*id, *method & 0xF, *dataReference, *base, *extentCount};
}

HeifLocation takeExtents(Cursor& cursor, const Widths& widths, const Entry& entry) {
  constexpr std::uint64_t inFile = 0;
  constexpr std::uint64_t inItemData = 1;
  HeifLocation location;
  location.isInItemData = entry.method == inItemData;
  if ((entry.method != inFile && entry.method != inItemData) || entry.dataReference != 0) return {};
  if (entry.extentCount > limits.heifExtents) return {};
  for (std::uint64_t index = 0; index < entry.extentCount; ++index) {
    if (!cursor.skip(widths.index)) return {};
    const auto offset = cursor.take(widths.offset);
    const auto length = cursor.take(widths.length);
    if (!offset || !length || *offset > ~entry.base) return {};
    const std::uint64_t begin = entry.base + *offset;
    if (*length > ~begin) return {};
    location.extents.push_back({begin, *length == 0 ? ~std::uint64_t{0} : begin + *length});
  }
  return location;
}

}  // namespace

HeifLocation findHeifLocation(io::ByteView locations, std::uint32_t item) {
  Cursor cursor(locations);
  const auto widths = takeWidths(cursor);
  const auto count = widths ? cursor.take(widths->itemCount) : std::nullopt;
  if (!count) return {};
  for (std::uint64_t index = 0; index < *count; ++index) {
    const auto entry = takeEntry(cursor, *widths);
    if (!entry) return {};
    if (entry->id == item) return takeExtents(cursor, *widths, *entry);
    if (!cursor.skip(entry->extentCount * widths->extent())) return {};
  }
  return {};
}

}  // namespace media::image
