// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/ui_font.h"

#include <cmath>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {
namespace {

constexpr double standardSize = 12;  // points, as Core Text takes it for a font of size 0

// What differs between the families, in fractions of the size.
struct Family {
  FontFamily family;
  std::string_view name;
  double capHeight;
  double xHeight;
};

constexpr Family families[] = {
    {FontFamily::system, "Inter", 2048.0 / 2816, 1536.0 / 2816},
    {FontFamily::courier, "Courier", 0.562, 0.426},
};

const Family& familyOf(const FontFace& face) {
  return families[face.family == FontFamily::courier ? 1 : 0];
}

// The platform's weights run from -1 to 1: 0 is regular, 0.3 semibold, 0.4 bold.
FontWeight nearestWeight(double weight) {
  if (weight >= 0.35) return FontWeight::bold;
  return weight >= 0.15 ? FontWeight::semibold : FontWeight::regular;
}

}  // namespace

Class UIFontState::classObject() {
  static const Class made =
      ClassBuilder<UIFontState>("UIFont")
          .classMethod<"systemFontOfSize:", &UIFontState::systemFontOfSize>()
          .classMethod<"boldSystemFontOfSize:", &UIFontState::boldSystemFontOfSize>()
          .classMethod<"systemFontOfSize:weight:", &UIFontState::systemFontOfWeight>()
          .classMethod<"fontWithName:size:", &UIFontState::fontWithName>()
          .method<"fontWithSize:", &UIFontState::fontWithSize>()
          .method<"fontName", &UIFontState::fontName>()
          .method<"familyName", &UIFontState::familyName>()
          .method<"pointSize", &UIFontState::pointSize>()
          .method<"lineHeight", &UIFontState::lineHeight>()
          .method<"ascender", &UIFontState::ascender>()
          .method<"descender", &UIFontState::descender>()
          .method<"leading", &UIFontState::leading>()
          .method<"capHeight", &UIFontState::capHeight>()
          .method<"xHeight", &UIFontState::xHeight>()
          .method<"copyWithZone:", &UIFontState::copyWithZone>()
          .method<"isEqual:", &UIFontState::isEqual>()
          .method<"hash", &UIFontState::hash>()
          .build();
  return made;
}

UIFont UIFontState::make(const FontFace& face) {
  auto font = makeNew<UIFont>(classObject());
  if (!font) return {};
  of(font.get())._face = face;
  if (!(std::isfinite(face.size) && face.size > 0)) of(font.get())._face.size = standardSize;
  return font.autorelease();
}

FontFace UIFontState::faceOf(Object font, const FontFace& otherwise) {
  return isKindOf(font, classObject()) ? of(font.get())._face : otherwise;
}

UIFont UIFontState::systemFontOfSize(CGFloat size) {
  return make({.size = size});
}

UIFont UIFontState::boldSystemFontOfSize(CGFloat size) {
  return make({.weight = FontWeight::bold, .size = size});
}

UIFont UIFontState::systemFontOfWeight(CGFloat size, CGFloat weight) {
  return make({.weight = nearestWeight(weight), .size = size});
}

UIFont UIFontState::fontWithName(NSString name, CGFloat size) {
  const std::string text = name.utf8();
  for (const Family& known : families) {
    if (!text.starts_with(known.name)) continue;
    const bool isBold = text.find("Bold") != std::string::npos;
    return make({known.family, isBold ? FontWeight::bold : FontWeight::regular, size});
  }
  return {};
}

UIFont UIFontState::fontWithSize(CGFloat size) const {
  return make({_face.family, _face.weight, size});
}

std::string_view UIFontState::name() const {
  const bool isCourier = _face.family == FontFamily::courier;
  switch (_face.weight) {
    case FontWeight::semibold:
      return isCourier ? "Courier-Bold" : "Inter-SemiBold";
    case FontWeight::bold:
      return isCourier ? "Courier-Bold" : "Inter-Bold";
    default:
      return familyOf(_face).name;
  }
}

NSString UIFontState::familyName() const {
  return NSString::make(familyOf(_face).name);
}

CGFloat UIFontState::capHeight() const {
  return familyOf(_face).capHeight * _face.size;
}

CGFloat UIFontState::xHeight() const {
  return familyOf(_face).xHeight * _face.size;
}

// A font never changes: its copy is itself, with a reference for the caller.
Object UIFontState::copyWithZone(void*) {
  return Owned<NSObject>::retain(self()).detach();
}

bool UIFontState::isEqual(Object other) const {
  return isKindOf(other, classObject()) && of(other.get())._face == _face;
}

NSUInteger UIFontState::hash() const {
  return std::hash<double>()(_face.size);
}

}  // namespace desktop::uikit
