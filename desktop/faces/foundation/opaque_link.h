// SPDX-License-Identifier: MIT
//
// A link that Foundation here does not understand, such as "comgooglemaps://?center=1,2", kept as
// its text: enough to hand it on and to open it.
#pragma once

#include <string>
#include <string_view>

#include "bridge/bound.h"
#include "bridge/foundation.h"

namespace desktop::faces {

class OpaqueLink : public bridge::Bound<OpaqueLink, bridge::NSURL> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A link of this text; nil where it has no scheme or holds what no link may hold. Autoreleased.
  static bridge::NSURL make(std::string_view text);

 private:
  bridge::NSString absoluteString() const { return bridge::NSString::make(_text); }
  bridge::NSString scheme() const;
  bridge::NSString resourceSpecifier() const;
  bridge::NSString query() const;
  bridge::NSString emptyPath() const { return bridge::NSString::make(""); }
  bridge::NSString noHost() const { return {}; }
  bridge::NSURL itself() const { return self(); }
  bool isFileURL() const { return false; }
  bool isEqual(bridge::Object other) const;
  unsigned long hash() const;

  std::string _text;
};

}  // namespace desktop::faces
