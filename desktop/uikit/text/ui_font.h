// SPDX-License-Identifier: MIT
//
// UIFont: a font at a size.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::uikit {

class UIFont : public bridge::Bound<UIFont, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new font; autoreleased. A size that is not positive and finite becomes the standard one.
  static bridge::UIFont make(const FontFace& face);
  // The face of a font; another one for nil and for what is no font.
  static FontFace faceOf(bridge::Object font, const FontFace& otherwise = {});

  const FontFace& face() const { return _face; }
  CGFloat pointSize() const { return _face.size; }
  // As the font itself is called, such as "Courier-Bold".
  std::string_view name() const;

 private:
  static bridge::UIFont systemFontOfSize(CGFloat size);
  static bridge::UIFont boldSystemFontOfSize(CGFloat size);
  static bridge::UIFont systemFontOfWeight(CGFloat size, CGFloat weight);
  // Nil for a name that is not known.
  static bridge::UIFont fontWithName(bridge::NSString name, CGFloat size);

  bridge::UIFont fontWithSize(CGFloat size) const;
  bridge::NSString fontName() const { return bridge::NSString::make(name()); }
  bridge::NSString familyName() const;
  CGFloat lineHeight() const { return measuresOf(_face).lineHeight(); }
  CGFloat ascender() const { return measuresOf(_face).ascender; }
  CGFloat descender() const { return measuresOf(_face).descender; }
  CGFloat leading() const { return 0; }
  CGFloat capHeight() const;
  CGFloat xHeight() const;
  bridge::Object copyWithZone(void* zone);
  bool isEqual(bridge::Object other) const;
  NSUInteger hash() const;

  FontFace _face;
};

}  // namespace desktop::uikit
