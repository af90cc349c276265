// SPDX-License-Identifier: MIT
//
// A run of bytes of another source as a source of its own, so that windowed reading never touches
// what lies before and behind it.
#pragma once

#include "io/byte_source.h"
#include "io/iso_box.h"

namespace media::movie {

// Offset 0 is the first byte of the range. Errors are those of the source below.
class RangeSource : public io::ByteSource {
 public:
  // REQUIRES: the source outlives this one; the range lies inside it.
  RangeSource(io::ByteSource& source, io::ByteRange range) : _source(source), _range(range) {}

  std::uint64_t size() const override { return _range.size(); }

 private:
  model::Result<std::size_t> doReadAt(std::uint64_t offset, std::span<std::uint8_t> into) override;

  io::ByteSource& _source;
  io::ByteRange _range;
};

}  // namespace media::movie
