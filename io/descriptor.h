// SPDX-License-Identifier: MIT
//
// A file descriptor that is closed by its owner.
#pragma once

#include <utility>

namespace io {

// Owns a file descriptor, or none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : _number(number) {}
  ~Descriptor() { reset(); }
  Descriptor(Descriptor&& other) noexcept : _number(std::exchange(other._number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    if (this != &other) reset(std::exchange(other._number, -1));
    return *this;
  }

  explicit operator bool() const { return _number >= 0; }
  // -1 where there is none.
  int number() const { return _number; }
  void reset(int number = -1);

 private:
  int _number = -1;
};

}  // namespace io
