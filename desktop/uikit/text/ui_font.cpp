// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/ui_font.h"

#include <cmath>
#include <functional>

#include "bridge/class_builder.h"

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

Class UIFont::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIFont>("UIFont")
          .classMethod<"systemFontOfSize:", &UIFont::systemFontOfSize>()
          .classMethod<"boldSystemFontOfSize:", &UIFont::boldSystemFontOfSize>()
          .classMethod<"systemFontOfSize:weight:", &UIFont::systemFontOfWeight>()
          .classMethod<"fontWithName:size:", &UIFont::fontWithName>()
          .method<"fontWithSize:", &UIFont::fontWithSize>()
          .method<"fontName", &UIFont::fontName>()
          .method<"familyName", &UIFont::familyName>()
          .method<"pointSize", &UIFont::pointSize>()
          .method<"lineHeight", &UIFont::lineHeight>()
          .method<"ascender", &UIFont::ascender>()
          .method<"descender", &UIFont::descender>()
          .method<"leading", &UIFont::leading>()
          .method<"capHeight", &UIFont::capHeight>()
          .method<"xHeight", &UIFont::xHeight>()
          .method<"copyWithZone:", &UIFont::copyWithZone>()
          .method<"isEqual:", &UIFont::isEqual>()
          .method<"hash", &UIFont::hash>()
          .build();
  return made;
}

bridge::UIFont UIFont::make(const FontFace& face) {
  auto font =
      bridge::Owned<bridge::UIFont>::adopt(bridge::send<bridge::UIFont, "new">(classObject()));
  if (!font) return {};
  of(font.get())._face = face;
  if (!(std::isfinite(face.size) && face.size > 0)) of(font.get())._face.size = standardSize;
  return font.autorelease();
}

FontFace UIFont::faceOf(bridge::Object font, const FontFace& otherwise) {
  return bridge::isKindOf(font, classObject()) ? of(font.get())._face : otherwise;
}

bridge::UIFont UIFont::systemFontOfSize(CGFloat size) {
  return make({.size = size});
}

bridge::UIFont UIFont::boldSystemFontOfSize(CGFloat size) {
  return make({.weight = FontWeight::bold, .size = size});
}

bridge::UIFont UIFont::systemFontOfWeight(CGFloat size, CGFloat weight) {
  return make({.weight = nearestWeight(weight), .size = size});
}

bridge::UIFont UIFont::fontWithName(bridge::NSString name, CGFloat size) {
  const std::string text = name.utf8();
  for (const Family& known : families) {
    if (!text.starts_with(known.name)) continue;
    const bool isBold = text.find("Bold") != std::string::npos;
    return make({known.family, isBold ? FontWeight::bold : FontWeight::regular, size});
  }
  return {};
}

bridge::UIFont UIFont::fontWithSize(CGFloat size) const {
  return make({_face.family, _face.weight, size});
}

std::string_view UIFont::name() const {
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

bridge::NSString UIFont::familyName() const {
  return bridge::NSString::make(familyOf(_face).name);
}

CGFloat UIFont::capHeight() const {
  return familyOf(_face).capHeight * _face.size;
}

CGFloat UIFont::xHeight() const {
  return familyOf(_face).xHeight * _face.size;
}

// A font never changes: its copy is itself, with a reference for the caller.
bridge::Object UIFont::copyWithZone(void*) {
  return bridge::Owned<bridge::NSObject>::retain(self()).detach();
}

bool UIFont::isEqual(bridge::Object other) const {
  return bridge::isKindOf(other, classObject()) && of(other.get())._face == _face;
}

NSUInteger UIFont::hash() const {
  return std::hash<double>()(_face.size);
}

}  // namespace desktop::uikit
