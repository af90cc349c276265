// SPDX-License-Identifier: MIT
#include "desktop/imageio/spliced_ranges.h"

#include <algorithm>

#include "desktop/imageio/limits.h"

namespace desktop::imageio {

void SplicedRanges::append(ByteRange piece) {
  if (piece.end <= piece.begin || piece.size() > ~_size) return;
  _pieces.push_back(piece);
  _size += piece.size();
}

SplicedRanges SplicedRanges::from(std::uint64_t offset) const {
  SplicedRanges rest;
  for (const ByteRange& piece : _pieces) {
    const std::uint64_t skipped = std::min(offset, piece.size());
    rest.append({piece.begin + skipped, piece.end});
    offset -= skipped;
  }
  return rest;
}

std::optional<ByteView> SplicedRanges::view(SourceReader& file, std::uint64_t offset,
                                            std::uint64_t length) {
  if (offset > _size || length > _size - offset) return std::nullopt;
  std::uint64_t start = 0;  // of the piece, in the joined bytes
  for (const ByteRange& piece : _pieces) {
    const std::uint64_t inside = offset - start;
    if (inside < piece.size()) {
      if (length <= piece.size() - inside) return file.view(piece.begin + inside, length);
      return joined(file, offset, length);
    }
    start += piece.size();
  }
  return ByteView();
}

std::optional<ByteView> SplicedRanges::joined(SourceReader& file, std::uint64_t offset,
                                              std::uint64_t length) {
  if (length > limits.embeddedBytes) return std::nullopt;
  _joined.clear();
  for (const ByteRange& piece : _pieces) {
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
  return ByteView(_joined);
}

std::optional<ByteView> SplicedRanges::all(SourceReader& file) {
  if (_size > limits.embeddedBytes) return std::nullopt;
  return view(file, 0, _size);
}

BlockReader SplicedRanges::reader(SourceReader& file) {
  return [this, &file](std::uint64_t offset, std::uint64_t length) {
    return view(file, offset, length);
  };
}

}  // namespace desktop::imageio
