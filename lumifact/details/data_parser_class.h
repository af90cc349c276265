// SPDX-License-Identifier: MIT
//
// The class DataParser of the object runtime: the reports over the platform's own objects.
#pragma once

#include <optional>
#include <string>

#include "bridge/avfoundation.h"
#include "bridge/bound.h"

namespace lumifact {

// Never instantiated. What comes out of its methods is borrowed, as from any message.
class DataParserClass : public bridge::Bound<DataParserClass, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // The report text of an image's properties. `*data` is a dictionary that can be changed (its
  // sections need not be): the values that the report rewrites are written into it, everything else
  // stays the object that it is. `*mapCoordinates` receives a string or is left as it is.
  static bridge::NSString parseDataToString(id* data, id* mapCoordinates);

  // The report text of a video, empty for nil. `toDataAndString` is neither read nor written.
  static bridge::NSString parseAVURLAsset(bridge::AVURLAsset asset, id* toDataAndString,
                                          id* mapCoordinates);
};

// A report as it comes out of the class.
struct Report {
  bridge::NSString text;                   // borrowed
  std::optional<std::string> coordinates;  // none where the item does not say
};

// Sends the class the message for an image, or for a video.
Report reportOfImage(bridge::NSMutableDictionary properties);
Report reportOfVideo(bridge::AVURLAsset asset);

}  // namespace lumifact
