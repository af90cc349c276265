// SPDX-License-Identifier: MIT
#include "desktop/io/source_reader.h"

#include <algorithm>

namespace desktop {

std::optional<ByteView> SourceReader::Window::sub(std::uint64_t at, std::uint64_t length) const {
  if (at < offset) return std::nullopt;
  return ByteView(bytes).sub(at - offset, length);
}

ByteView SourceReader::Window::from(std::uint64_t at) const {
  return at < offset ? ByteView() : ByteView(bytes).from(at - offset);
}

void SourceReader::read(Window& window, std::size_t known) {
  const std::size_t wanted = window.bytes.size() - known;
  const auto count =
      _source.readAt(window.offset + known, std::span(window.bytes).subspan(known, wanted));
  window.bytes.resize(known + (count ? *count : 0));
  if (_failure) return;
  if (!count) {
    _failure = count.error();
  } else if (*count < wanted) {
    _failure = model::Error{"truncated while it was read"};
  }
}

void SourceReader::fillHead() {
  _headIsRead = true;
  _head.bytes.resize(static_cast<std::size_t>(std::min<std::uint64_t>(headSize, size())));
  read(_head, 0);
}

void SourceReader::fillWindow(std::uint64_t offset, std::size_t length) {
  const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(length, size() - offset));
  _window.offset = offset;
  _window.bytes.resize(wanted);
  const ByteView known = _head.from(offset);
  std::ranges::copy(known.bytes(), _window.bytes.begin());
  read(_window, known.size());
}

std::optional<ByteView> SourceReader::view(std::uint64_t offset, std::uint64_t length,
                                           ReadAhead ahead) {
  if (offset > size() || length > size() - offset || length > largestView) return std::nullopt;
  if (length == 0) return ByteView();
  if (offset < headSize && !_headIsRead) fillHead();
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

}  // namespace desktop
