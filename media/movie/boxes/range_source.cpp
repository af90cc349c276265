// SPDX-License-Identifier: MIT
#include "media/movie/boxes/range_source.h"

#include <algorithm>

namespace media::movie {

model::Result<std::size_t> RangeSource::doReadAt(std::uint64_t offset,
                                                 std::span<std::uint8_t> into) {
  if (offset >= _range.size()) return std::size_t{0};
  const std::uint64_t length = std::min<std::uint64_t>(into.size(), _range.size() - offset);
  return _source.readAt(_range.begin + offset, into.first(static_cast<std::size_t>(length)));
}

}  // namespace media::movie
