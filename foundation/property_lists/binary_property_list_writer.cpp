// SPDX-License-Identifier: MIT
//
// The tree is first laid out as numbered objects, since references are as wide as the number of
// objects asks for; then the objects, the table of their offsets and the trailer are written.
#include <bit>
#include <map>
#include <utility>
#include <vector>

#include "foundation/property_lists/binary_property_list.h"
#include "model/utf8.h"

namespace foundation {

namespace {

void appendNumber(std::string& bytes, std::uint64_t number, std::size_t size) {
  for (std::size_t index = size; index > 0; --index) {
    bytes += static_cast<char>(number >> (8 * (index - 1)) & 0xFF);
  }
}

// The power of two, as an exponent, of bytes that an unsigned number takes in an integer object.
int sizeExponentOf(std::uint64_t number) {
  if (number <= 0xFF) return 0;
  if (number <= 0xFFFF) return 1;
  return number <= 0xFFFF'FFFF ? 2 : 3;
}

// The least number of bytes for offsets and references.
std::size_t byteWidthOf(std::uint64_t number) {
  return (static_cast<std::size_t>(std::bit_width(number | 1)) + 7) / 8;
}

void appendInteger(std::string& bytes, std::int64_t integer) {
  const auto number = static_cast<std::uint64_t>(integer);  // negative ones take all eight bytes
  const int exponent = sizeExponentOf(number);
  bytes += static_cast<char>(0x10 | exponent);
  appendNumber(bytes, number, std::size_t{1} << exponent);
}

// Eight bytes would be read as a negative one.
void appendLargeInteger(std::string& bytes, std::uint64_t integer) {
  bytes += '\x14';
  appendNumber(bytes, 0, 8);
  appendNumber(bytes, integer, 8);
}

void appendMarker(std::string& bytes, int kind, std::size_t count) {
  bytes += static_cast<char>(kind << 4 | static_cast<int>(count < 0xF ? count : 0xF));
  if (count >= 0xF) appendInteger(bytes, static_cast<std::int64_t>(count));
}

void appendReal(std::string& bytes, char marker, double real) {
  bytes += marker;
  appendNumber(bytes, std::bit_cast<std::uint64_t>(real), 8);
}

std::u16string utf16(std::string_view text) {
  std::u16string units;
  for (std::size_t offset = 0; offset < text.size();) {
    const model::CodePoint character = model::codePointAt(text, offset);
    offset += character.bytes;
    if (character.value < 0x10000) {
      units += static_cast<char16_t>(character.value);
      continue;
    }
    units += static_cast<char16_t>(0xD7C0 + (character.value >> 10));
    units += static_cast<char16_t>(0xDC00 | (character.value & 0x3FF));
  }
  return units;
}

void appendText(std::string& bytes, const std::string& text) {
  bool ascii = true;
  for (const char character : text) ascii = ascii && static_cast<unsigned char>(character) < 0x80;
  if (ascii) {
    appendMarker(bytes, 0x5, text.size());
    bytes += text;
    return;
  }
  const std::u16string units = utf16(text);
  appendMarker(bytes, 0x6, units.size());
  for (const char16_t unit : units) appendNumber(bytes, unit, 2);
}

// A scalar as a whole object; nothing for nulls and containers.
std::string scalarObject(const model::Value& value) {
  std::string bytes;
  if (const auto* boolean = value.asBoolean()) bytes = *boolean ? "\x09" : "\x08";
  if (const auto* integer = value.asInteger()) appendInteger(bytes, *integer);
  if (const auto* large = value.asLargeInteger()) appendLargeInteger(bytes, *large);
  if (const auto* real = value.asReal()) appendReal(bytes, 0x23, *real);
  if (const auto* date = value.asDate()) {
    appendReal(bytes, 0x33, date->secondsSince1970 - secondsTo2001);
  }
  if (const auto* text = value.asString()) appendText(bytes, *text);
  if (const auto* data = value.asData()) {
    appendMarker(bytes, 0x4, data->size());
    bytes.append(data->begin(), data->end());
  }
  return bytes;
}

class Writer {
 public:
  // Whether the tree could be laid out: it holds no null.
  bool add(const model::Value& value) { return number(value).has_value(); }

  std::string bytes() const {
    std::string bytes = "bplist00";
    std::vector<std::size_t> offsets;
    const std::size_t referenceSize = byteWidthOf(_objects.size());
    for (const Object& object : _objects) {
      offsets.push_back(bytes.size());
      bytes += object.head;
      for (const std::size_t reference : object.references) {
        appendNumber(bytes, reference, referenceSize);
      }
    }
    const std::size_t offsetTable = bytes.size();
    const std::size_t offsetSize = byteWidthOf(offsetTable);
    for (const std::size_t offset : offsets) appendNumber(bytes, offset, offsetSize);
    bytes.append(6, '\0');
    appendNumber(bytes, offsetSize, 1);
    appendNumber(bytes, referenceSize, 1);
    appendNumber(bytes, _objects.size(), 8);
    appendNumber(bytes, 0, 8);  // the root is the first object
    appendNumber(bytes, offsetTable, 8);
    return bytes;
  }

 private:
  // A scalar, or the marker and count of a container with the objects that it holds.
  struct Object {
    std::string head;
    std::vector<std::size_t> references;
  };

  // The number of the value's object, made where no equal scalar has one; none for a null.
  std::optional<std::size_t> number(const model::Value& value) {
    if (const auto* elements = value.asArray()) return numberOf(*elements);
    if (const auto* entries = value.asDictionary()) return numberOf(*entries);
    if (value.isNull()) return std::nullopt;
    std::string object = scalarObject(value);
    const auto [entry, isNew] = _scalars.try_emplace(object, _objects.size());
    if (isNew) _objects.push_back({.head = std::move(object), .references = {}});
    return entry->second;
  }

  std::optional<std::size_t> numberOf(const model::Array& elements) {
    const std::size_t self = addContainer(0xA, elements.size());
    for (const model::Value& element : elements) {
      if (!addReference(self, number(element))) return std::nullopt;
    }
    return self;
  }

  std::optional<std::size_t> numberOf(const model::Dictionary& entries) {
    const std::size_t self = addContainer(0xD, entries.size());
    for (const auto& [key, value] : entries) addReference(self, number(model::Value(key)));
    for (const auto& [key, value] : entries) {
      if (!addReference(self, number(value))) return std::nullopt;
    }
    return self;
  }

  std::size_t addContainer(int kind, std::size_t count) {
    Object object;
    appendMarker(object.head, kind, count);
    _objects.push_back(std::move(object));
    return _objects.size() - 1;
  }

  bool addReference(std::size_t container, std::optional<std::size_t> reference) {
    if (reference) _objects[container].references.push_back(*reference);
    return reference.has_value();
  }

  std::vector<Object> _objects;
  std::map<std::string, std::size_t> _scalars;  // by their bytes
};

}  // namespace

model::Result<std::string> binaryPropertyList(const model::Value& root) {
  Writer writer;
  if (!writer.add(root)) return model::Error{"a null has no form in a property list"};
  return writer.bytes();
}

}  // namespace foundation
