// SPDX-License-Identifier: MIT
//
// Without a locale Foundation here compares case-sensitively, and an int that is too large for its
// text wraps.
#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "foundation/collation.h"
#include "model/conversions.h"

namespace desktop::faces {
namespace {

NSInteger NSString_localizedCaseInsensitiveCompare(id self, SEL, id other) {
  static const model::KeyComparison& compare = *new model::KeyComparison(
      foundation::keyComparison(foundation::Locale::ofUser("LC_COLLATE")));
  const int order = compare(NSString(self).utf8(), NSString(other).utf8());
  return (order > 0) - (order < 0);
}

int NSString_intValue(id self, SEL) {
  return model::intValue(NSString(self).utf8());
}

}  // namespace

void correctStrings() {
  replaceMethod("NSString",
                "localizedCaseInsensitiveCompare:", &NSString_localizedCaseInsensitiveCompare);
  // Each kind of string has an intValue of its own.
  for (const char* className :
       {"NSString", "NSConstantString", "GSCString", "GSUnicodeString", "GSMutableString"})
    replaceMethod(className, "intValue", &NSString_intValue);
}

}  // namespace desktop::faces
