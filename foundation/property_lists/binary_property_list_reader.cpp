// SPDX-License-Identifier: MIT
//
// The reader walks the objects from the root, by reference numbers that the file chose: an object
// may be reached twice, or hold itself. Nothing is remembered of an object; the budget on values,
// bytes and nesting ends every walk. Compare CFBinaryPList.c of the open-source CoreFoundation for
// the layout.
#include <bit>
#include <utility>

#include "foundation/property_lists/binary_property_list.h"
#include "foundation/property_lists/property_list_budget.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace foundation {

namespace {

constexpr std::size_t trailerSize = 32;

model::Error damaged() {
  return {"damaged binary property list"};
}

// An unsigned big-endian number of 1 to 8 bytes.
std::optional<std::uint64_t> unsignedNumber(io::ByteView bytes, std::uint64_t offset,
                                            std::size_t size) {
  const auto field = bytes.sub(offset, size);
  if (!field) return std::nullopt;
  std::uint64_t number = 0;
  for (const std::uint8_t byte : field->bytes()) number = (number << 8) | byte;
  return number;
}

class Reader {
 public:
  explicit Reader(io::ByteView bytes) : _bytes(bytes) {}

  model::Result<model::Value> root() {
    const auto top = readTrailer();
    if (!top) return damaged();
    return object(*top, 0);
  }

 private:
  // Where an object's content lies: behind its marker and its count.
  struct Extent {
    std::uint64_t offset;
    std::uint64_t count;
  };

  // The number of the root object.
  std::optional<std::uint64_t> readTrailer() {
    if (_bytes.size() < trailerSize) return std::nullopt;
    const std::uint64_t trailer = _bytes.size() - trailerSize;
    _offsetSize = *_bytes.u8(trailer + 6);
    _referenceSize = *_bytes.u8(trailer + 7);
    _objectCount = *_bytes.u64(trailer + 8, io::ByteOrder::big);
    const std::uint64_t top = *_bytes.u64(trailer + 16, io::ByteOrder::big);
    _offsetTable = *_bytes.u64(trailer + 24, io::ByteOrder::big);
    const bool sizesFit =
        _offsetSize >= 1 && _offsetSize <= 8 && _referenceSize >= 1 && _referenceSize <= 8;
    if (!sizesFit || _offsetTable > trailer || top >= _objectCount) return std::nullopt;
    if (_objectCount > (trailer - _offsetTable) / _offsetSize) return std::nullopt;
    return top;
  }

  // Where object `number` begins: before the table of the offsets.
  std::optional<std::uint64_t> offsetOf(std::uint64_t number) const {
    if (number >= _objectCount) return std::nullopt;
    const auto offset = unsignedNumber(_bytes, _offsetTable + number * _offsetSize, _offsetSize);
    if (!offset || *offset >= _offsetTable) return std::nullopt;
    return offset;
  }

  model::Result<model::Value> object(std::uint64_t number, int depth) {
    if (!_budget.takeValue()) return overBudget();
    const auto offset = offsetOf(number);
    if (!offset) return damaged();
    const std::uint8_t marker = *_bytes.u8(*offset);
    switch (marker >> 4) {
      case 0x0:
        return simple(marker);
      case 0x1:
        return integer(*offset, marker & 0xF);
      case 0x2:
        return real(*offset, marker);
      case 0x3:
        return date(*offset, marker);
      case 0x4:
      case 0x5:
      case 0x6:
        return textOrData(*offset, marker >> 4);
      case 0x8:
        return model::Error{"property list with a UID, which no settings hold"};
      case 0xA:
        return array(*offset, depth);
      case 0xD:
        return dictionary(*offset, depth);
      default:
        return damaged();
    }
  }

  static model::Result<model::Value> simple(std::uint8_t marker) {
    switch (marker) {
      case 0x00:
        return model::Value();
      case 0x08:
        return model::Value(false);
      case 0x09:
        return model::Value(true);
      default:
        return damaged();
    }
  }

  // Up to four bytes are unsigned, eight and sixteen are signed.
  model::Result<model::Value> integer(std::uint64_t offset, int sizeExponent) const {
    if (sizeExponent > 4) return damaged();
    if (sizeExponent == 4) return wideInteger(offset);
    const auto number = unsignedNumber(_bytes, offset + 1, std::size_t{1} << sizeExponent);
    if (!number) return damaged();
    return model::Value(static_cast<std::int64_t>(*number));
  }

  model::Result<model::Value> wideInteger(std::uint64_t offset) const {
    const auto high = _bytes.u64(offset + 1, io::ByteOrder::big);
    const auto low = _bytes.u64(offset + 9, io::ByteOrder::big);
    if (!high || !low) return damaged();
    const auto number = static_cast<std::int64_t>(*low);
    if (*high == 0) return model::Value(*low);
    if (*high == ~std::uint64_t{0} && number < 0) return model::Value(number);
    return model::Error{"property list with an integer beyond 64 bits"};
  }

