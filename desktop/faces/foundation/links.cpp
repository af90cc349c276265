// SPDX-License-Identifier: MIT
//
// Foundation here makes no link of a text with an empty host and a query, as application schemes
// have it, and knows no path of a link whose escapes are no valid UTF-8.
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/opaque_link.h"
#include "desktop/faces/foundation/replacement.h"
#include "foundation/file_url.h"
#include "model/utf8.h"

namespace desktop::faces {
namespace {

Stock<id(id, SEL, id)> stockURLWithString;
id NSURL_URLWithString(id self, SEL command, id text) {
  if (!text) return nullptr;
  if (const id link = stockURLWithString(self, command, text)) return link;
  return OpaqueLink::make(NSString(text).utf8()).get();
}

Stock<id(id, SEL)> stockPath;
id NSURL_path(id self, SEL command) {
  if (const id path = stockPath(self, command)) return path;
  const auto bytes = foundation::pathOfFileUrl(NSURL(self).absoluteString().utf8());
  return bytes ? NSString::make(model::replacingInvalidUtf8(*bytes)).get() : nullptr;
}

}  // namespace

void correctLinks() {
  replaceClassMethod("NSURL", "URLWithString:", &NSURL_URLWithString, stockURLWithString);
  replaceMethod("NSURL", "path", &NSURL_path, stockPath);
}

}  // namespace desktop::faces
