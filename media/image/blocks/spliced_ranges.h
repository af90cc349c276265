// SPDX-License-Identifier: MIT
//
// A metadata block that lies in pieces in its file, such as a profile spread over segments, read
// as one run of bytes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "io/byte_view.h"
#include "io/iso_box.h"
#include "io/source_reader.h"

namespace media::image {

// Reads [offset, offset + length) of a block wherever it lies; none where the block does not have
// those bytes. What it gives is borrowed until the next read.
using BlockReader =
    std::function<std::optional<io::ByteView>(std::uint64_t offset, std::uint64_t length)>;

class SplicedRanges {
 public:
  // Adds a piece behind those there are.
  void append(io::ByteRange piece);

  std::uint64_t size() const { return _size; }
  bool isEmpty() const { return _size == 0; }

  // The same bytes without those before the offset; empty where it lies behind the end.
  SplicedRanges from(std::uint64_t offset) const;

  // As SourceReader::view(), with offsets into the joined pieces. Only pieces that the bytes lie
  // in are read. Borrowed: valid until the next call, and until the file's next view.
  std::optional<io::ByteView> view(io::SourceReader& file, std::uint64_t offset,
                                   std::uint64_t length);

  // All bytes; none where they are more than the limit of embedded blocks. Borrowed likewise.
  std::optional<io::ByteView> all(io::SourceReader& file);

  // Reads on demand. REQUIRES: file and ranges outlive the reader.
  BlockReader reader(io::SourceReader& file);

 private:
  std::optional<io::ByteView> joined(io::SourceReader& file, std::uint64_t offset,
                                     std::uint64_t length);

  std::vector<io::ByteRange> _pieces;
  std::uint64_t _size = 0;
  std::vector<std::uint8_t> _joined;  // bytes of a view that spans pieces
};

}  // namespace media::image
