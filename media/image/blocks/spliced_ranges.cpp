// SPDX-License-Identifier: MIT
#include "media/image/blocks/spliced_ranges.h"

#include <algorithm>

#include "media/image/blocks/limits.h"

namespace media::image {

void SplicedRanges::append(io::ByteRange piece) {
  if (piece.end <= piece.begin || piece.size() > ~_size) return;
  _pieces.push_back(piece);
  _size += piece.size();
}

SplicedRanges SplicedRanges::from(std::uint64_t offset) const {
  SplicedRanges rest;
  for (const io::ByteRange& piece : _pieces) {
    const std::uint64_t skipped = std::min(offset, piece.size());
    rest.append({piece.begin + skipped, piece.end});
    offset -= skipped;
  }
  return rest;
}

std::optional<io::ByteView> SplicedRanges::view(io::SourceReader& file, std::uint64_t offset,
                                                std::uint64_t length) {
  if (offset > _size || length > _size - offset) return std::nullopt;
  std::uint64_t start = 0;  // of the piece, in the joined bytes
  for (const io::ByteRange& piece : _pieces) {
    const std::uint64_t inside = offset - start;
    if (inside < piece.size()) {
      if (length <= piece.size() - inside) return file.view(piece.begin + inside, length);
      return joined(file, offset, length);
    }
    start += piece.size();
  }
  return io::ByteView();
}

std::optional<io::ByteView> SplicedRanges::joined(io::SourceReader& file, std::uint64_t offset,
                                                  std::uint64_t length) {
  if (length > limits.embeddedBytes) return std::nullopt;
  _joined.clear();
  for (const io::ByteRange& piece : _pieces) {
    if (_joined.size() == length) break;
    if (offset >= piece.size()) {
      offset -= piece.size();
      continue;
    }
    const auto wanted = std::min<std::uint64_t>(piece.size() - offset, length - _joined.size());
    const auto bytes = file.view(piece.begin + offset, wanted);
    if (!bytes) return std::nullopt;
    _joined.insert(_joined.end(), bytes->bytes().begin(), bytes->bytes().end());
    offset = 0;
  }
  return io::ByteView(_joined);
}

std::optional<io::ByteView> SplicedRanges::all(io::SourceReader& file) {
  if (_size > limits.embeddedBytes) return std::nullopt;
  return view(file, 0, _size);
}

BlockReader SplicedRanges::reader(io::SourceReader& file) {
  return [this, &file](std::uint64_t offset, std::uint64_t length) {
    return view(file, offset, length);
  };
}

}  // namespace media::image
