// SPDX-License-Identifier: MIT
//
// Lines of any length read from a descriptor with a bound on memory.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/result.h"

namespace lumifact::tool {

// Reads texts that end in a separator ("\n", or a zero byte), the last one with or without it.
class LineReader {
 public:
  struct Limits {
    char separator = '\n';
    std::size_t longestLine = 0;  // bytes; of a longer line only as many are kept
  };
  struct Line {
    std::string_view text;  // without its separator; borrowed until the next call of next()
    bool isTooLong = false;
  };

  // Reads from a descriptor, borrowed. `beforeWaiting` is called before each read, which may wait.
  LineReader(
      int descriptor, Limits limits, std::function<void()> beforeWaiting = [] {});

  // The next line, none at the end or after a failed read.
  std::optional<Line> next();

  // What the system said of the read that failed.
  const std::optional<model::Error>& failure() const { return _failure; }

 private:
  bool fill();
  Line take(std::size_t end, std::size_t next, bool isTooLong);

  int _descriptor;
  Limits _limits;
  std::function<void()> _beforeWaiting;
  std::string _buffer;
  std::size_t _start = 0;  // of the bytes not given out yet
  bool _isAtEnd = false;
  std::optional<model::Error> _failure;
};

}  // namespace lumifact::tool
