// SPDX-License-Identifier: MIT
#include "desktop/uikit/ui_font.h"

#include <functional>

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UIFont::classObject() {
  static const Class made = bridge::ClassBuilder<UIFont>("UIFont")
                                .classMethod<"systemFontOfSize:", &UIFont::systemFontOfSize>()
                                .method<"fontName", &UIFont::fontName>()
                                .method<"pointSize", &UIFont::pointSize>()
                                .method<"lineHeight", &UIFont::lineHeight>()
                                .method<"ascender", &UIFont::ascender>()
                                .method<"descender", &UIFont::descender>()
                                .method<"leading", &UIFont::leading>()
                                .method<"copyWithZone:", &UIFont::copyWithZone>()
                                .method<"isEqual:", &UIFont::isEqual>()
                                .method<"hash", &UIFont::hash>()
                                .build();
  return made;
}

bridge::NSObject UIFont::systemFontOfSize(CGFloat size) {
  auto font =
      bridge::Owned<bridge::NSObject>::adopt(bridge::send<bridge::NSObject, "new">(classObject()));
  if (font) of(font.get())._pointSize = size;
  return font.autorelease();
}

// A font never changes: its copy is itself, with a reference for the caller.
bridge::Object UIFont::copyWithZone(void*) {
  return bridge::Owned<bridge::NSObject>::retain(self()).detach();
}

bool UIFont::isEqual(bridge::Object other) const {
  if (!bridge::isKindOf(other, classObject())) return false;
  const UIFont& font = of(other.get());
  return font._metrics == _metrics && font._pointSize == _pointSize;
}

unsigned long UIFont::hash() const {
  return std::hash<double>()(_pointSize);
}

}  // namespace desktop::uikit