  model::Result<model::Value> real(std::uint64_t offset, std::uint8_t marker) const {
    if (marker == 0x22) {
      const auto bits = _bytes.u32(offset + 1, io::ByteOrder::big);
      if (!bits) return damaged();
      return model::Value(model::widenedByText(std::bit_cast<float>(*bits)));
    }
    const auto bits = _bytes.u64(offset + 1, io::ByteOrder::big);
    if (marker != 0x23 || !bits) return damaged();
    return model::Value(std::bit_cast<double>(*bits));
  }

  model::Result<model::Value> date(std::uint64_t offset, std::uint8_t marker) const {
    const auto bits = _bytes.u64(offset + 1, io::ByteOrder::big);
    if (marker != 0x33 || !bits) return damaged();
    return model::Value(model::Date{std::bit_cast<double>(*bits) + secondsTo2001});
  }

  // The count that a marker's low half holds, or the integer behind it for 15 and more.
  std::optional<Extent> extentOf(std::uint64_t offset) const {
    const std::uint8_t low = *_bytes.u8(offset) & 0xF;
    if (low < 0xF) return Extent{.offset = offset + 1, .count = low};
    const auto marker = _bytes.u8(offset + 1);
    if (!marker || *marker >> 4 != 1 || (*marker & 0xF) > 3) return std::nullopt;
    const std::size_t size = std::size_t{1} << (*marker & 0xF);
    const auto count = unsignedNumber(_bytes, offset + 2, size);
    if (!count) return std::nullopt;
    return Extent{.offset = offset + 2 + size, .count = *count};
  }

  // The content of `count` units of `unitSize` bytes each.
  std::optional<io::ByteView> content(const Extent& extent, std::size_t unitSize) const {
    if (extent.count > _bytes.size() / unitSize) return std::nullopt;
    return _bytes.sub(extent.offset, extent.count * unitSize);
  }

  model::Result<model::Value> textOrData(std::uint64_t offset, int kind) {
    const auto extent = extentOf(offset);
    if (!extent) return damaged();
    const auto bytes = content(*extent, kind == 0x6 ? 2 : 1);
    if (!bytes) return damaged();
    if (!_budget.takeBytes(bytes->size())) return overBudget();
    if (kind == 0x4) return model::Value(model::Data(bytes->bytes().begin(), bytes->bytes().end()));
    if (kind == 0x5) return model::Value(model::utf8OrLatin1(bytes->text()));
    std::u16string units;
    units.reserve(bytes->size() / 2);
    for (std::size_t at = 0; at < bytes->size(); at += 2) {
      units.push_back(static_cast<char16_t>(*bytes->u16(at, io::ByteOrder::big)));
    }
    return model::Value(model::utf16ToUtf8(units));
  }

  model::Result<model::Value> array(std::uint64_t offset, int depth) {
    if (!PropertyListBudget::allowsContainer(depth)) return overBudget();
    const auto extent = extentOf(offset);
    const auto references = extent ? content(*extent, _referenceSize) : std::nullopt;
    if (!references) return damaged();
    model::Array elements;
    for (std::uint64_t index = 0; index < extent->count; ++index) {
      auto element = objectAt(*references, index, depth + 1);
      if (!element) return element.error();
      elements.push_back(std::move(*element));
    }
    return model::Value(std::move(elements));
  }

  // The references of all keys come first, then those of all values.
  model::Result<model::Value> dictionary(std::uint64_t offset, int depth) {
    if (!PropertyListBudget::allowsContainer(depth)) return overBudget();
    const auto extent = extentOf(offset);
    const auto references = extent ? content(*extent, 2 * _referenceSize) : std::nullopt;
    if (!references) return damaged();
    model::Dictionary entries;
    for (std::uint64_t index = 0; index < extent->count; ++index) {
      auto key = objectAt(*references, index, depth + 1);
      if (!key) return key.error();
      if (key->asString() == nullptr) return damaged();
      auto value = objectAt(*references, extent->count + index, depth + 1);
      if (!value) return value.error();
      entries.insert_or_assign(*key->asString(), std::move(*value));
    }
    return model::Value(std::move(entries));
  }

  model::Result<model::Value> objectAt(io::ByteView references, std::uint64_t index, int depth) {
    const auto number = unsignedNumber(references, index * _referenceSize, _referenceSize);
    if (!number) return damaged();
    return object(*number, depth);
  }

  io::ByteView _bytes;
  PropertyListBudget _budget;
  std::size_t _offsetSize = 0;
  std::size_t _referenceSize = 0;
  std::uint64_t _objectCount = 0;
  std::uint64_t _offsetTable = 0;
};

}  // namespace

bool isBinaryPropertyList(io::ByteView bytes) {
  return bytes.startsWith("bplist0");
}

model::Result<model::Value> parseBinaryPropertyList(io::ByteView bytes) {
  return Reader(bytes).root();
}

}  // namespace foundation
