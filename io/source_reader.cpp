// SPDX-License-Identifier: MIT
#include "io/source_reader.h"

#include <algorithm>
#include <utility>

namespace io {

std::optional<ByteView> SourceReader::Window::sub(std::uint64_t at, std::uint64_t length) const {
  if (at < offset) return std::nullopt;
  return view().sub(at - offset, length);
}

ByteView SourceReader::Window::from(std::uint64_t at) const {
  return at < offset ? ByteView() : view().from(at - offset);
}

void SourceReader::Window::reserve(std::size_t wanted) {
  if (wanted <= capacity) return;
  memory = std::make_unique_for_overwrite<std::uint8_t[]>(wanted);
  capacity = wanted;
}

void SourceReader::read(Window& window, std::size_t end) {
  const std::uint64_t allowed = _mostBytes > _bytesRead ? _mostBytes - _bytesRead : 0;
  const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(end - window.size, allowed));
  if (wanted == 0) return;
  const auto count =
      _source.readAt(window.offset + window.size, {window.memory.get() + window.size, wanted});
  window.size += count ? *count : 0;
  _bytesRead += count ? *count : 0;
  if (_failure) return;
  if (!count) {
    _failure = count.error();
  } else if (*count < wanted) {
    _failure = model::Error{"truncated while it was read"};
  }
}

// Behind a read that came back short there is nothing to continue.
void SourceReader::fillHead(std::size_t end) {
  const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(headSize, size()));
  const std::size_t known = std::exchange(_headAsked, std::min(end, most));
  _head.reserve(most);
  if (_head.size == known && known < _headAsked) read(_head, _headAsked);
}

void SourceReader::fillWindow(std::uint64_t offset, std::size_t length) {
  const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(length, size() - offset));
  const ByteView known = _head.from(offset);
  _window.reserve(wanted);
  _window.offset = offset;
  _window.size = std::min(known.size(), wanted);
  std::ranges::copy(known.bytes().first(_window.size), _window.memory.get());
  read(_window, wanted);
}

std::optional<ByteView> SourceReader::view(std::uint64_t offset, std::uint64_t length,
                                           ReadAhead ahead) {
  if (offset > size() || length > size() - offset || length > largestView) return std::nullopt;
  if (length == 0) return ByteView();
  const std::uint64_t end = offset + length;
  if (offset < headSize && end > _headAsked) fillHead(end <= firstRead ? firstRead : headSize);
  if (offset < headSize && length <= headSize - offset) return _head.sub(offset, length);
  if (const auto known = _window.sub(offset, length)) return known;
  const std::size_t least = ahead == ReadAhead::window ? windowSize : 0;
  fillWindow(offset, std::max(static_cast<std::size_t>(length), least));
  return _window.sub(offset, length);
}

ByteView SourceReader::upTo(std::uint64_t offset, std::uint64_t length, ReadAhead ahead) {
  if (offset >= size()) return {};
  return view(offset, std::min(length, size() - offset), ahead).value_or(ByteView());
}

std::optional<std::vector<std::uint8_t>> SourceReader::copy(std::uint64_t offset,
                                                            std::uint64_t length) {
  const auto bytes = view(offset, length);
  if (!bytes) return std::nullopt;
  return std::vector<std::uint8_t>(bytes->bytes().begin(), bytes->bytes().end());
}

}  // namespace io
