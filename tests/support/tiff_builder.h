// SPDX-License-Identifier: MIT
//
// Builds small TIFF structures in either byte order, for the tests of their readers.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "io/byte_view.h"
#include "media/image/ifd/tiff_field.h"

namespace media::image {

using Bytes = std::vector<std::uint8_t>;

// A field to be written: numbers of one width, put down in the structure's byte order.
struct FieldToWrite {
  std::uint16_t tag = 0;
  FieldType type = FieldType::undefined;
  std::uint32_t count = 0;
  std::size_t width = 1;  // bytes of one number
  std::vector<std::uint64_t> numbers = {};
  std::optional<std::size_t> ifd = {};  // a pointer to the IFD of that index instead of the numbers
  std::optional<std::uint32_t> claimedOffset = {};  // a lie about where the values are
};

// An integer field of any type.
FieldToWrite integers(std::uint16_t tag, FieldType type, const std::vector<std::int64_t>& values);
FieldToWrite shorts(std::uint16_t tag, const std::vector<std::int64_t>& values);
FieldToWrite longs(std::uint16_t tag, const std::vector<std::int64_t>& values);
// The text with a NUL behind it.
FieldToWrite ascii(std::uint16_t tag, std::string_view text);
FieldToWrite undefined(std::uint16_t tag, std::string_view bytes);
FieldToWrite rationals(std::uint16_t tag,
                       const std::vector<std::pair<std::uint32_t, std::uint32_t>>& values);
FieldToWrite signedRationals(std::uint16_t tag,
                             const std::vector<std::pair<std::int32_t, std::int32_t>>& values);
FieldToWrite pointerTo(std::uint16_t tag, std::size_t ifd);

// One IFD with its values behind it, to stand at `offset` of its structure.
Bytes buildIfd(io::ByteOrder order, const std::vector<FieldToWrite>& fields, std::size_t offset,
               const std::vector<std::size_t>& ifdOffsets = {});

// A structure with its header and those IFDs, one behind the other; the first is the first IFD.
Bytes buildTiff(io::ByteOrder order, const std::vector<std::vector<FieldToWrite>>& ifds);

// The BigTIFF form of a structure with one IFD whose values all fit into their entries.
Bytes buildBigTiff(io::ByteOrder order, const std::vector<FieldToWrite>& fields);

// An Apple maker note with those fields.
Bytes buildAppleNote(io::ByteOrder order, const std::vector<FieldToWrite>& fields);

// The bytes as a text, to stand in an undefined field.
std::string_view asText(const Bytes& bytes);

}  // namespace media::image
