// SPDX-License-Identifier: MIT
//
// The summary that a long press on a thumbnail shows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lumifact {

// What the summary is made from; the texts come from the platform's formatters.
struct QuickInfo {
  std::string path;      // as shown
  std::string dateText;  // creation date, medium date and time
  std::string sizeText;
  std::int64_t pixelWidth = 0;
  std::int64_t pixelHeight = 0;
  bool isVideo = false;
  double duration = 0;               // seconds; of videos
  std::int64_t exifOrientation = 0;  // of stills
  std::optional<std::string> place;  // localizedGeoDescription
};

enum class QuickInfoForm { labelled, compact };

// Lines without a final line break: path, date, size, pixel size, then the duration of a video or
// the orientation of a still (1 to 8), then the place where there is one.
std::string quickInfoText(const QuickInfo& info, QuickInfoForm form);

// "01:02:05.500": hours, minutes, seconds and milliseconds, each truncated.
std::string durationText(double seconds);

}  // namespace lumifact
