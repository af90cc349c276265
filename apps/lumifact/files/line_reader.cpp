// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/line_reader.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace lumifact::tool {

namespace {

constexpr std::size_t readSize = std::size_t{64} * 1024;  // bytes asked for at once

}  // namespace

LineReader::LineReader(int descriptor, Limits limits, std::function<void()> beforeWaiting)
    : _descriptor(descriptor), _limits(limits), _beforeWaiting(std::move(beforeWaiting)) {}

// Appends what the next read gives; false at the end.
bool LineReader::fill() {
  if (_isAtEnd) return false;
  _beforeWaiting();
  const std::size_t filled = _buffer.size();
  _buffer.resize(filled + readSize);
  ssize_t count = 0;
  do {
    count = ::read(_descriptor, _buffer.data() + filled, readSize);
  } while (count < 0 && errno == EINTR);
  if (count < 0) _failure = model::Error{std::generic_category().message(errno)};
  _isAtEnd = count <= 0;
  _buffer.resize(filled + (count > 0 ? static_cast<std::size_t>(count) : 0));
  return !_isAtEnd;
}

std::optional<LineReader::Line> LineReader::next() {
  std::size_t searched = _start;
  bool isTooLong = false;
  for (;;) {
    const std::size_t end = _buffer.find(_limits.separator, searched);
    if (end != std::string::npos) return take(end, end + 1, isTooLong);
    _buffer.erase(0, _start);
    _start = 0;
    if (_buffer.size() > _limits.longestLine) {
      isTooLong = true;
      _buffer.resize(_limits.longestLine);
    }
    searched = _buffer.size();
    if (fill()) continue;
    if (_buffer.empty() || _failure) return std::nullopt;
    return take(_buffer.size(), _buffer.size(), isTooLong);
  }
}

// Gives out the bytes up to `end`; the next line starts at `next`.
LineReader::Line LineReader::take(std::size_t end, std::size_t next, bool isTooLong) {
  const auto line = std::string_view(_buffer).substr(_start, end - _start);
  _start = next;
  return {line.substr(0, _limits.longestLine), isTooLong || line.size() > _limits.longestLine};
}

}  // namespace lumifact::tool
