// SPDX-License-Identifier: MIT
//
// Reals print the shortest text that reads back the same, and saturate where an integer is asked
// for; Foundation here prints 15 or 16 digits, and wraps.
#include <limits>

#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "model/conversions.h"
#include "model/number_text.h"

namespace desktop::faces {
namespace {

// The double that a real number stands for: of a single-precision one, its own shortest decimal.
double realOf(id self) {
  const NSNumber number(self);
  return number.objCType()[0] == 'f' ? model::widenedByText(number.floatValue())
                                     : number.doubleValue();
}

id real_descriptionWithLocale(id self, SEL, id) {
  return NSString::make(model::realText(realOf(self))).get();
}

int real_intValue(id self, SEL) {
  return model::intValue(NSNumber(self).doubleValue());
}
long real_integerValue(id self, SEL) {
  return model::integerValue(NSNumber(self).doubleValue());
}
long long real_longLongValue(id self, SEL) {
  return model::integerValue(NSNumber(self).doubleValue());
}

}  // namespace

void correctNumbers() {
  for (const char* className : {"NSDoubleNumber", "NSFloatNumber"}) {
    replaceMethod(className, "descriptionWithLocale:", &real_descriptionWithLocale);
    replaceMethod(className, "intValue", &real_intValue);
    replaceMethod(className, "integerValue", &real_integerValue);
    replaceMethod(className, "longLongValue", &real_longLongValue);
  }
}

}  // namespace desktop::faces
