// SPDX-License-Identifier: MIT
//
// Foundation's formatter here says "3 MB" of 2,400,000 bytes and "Zero " of one.
#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "foundation/byte_count.h"

namespace desktop::faces {
namespace {

id fileStyleText(long long byteCount) {
  static const foundation::Locale& locale =
      *new foundation::Locale(foundation::Locale::ofUser("LC_NUMERIC"));
  return NSString::make(foundation::byteCountText(byteCount, locale)).get();
}

Stock<id(id, SEL, long long, NSInteger)> stockStringWithStyle;
id NSByteCountFormatter_stringWithStyle(id self, SEL command, long long byteCount,
                                        NSInteger style) {
  if (style != NSByteCountFormatter::fileStyle)
    return stockStringWithStyle(self, command, byteCount, style);
  return fileStyleText(byteCount);
}

// The other properties of a formatter are taken to be the defaults.
Stock<id(id, SEL, long long)> stockString;
id NSByteCountFormatter_string(id self, SEL command, long long byteCount) {
  if (NSByteCountFormatter(self).countStyle() != NSByteCountFormatter::fileStyle)
    return stockString(self, command, byteCount);
  return fileStyleText(byteCount);
}

}  // namespace

void correctByteCounts() {
  replaceClassMethod("NSByteCountFormatter",
                     "stringFromByteCount:countStyle:", &NSByteCountFormatter_stringWithStyle,
                     stockStringWithStyle);
  replaceMethod("NSByteCountFormatter", "stringFromByteCount:", &NSByteCountFormatter_string,
                stockString);
}

}  // namespace desktop::faces
