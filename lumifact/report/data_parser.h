// SPDX-License-Identifier: MIT
//
// The metadata reports: an image's properties or a video asset as text for reading.
#pragma once

#include <optional>
#include <string>

#include "model/key_order.h"
#include "model/media_asset.h"
#include "model/value.h"

namespace lumifact {

// Stateless; named after the class that the reports are reached through. Callable from any thread
// on distinct arguments. Nothing fails: what is missing leaves lines out.
class DataParser {
 public:
  // The report text of an image's properties: every plain value, then every section in braces,
  // "{MakerApple}" last. Each piece begins with a line break; empty for an empty dictionary.
  //
  // `properties` is rewritten in place into the report table data: known values in "{Exif}" and
  // "{TIFF}" and the top-level "Orientation" carry their texts. `mapCoordinates` receives
  // "latitude,longitude" where "{GPS}" holds both, and is left untouched otherwise.
  static std::string parseDataToString(model::Dictionary& properties,
                                       std::optional<std::string>& mapCoordinates,
                                       const model::KeyComparison& keyOrder = model::compareKeys);

  // The report text of a video: its metadata, then a block a track; empty for no asset (null).
  //
  // `toDataAndString` is part of the signature and is neither read nor written. `mapCoordinates`
  // receives the coordinates of an ISO 6709 "location" with altitude, and is left untouched
  // otherwise.
  static std::string parseAVURLAsset(const model::MediaAsset* asset,
                                     model::Dictionary& toDataAndString,
                                     std::optional<std::string>& mapCoordinates,
                                     const model::KeyComparison& keyOrder = model::compareKeys);
};

}  // namespace lumifact
