// SPDX-License-Identifier: MIT
//
// Bytes put one after another, in either byte order.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace samples {

using Bytes = std::vector<std::uint8_t>;

enum class ByteOrder { big, little };

class ByteWriter {
 public:
  explicit ByteWriter(ByteOrder order = ByteOrder::big) : _order(order) {}

  ByteOrder order() const { return _order; }
  std::size_t size() const { return _bytes.size(); }
  const Bytes& bytes() const { return _bytes; }
  Bytes take() { return std::move(_bytes); }

  // The low bits of a number; signed numbers are written in two's complement.
  template <typename Integer>
  void u8(Integer value) {
    number(static_cast<std::uint64_t>(value), 1);
  }
  template <typename Integer>
  void u16(Integer value) {
    number(static_cast<std::uint64_t>(value), 2);
  }
  template <typename Integer>
  void u32(Integer value) {
    number(static_cast<std::uint64_t>(value), 4);
  }
  template <typename Integer>
  void u64(Integer value) {
    number(static_cast<std::uint64_t>(value), 8);
  }

  void append(std::span<const std::uint8_t> bytes) { addAll(bytes); }
  void text(std::string_view text) { addAll(text); }
  void zeros(std::size_t count) { _bytes.resize(_bytes.size() + count); }

  // Overwrites four bytes that were written before. REQUIRES: position + 4 <= size().
  void patchU32(std::size_t position, std::uint64_t value) {
    for (std::size_t index = 0; index < 4; ++index)
      _bytes[position + index] = byteOf(value, index, 4);
  }

 private:
  std::uint8_t byteOf(std::uint64_t value, std::size_t index, std::size_t count) const {
    const std::size_t place = _order == ByteOrder::big ? count - 1 - index : index;
    return static_cast<std::uint8_t>(value >> (8 * place));
  }
  void number(std::uint64_t value, std::size_t count) {
    for (std::size_t index = 0; index < count; ++index)
      _bytes.push_back(byteOf(value, index, count));
  }

  template <typename Range>
  void addAll(const Range& range) {
    const std::size_t start = _bytes.size();
    _bytes.resize(start + range.size());
    std::copy(range.begin(), range.end(), _bytes.begin() + static_cast<std::ptrdiff_t>(start));
  }

  ByteOrder _order;
  Bytes _bytes;
};

}  // namespace samples
