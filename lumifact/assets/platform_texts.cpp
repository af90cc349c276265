// SPDX-License-Identifier: MIT
#include "lumifact/assets/platform_texts.h"

namespace lumifact {

std::string dateText(NSDate date) {
  if (!date) return printed({}).utf8();
  return NSDateFormatter::localizedString(date, NSDateFormatter::mediumStyle,
                                          NSDateFormatter::mediumStyle)
      .utf8();
}

std::string fileSizeText(std::int64_t bytes) {
  return NSByteCountFormatter::string(bytes, NSByteCountFormatter::fileStyle).utf8();
}

}  // namespace lumifact
