// SPDX-License-Identifier: MIT
//
// An asset of the photo library that says what a test puts into it.
#pragma once

#include <optional>
#include <string>

#include "bridge/photos.h"
#include "model/geometry.h"

namespace lumifact::host {

// What an asset says. A link that is empty is nil.
struct AssetFacts {
  std::string mainFile = {};
  std::string fullsizeImage = {};
  std::string largePreview = {};
  std::string mediumPreview = {};
  bool isVideo = false;
  unsigned long pixelWidth = 0;
  unsigned long pixelHeight = 0;
  std::optional<model::Location> location = {};
};

// A new object of the class PHAsset; autoreleased.
bridge::PHAsset makeAsset(const AssetFacts& facts);

}  // namespace lumifact::host
