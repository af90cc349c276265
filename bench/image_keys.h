// SPDX-License-Identifier: MIT
//
// Which of exiftool's tags says the same as a key of ours.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace bench {

// How a value of ours becomes the one that exiftool prints.
enum class Form {
  plain,
  firstElement,
  known,       // the same, compared only where they know it: we make one of other tags, too
  identifier,  // some numbers stand for none
  apexTime,
  apexAperture,
  timeOfDay,
  version,
  dateTime,  // without fraction and zone
  date,      // of a date with a time, without colons
  time,      // likewise
  width,     // of a size
  height,    // likewise
};

struct ImageKey {
  std::string_view section;  // empty for the top level
  std::string_view key;
  // The first that a file has counts; empty ones are none.
  std::array<std::string_view, 3> theirs;
  Form form = Form::plain;
};

std::span<const ImageKey> imageKeys();

}  // namespace bench
