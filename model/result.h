// SPDX-License-Identifier: MIT
//
// An outcome that may be an error: expected failures are values, not exceptions.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace model {

// Why something could not be done, as a short text without a full stop that can stand behind
// "FILE: ", such as "No such file or directory" or "truncated JPEG".
struct Error {
  std::string reason;
};

// A value or an error.
//
//   Result<int> count = readCount(source);
//   if (!count) return count.error();
//   use(*count);
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : _state(std::in_place_index<0>, std::move(value)) {}
  Result(Error error) : _state(std::in_place_index<1>, std::move(error)) {}

  explicit operator bool() const { return _state.index() == 0; }

  // REQUIRES: there is a value.
  T& operator*() & { return std::get<0>(_state); }
  const T& operator*() const& { return std::get<0>(_state); }
  T&& operator*() && { return std::get<0>(std::move(_state)); }
  T* operator->() { return &std::get<0>(_state); }
  const T* operator->() const { return &std::get<0>(_state); }

  // REQUIRES: there is an error.
  const Error& error() const { return std::get<1>(_state); }

 private:
  std::variant<T, Error> _state;
};

}  // namespace model
