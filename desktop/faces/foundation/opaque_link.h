// SPDX-License-Identifier: MIT
//
// A link that Foundation here does not understand, such as "comgooglemaps://?center=1,2", kept as
// its text: enough to hand it on and to open it.
#pragma once

#include <string>
#include <string_view>

#include "bridge/bound.h"
#include "bridge/foundation.h"
#include "desktop/platform.h"

namespace desktop::faces {

class OpaqueLink : public Bound<OpaqueLink, NSURL> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A link of this text; nil where it has no scheme or holds what no link may hold. Autoreleased.
  static NSURL make(std::string_view text);

 private:
  NSString absoluteString() const { return NSString::make(_text); }
  NSString scheme() const;
  NSString resourceSpecifier() const;
  NSString query() const;
  NSString emptyPath() const { return NSString::make(""); }
  NSString noHost() const { return {}; }
  NSURL itself() const { return self(); }
  bool isFileURL() const { return false; }
  bool isEqual(Object other) const;
  unsigned long hash() const;

  std::string _text;
};

}  // namespace desktop::faces
