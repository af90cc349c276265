// SPDX-License-Identifier: MIT
//
// An asset of the photo library that says what a test puts into it.
#pragma once

#include <optional>
#include <string>

#include "bridge/photos.h"
#include "model/geometry.h"

namespace lumifact::host {

// What an asset says. A link or uuid that is empty is nil.
struct AssetFacts {
  std::string mainFile = {};
  std::string fullsizeImage = {};
  std::string largePreview = {};
  std::string mediumPreview = {};
  bool isVideo = false;
  unsigned long pixelWidth = 0;
  unsigned long pixelHeight = 0;
  std::optional<model::Location> location = {};
  std::string uuid = {};
  std::string uniformTypeIdentifier = {};
  double duration = 0;  // seconds
  short exifOrientation = 1;
  std::optional<double> creationDate = {};   // seconds since 1970
  bridge::Owned<bridge::Object> place = {};  // a text, or something that is none
};

// A new object of the class PHAsset; autoreleased.
bridge::PHAsset makeAsset(const AssetFacts& facts);

// How often any asset was asked for its type since the program began.
int questionsForType();

}  // namespace lumifact::host
