// SPDX-License-Identifier: MIT
#include "desktop/io/source_reader.h"

#include <algorithm>

namespace desktop {

std::optional<ByteView> SourceReader::Window::sub(std::uint64_t at, std::uint64_t length) const {
  if (at < offset) return std::nullopt;
  return ByteView(bytes).sub(at - offset, length);
}

void SourceReader::fill(Window& window, std::uint64_t offset, std::size_t length) {
  const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(length, size() - offset));
  window.offset = offset;
  window.bytes.resize(wanted);
  const auto count = _source.readAt(offset, window.bytes);
  window.bytes.resize(count ? *count : 0);
  if (_failure) return;
  if (!count) {
    _failure = count.error();
  } else if (*count < wanted) {
    _failure = model::Error{"truncated while it was read"};
  }
}

std::optional<ByteView> SourceReader::view(std::uint64_t offset, std::uint64_t length) {
  if (offset > size() || length > size() - offset || length > largestView) return std::nullopt;
  if (length == 0) return ByteView();
  if (offset < headSize && length <= headSize - offset) {
    if (_head.bytes.empty() && !_failure) fill(_head, 0, headSize);
    return _head.sub(offset, length);
  }
  if (const auto known = _window.sub(offset, length)) return known;
  fill(_window, offset, std::max(static_cast<std::size_t>(length), windowSize));
  return _window.sub(offset, length);
}

ByteView SourceReader::upTo(std::uint64_t offset, std::uint64_t length) {
  if (offset >= size()) return {};
  return view(offset, std::min(length, size() - offset)).value_or(ByteView());
}

std::optional<std::vector<std::uint8_t>> SourceReader::copy(std::uint64_t offset,
                                                            std::uint64_t length) {
  const auto bytes = view(offset, length);
  if (!bytes) return std::nullopt;
  return std::vector<std::uint8_t>(bytes->bytes().begin(), bytes->bytes().end());
}

}  // namespace desktop
