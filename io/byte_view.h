// SPDX-License-Identifier: MIT
//
// Bytes in memory, read by offset and never beyond their end.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace io {

enum class ByteOrder { big, little };

// A borrowed run of bytes. Every reader answers none (or an empty view) for what lies outside, so
// that offsets and counts from a file need no check before they are used.
class ByteView {
 public:
  ByteView() = default;
  ByteView(std::span<const std::uint8_t> bytes) : _bytes(bytes) {}

  std::size_t size() const { return _bytes.size(); }
  bool isEmpty() const { return _bytes.empty(); }
  std::span<const std::uint8_t> bytes() const { return _bytes; }

  // Whether [offset, offset + length) lies inside.
  bool contains(std::uint64_t offset, std::uint64_t length) const {
    return offset <= _bytes.size() && length <= _bytes.size() - offset;
  }

  std::optional<std::uint8_t> u8(std::uint64_t offset) const {
    return integer<std::uint8_t>(offset, ByteOrder::big);
  }
  std::optional<std::uint16_t> u16(std::uint64_t offset, ByteOrder order) const {
    return integer<std::uint16_t>(offset, order);
  }
  std::optional<std::uint32_t> u32(std::uint64_t offset, ByteOrder order) const {
    return integer<std::uint32_t>(offset, order);
  }
  std::optional<std::uint64_t> u64(std::uint64_t offset, ByteOrder order) const {
    return integer<std::uint64_t>(offset, order);
  }

  // The bytes [offset, offset + length), or none where they do not all lie inside.
  std::optional<ByteView> sub(std::uint64_t offset, std::uint64_t length) const {
    if (!contains(offset, length)) return std::nullopt;
    return ByteView(
        _bytes.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length)));
  }
  // All bytes from the offset on; empty where it lies behind the end.
  ByteView from(std::uint64_t offset) const {
    if (offset >= _bytes.size()) return {};
    return ByteView(_bytes.subspan(static_cast<std::size_t>(offset)));
  }

  // The bytes as they are, as characters. Borrowed.
  std::string_view text() const {
    return {reinterpret_cast<const char*>(_bytes.data()), _bytes.size()};
  }
  bool startsWith(std::string_view prefix) const { return text().starts_with(prefix); }

 private:
  template <typename Integer>
  std::optional<Integer> integer(std::uint64_t offset, ByteOrder order) const {
    if (!contains(offset, sizeof(Integer))) return std::nullopt;
    const auto* at = _bytes.data() + offset;
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < sizeof(Integer); ++index) {
      const std::size_t place = order == ByteOrder::big ? index : sizeof(Integer) - 1 - index;
      value = (value << 8) | at[place];
    }
    return static_cast<Integer>(value);
  }

  std::span<const std::uint8_t> _bytes;
};

}  // namespace io
