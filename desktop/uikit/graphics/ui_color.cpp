// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_color.h"

#include <algorithm>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/encodings.h"

namespace desktop::uikit {
namespace {

constexpr Color gray = Color::white(0.5);
constexpr Color darkGray = Color::white(1.0 / 3);
constexpr Color lightGray = Color::white(2.0 / 3);
constexpr Color red{1, 0, 0, 1};
constexpr Color green{0, 1, 0, 1};
constexpr Color blue{0, 0, 1, 1};

double unit(double component) {
  return component > 0 ? std::min(component, 1.0) : 0;  // NaN is 0
}

}  // namespace

template <const Color& Value>
bridge::UIColor UIColor::constant() {
  return make(Value);
}

Class UIColor::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIColor>("UIColor")
          .classMethod<"colorWithWhite:alpha:", &UIColor::colorWithWhite>()
          .classMethod<"colorWithRed:green:blue:alpha:", &UIColor::colorWithRed>()
          .classMethod<"blackColor", &UIColor::constant<colors::black>>()
          .classMethod<"whiteColor", &UIColor::constant<colors::white>>()
          .classMethod<"clearColor", &UIColor::constant<colors::clear>>()
          .classMethod<"grayColor", &UIColor::constant<gray>>()
          .classMethod<"darkGrayColor", &UIColor::constant<darkGray>>()
          .classMethod<"lightGrayColor", &UIColor::constant<lightGray>>()
          .classMethod<"redColor", &UIColor::constant<red>>()
          .classMethod<"greenColor", &UIColor::constant<green>>()
          .classMethod<"blueColor", &UIColor::constant<blue>>()
          .method<"colorWithAlphaComponent:", &UIColor::withAlpha>()
          .method<"CGColor", &UIColor::cgColor>()
          .method<"copyWithZone:", &UIColor::copyWithZone>()
          .method<"isEqual:", &UIColor::isEqual>()
          .method<"hash", &UIColor::hash>()
          .build();
  return made;
}

bridge::UIColor UIColor::make(Color color) {
  auto made =
      bridge::Owned<bridge::UIColor>::adopt(bridge::send<bridge::UIColor, "new">(classObject()));
  if (made)
    of(made.get())._value = {unit(color.red), unit(color.green), unit(color.blue),
                             unit(color.alpha)};
  return made.autorelease();
}

Color UIColor::valueOf(bridge::Object color) {
  return bridge::isKindOf(color, classObject()) ? of(color.get())._value : Color{};
}

Color UIColor::valueOf(CGColorRef color) {
  return valueOf(bridge::Object(reinterpret_cast<id>(color)));
}

bridge::UIColor UIColor::colorWithWhite(CGFloat white, CGFloat alpha) {
  return make(Color::white(white, alpha));
}

bridge::UIColor UIColor::colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  return make({red, green, blue, alpha});
}

// A colour never changes: its copy is itself, with a reference for the caller.
bridge::Object UIColor::copyWithZone(void*) {
  return bridge::Owned<bridge::NSObject>::retain(self()).detach();
}

bool UIColor::isEqual(bridge::Object other) const {
  return bridge::isKindOf(other, classObject()) && of(other.get())._value == _value;
}

NSUInteger UIColor::hash() const {
  const std::hash<double> hashOf;
  return hashOf(_value.red) ^ hashOf(_value.green) * 3 ^ hashOf(_value.blue) * 5 ^
         hashOf(_value.alpha) * 7;
}

}  // namespace desktop::uikit
