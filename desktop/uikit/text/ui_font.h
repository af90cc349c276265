// SPDX-License-Identifier: MIT
//
// UIFont: a font at a size.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::uikit {

class UIFontState : public Bound<UIFontState, NSObject, UIFont> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new font; autoreleased. A size that is not positive and finite becomes the standard one.
  static UIFont make(const FontFace& face);
  // The face of a font; another one for nil and for what is no font.
  static FontFace faceOf(Object font, const FontFace& otherwise = {});

  const FontFace& face() const { return _face; }
  CGFloat pointSize() const { return _face.size; }
  // As the font itself is called, such as "Courier-Bold".
  std::string_view name() const;

 private:
  static UIFont systemFontOfSize(CGFloat size);
  static UIFont boldSystemFontOfSize(CGFloat size);
  static UIFont systemFontOfWeight(CGFloat size, CGFloat weight);
  // Nil for a name that is not known.
  static UIFont fontWithName(NSString name, CGFloat size);

  UIFont fontWithSize(CGFloat size) const;
  NSString fontName() const { return NSString::make(name()); }
  NSString familyName() const;
  CGFloat lineHeight() const { return measuresOf(_face).lineHeight(); }
  CGFloat ascender() const { return measuresOf(_face).ascender; }
  CGFloat descender() const { return measuresOf(_face).descender; }
  CGFloat leading() const { return 0; }
  CGFloat capHeight() const;
  CGFloat xHeight() const;
  Object copyWithZone(void* zone);
  bool isEqual(Object other) const;
  NSUInteger hash() const;

  FontFace _face;
};

}  // namespace desktop::uikit
