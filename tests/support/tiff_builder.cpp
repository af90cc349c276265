// SPDX-License-Identifier: MIT
#include "tests/support/tiff_builder.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

void append(Bytes& bytes, std::uint64_t number, std::size_t width, io::ByteOrder order) {
  for (std::size_t index = 0; index < width; ++index) {
    const std::size_t shift = order == io::ByteOrder::big ? width - 1 - index : index;
    bytes.push_back(static_cast<std::uint8_t>(number >> (8 * shift)));
  }
}

void append(Bytes& bytes, std::string_view text) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

Bytes valueBytes(const FieldToWrite& field, io::ByteOrder order) {
  Bytes bytes;
  for (const std::uint64_t number : field.numbers) append(bytes, number, field.width, order);
  return bytes;
}

FieldToWrite textField(std::uint16_t tag, FieldType type, std::string_view text) {
  FieldToWrite field{.tag = tag, .type = type, .count = static_cast<std::uint32_t>(text.size())};
  for (const char character : text) field.numbers.push_back(static_cast<unsigned char>(character));
  return field;
}

template <typename Number>
FieldToWrite fractions(std::uint16_t tag, FieldType type,
                       const std::vector<std::pair<Number, Number>>& values) {
  FieldToWrite field{
      .tag = tag, .type = type, .count = static_cast<std::uint32_t>(values.size()), .width = 4};
  for (const auto& [numerator, denominator] : values) {
    field.numbers.push_back(static_cast<std::uint64_t>(numerator));
    field.numbers.push_back(static_cast<std::uint64_t>(denominator));
  }
  return field;
}

}  // namespace

FieldToWrite integers(std::uint16_t tag, FieldType type, const std::vector<std::int64_t>& values) {
  FieldToWrite field{.tag = tag,
                     .type = type,
                     .count = static_cast<std::uint32_t>(values.size()),
                     .width = sizeOf(type)};
  for (const std::int64_t value : values) {
    field.numbers.push_back(static_cast<std::uint64_t>(value));
  }
  return field;
}

FieldToWrite shorts(std::uint16_t tag, const std::vector<std::int64_t>& values) {
  return integers(tag, FieldType::unsignedShort, values);
}

FieldToWrite longs(std::uint16_t tag, const std::vector<std::int64_t>& values) {
  return integers(tag, FieldType::unsignedLong, values);
}

FieldToWrite ascii(std::uint16_t tag, std::string_view text) {
  FieldToWrite field = textField(tag, FieldType::ascii, text);
  field.numbers.push_back(0);
  ++field.count;
  return field;
}

FieldToWrite undefined(std::uint16_t tag, std::string_view bytes) {
  return textField(tag, FieldType::undefined, bytes);
}

FieldToWrite rationals(std::uint16_t tag,
                       const std::vector<std::pair<std::uint32_t, std::uint32_t>>& values) {
  return fractions(tag, FieldType::rational, values);
}

FieldToWrite signedRationals(std::uint16_t tag,
                             const std::vector<std::pair<std::int32_t, std::int32_t>>& values) {
  return fractions(tag, FieldType::signedRational, values);
}

FieldToWrite pointerTo(std::uint16_t tag, std::size_t ifd) {
  FieldToWrite field = longs(tag, {0});
  field.ifd = ifd;
  return field;
}

Bytes buildIfd(io::ByteOrder order, const std::vector<FieldToWrite>& fields, std::size_t offset,
               const std::vector<std::size_t>& ifdOffsets) {
  Bytes entries;
  Bytes values;
  append(entries, fields.size(), 2, order);
  const std::size_t valuesOffset = offset + 2 + fields.size() * 12 + 4;
  for (const FieldToWrite& field : fields) {
    append(entries, field.tag, 2, order);
    append(entries, static_cast<std::uint16_t>(field.type), 2, order);
    append(entries, field.count, 4, order);
    Bytes bytes = valueBytes(field, order);
    if (field.claimedOffset) {
      append(entries, *field.claimedOffset, 4, order);
    } else if (field.ifd) {
      append(entries, *field.ifd < ifdOffsets.size() ? ifdOffsets[*field.ifd] : 0, 4, order);
    } else if (bytes.size() <= 4) {
      bytes.resize(4);
      entries.insert(entries.end(), bytes.begin(), bytes.end());
    } else {
      append(entries, valuesOffset + values.size(), 4, order);
      values.insert(values.end(), bytes.begin(), bytes.end());
    }
  }
  append(entries, 0, 4, order);
  entries.insert(entries.end(), values.begin(), values.end());
  return entries;
}

Bytes buildTiff(io::ByteOrder order, const std::vector<std::vector<FieldToWrite>>& ifds) {
  Bytes bytes;
  append(bytes, order == io::ByteOrder::big ? "MM" : "II");
  append(bytes, 42, 2, order);
  append(bytes, 8, 4, order);
  std::vector<std::size_t> offsets;
  std::size_t offset = bytes.size();
  for (const auto& fields : ifds) {
    offsets.push_back(offset);
    offset += buildIfd(order, fields, offset).size();
  }
  for (std::size_t index = 0; index < ifds.size(); ++index) {
    const Bytes ifd = buildIfd(order, ifds[index], offsets[index], offsets);
    bytes.insert(bytes.end(), ifd.begin(), ifd.end());
  }
  return bytes;
}

Bytes buildBigTiff(io::ByteOrder order, const std::vector<FieldToWrite>& fields) {
  Bytes bytes;
  append(bytes, order == io::ByteOrder::big ? "MM" : "II");
  append(bytes, 43, 2, order);
  append(bytes, 8, 2, order);
  append(bytes, 0, 2, order);
  append(bytes, 16, 8, order);
  append(bytes, fields.size(), 8, order);
  for (const FieldToWrite& field : fields) {
    append(bytes, field.tag, 2, order);
    append(bytes, static_cast<std::uint16_t>(field.type), 2, order);
    append(bytes, field.count, 8, order);
    Bytes values = valueBytes(field, order);
    values.resize(8);
    bytes.insert(bytes.end(), values.begin(), values.end());
  }
  append(bytes, 0, 8, order);
  return bytes;
}

Bytes buildAppleNote(io::ByteOrder order, const std::vector<FieldToWrite>& fields) {
  Bytes bytes;
  append(bytes, "Apple iOS\0\0\1"sv);
  append(bytes, order == io::ByteOrder::big ? "MM" : "II");
  const Bytes ifd = buildIfd(order, fields, bytes.size());
  bytes.insert(bytes.end(), ifd.begin(), ifd.end());
  return bytes;
}

std::string_view asText(const Bytes& bytes) {
  return io::ByteView(bytes).text();
}

}  // namespace media::image
