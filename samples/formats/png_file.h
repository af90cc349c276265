// SPDX-License-Identifier: MIT
//
// PNG files (ISO/IEC 15948), with the chunks that programs add.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/civil_time.h"
#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace samples {

struct PngLook {
  int density = 72;                // dots an inch
  float cornerRadius = 0;          // in heights of the picture; more than 0 adds transparency
  bool gammaAndPrimaries = false;  // gAMA and cHRM, beside sRGB
  std::vector<std::pair<std::string, std::string>> texts = {};  // tEXt: keyword, Latin-1 text
  std::string xmp = {};
  Bytes exif = {};
  model::CivilTime changed = {};  // tIME, in UTC
};

Bytes pngFile(const Picture& picture, const PngLook& look);

}  // namespace samples
