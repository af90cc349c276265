// SPDX-License-Identifier: MIT
//
// Foundation here makes no link of a text with an empty host and a query, as application schemes
// have it.
#include "desktop/foundation_runtime/corrections.h"
#include "desktop/foundation_runtime/opaque_link.h"
#include "desktop/foundation_runtime/replacement.h"

namespace desktop::foundation {
namespace {

using bridge::NSString;

bridge::Stock<id(id, SEL, id)> stockURLWithString;
id NSURL_URLWithString(id self, SEL command, id text) {
  if (!text) return nullptr;
  if (const id link = stockURLWithString(self, command, text)) return link;
  return OpaqueLink::make(NSString(text).utf8()).get();
}

}  // namespace

void correctLinks() {
  replaceClassMethod("NSURL", "URLWithString:", &NSURL_URLWithString, stockURLWithString);
}

}  // namespace desktop::foundation
