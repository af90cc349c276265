// SPDX-License-Identifier: MIT
//
// Directories of tags as TIFF (6.0) and Exif files hold them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

struct Rational {
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;
};

// The simplest fraction within a millionth of the value, denominators up to `largest`.
Rational approximated(double value, std::int64_t largest = 100000);

// Entries in any order; they are written in order of their tags.
class Directory {
 public:
  void addByte(std::uint16_t tag, std::initializer_list<std::int64_t> values);
  void addText(std::uint16_t tag, std::string_view text);  // ASCII, a zero byte is added
  void addShort(std::uint16_t tag, std::initializer_list<std::int64_t> values);
  void addLong(std::uint16_t tag, std::initializer_list<std::int64_t> values);
  void addRational(std::uint16_t tag, std::initializer_list<Rational> values);
  void addSignedLong(std::uint16_t tag, std::initializer_list<std::int64_t> values);
  void addSignedRational(std::uint16_t tag, std::initializer_list<Rational> values);
  void addUndefined(std::uint16_t tag, Bytes bytes);
  void addUndefined(std::uint16_t tag, std::string_view text);
  // A block of bytes that programs expect as type BYTE, such as an XMP packet.
  void addBlock(std::uint16_t tag, Bytes bytes);
  // A directory of its own, such as Exif (0x8769) or GPS (0x8825).
  void addDirectory(std::uint16_t tag, Directory directory);
  // Bytes outside every directory, to which one tag holds the offset and one the length.
  void addAttachment(std::uint16_t offsetTag, std::uint16_t lengthTag, Bytes bytes);

  bool empty() const { return _entries.empty(); }

 private:
  friend class DirectoryWriter;

  struct Entry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    std::vector<std::int64_t> numbers = {};  // a rational is two
    Bytes bytes = {};                        // of text, undefined, blocks and attachments
    std::vector<Directory> directory = {};   // one or none
  };

  void addNumbers(std::uint16_t tag, std::uint16_t type,
                  std::initializer_list<std::int64_t> values);
  void addFractions(std::uint16_t tag, std::uint16_t type, std::initializer_list<Rational> values);

  std::vector<Entry> _entries;
};

// Writes a directory and everything it points to at the end of `out`; offsets count from the
// first byte of `out`. Returns where the offset of a following directory belongs.
std::size_t writeDirectory(ByteWriter& out, const Directory& directory);

// A whole block: byte order mark, then the directories, each linked to the next.
Bytes tiffBlock(ByteOrder order, const std::vector<Directory>& directories);

}  // namespace samples
