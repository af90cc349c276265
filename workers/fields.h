// SPDX-License-Identifier: MIT
//
// The fields of a message, one after the other. Both ends run on one machine, so numbers stand as
// they lie in memory.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace workers {

template <typename T>
concept Number = std::is_arithmetic_v<T> && !std::same_as<T, bool>;

// Writes fields.
class FieldWriter {
 public:
  template <Number T>
  FieldWriter& number(T value) {
    return append(&value, sizeof value);
  }
  FieldWriter& flag(bool value) { return number(std::uint8_t{value}); }
  FieldWriter& bytes(std::span<const std::uint8_t> run) {
    return number(static_cast<std::uint32_t>(run.size())).append(run.data(), run.size());
  }
  FieldWriter& text(std::string_view text) {
    return bytes({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
  }

  std::size_t size() const { return _bytes.size(); }
  std::vector<std::uint8_t> take() { return std::move(_bytes); }

 private:
  FieldWriter& append(const void* run, std::size_t size) {
    const std::size_t end = _bytes.size();
    _bytes.resize(end + size);
    if (size != 0) std::memcpy(_bytes.data() + end, run, size);
    return *this;
  }

  std::vector<std::uint8_t> _bytes;
};

// Reads fields and believes none: what is not there, or larger than it may be, is a zero or empty,
// and from then on nothing is right any more.
class FieldReader {
 public:
  explicit FieldReader(std::span<const std::uint8_t> bytes) : _rest(bytes) {}

  template <Number T>
  T number() {
    T value{};
    const auto run = take(sizeof value);
    if (run.size() == sizeof value) std::memcpy(&value, run.data(), sizeof value);
    return value;
  }
  bool flag() { return oneOf<std::uint8_t>(1) == 1; }
  // A number from 0 to `largest`: a count, or one of a list.
  template <Number T>
  T oneOf(T largest) {
    const T value = number<T>();
    if (value >= 0 && value <= largest) return value;
    fail();
    return {};
  }
  // Borrowed.
  std::span<const std::uint8_t> bytes(std::size_t longest) {
    const std::size_t size = number<std::uint32_t>();
    if (size <= longest) return take(size);
    fail();
    return {};
  }
  std::string text(std::size_t longest) {
    const auto run = bytes(longest);
    return {run.begin(), run.end()};
  }

  void fail() {
    _isRight = false;
    _rest = {};
  }
  bool isRight() const { return _isRight; }
  // Whether everything was right, and nothing is left.
  bool isWhole() const { return _isRight && _rest.empty(); }

 private:
  std::span<const std::uint8_t> take(std::size_t size) {
    if (size > _rest.size()) fail();
    const auto run = _rest.first(_isRight ? size : 0);
    _rest = _rest.subspan(run.size());
    return run;
  }

  std::span<const std::uint8_t> _rest;
  bool _isRight = true;
};

}  // namespace workers
