// SPDX-License-Identifier: MIT
//
// The class DataParser of the object runtime: the reports over the platform's own objects.
#pragma once

#include <optional>
#include <string>

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "lumifact/platform.h"

namespace lumifact {

// Never instantiated. What comes out of its methods is borrowed, as from any message.
class DataParserClass : public Bound<DataParserClass, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // The report text of an image's properties. `*data` is a dictionary that can be changed (its
  // sections need not be): the values that the report rewrites are written into it, everything else
  // stays the object that it is. `*mapCoordinates` receives a string or is left as it is.
  static NSString parseDataToString(id* data, id* mapCoordinates);

  // The report text of a video, empty for nil. `toDataAndString` is neither read nor written.
  static NSString parseAVURLAsset(AVURLAsset asset, id* toDataAndString, id* mapCoordinates);
};

// A report as it comes out of the class.
struct Report {
  NSString text;                           // borrowed
  std::optional<std::string> coordinates;  // none where the item does not say
};

// Sends the class the message for an image, or for a video.
Report reportOfImage(NSMutableDictionary properties);
Report reportOfVideo(AVURLAsset asset);

}  // namespace lumifact
