// SPDX-License-Identifier: MIT
//
// Collections describe themselves in one line here; the phone's do in the old-style property list
// form, an entry a line, keys in order.
#include "bridge/convert.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "model/description.h"

namespace desktop::faces {
namespace {

id describe(id self) {
  return NSString::make(model::description(toValue(Object(self)))).get();
}

id collection_description(id self, SEL) {
  return describe(self);
}
id collection_descriptionWithLocale(id self, SEL, id) {
  return describe(self);
}
id collection_descriptionIndented(id self, SEL, id, NSUInteger) {
  return describe(self);
}

}  // namespace

void correctCollections() {
  for (const char* className : {"NSArray", "NSDictionary"}) {
    replaceMethod(className, "description", &collection_description);
    replaceMethod(className, "descriptionWithLocale:", &collection_descriptionWithLocale);
    replaceMethod(className, "descriptionWithLocale:indent:", &collection_descriptionIndented);
  }
}

}  // namespace desktop::faces
