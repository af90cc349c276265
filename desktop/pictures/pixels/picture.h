// SPDX-License-Identifier: MIT
//
// A decoded photo or video frame as a plain value, and how large somebody wants it.
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <vector>

#include "model/picture.h"

namespace desktop::pictures {

// Upright: the file's orientation is applied.
using Picture = model::Picture;

// Shared by everybody who shows it; never changed.
using SharedPicture = std::shared_ptr<const Picture>;

// How large a picture has to be. Its aspect is kept, it is never cropped, and never larger than it
// is in the file.
struct Request {
  enum class Fit {
    fill,  // as small as covers the box: for cells that crop
    fit,   // as large as lies in the box: for full views
  };

  int maxWidth = 0;   // pixels, as shown; of the box
  int maxHeight = 0;  // above 0
  Fit fit = Fit::fit;

  // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm of clang-tidy 14.
  auto operator<=>(const Request&) const = default;
};

}  // namespace desktop::pictures
