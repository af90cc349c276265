// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_color.h"

#include <algorithm>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
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
UIColor UIColorState::constant() {
  return make(Value);
}

Class UIColorState::classObject() {
  static const Class made =
      ClassBuilder<UIColorState>("UIColor")
          .classMethod<"colorWithWhite:alpha:", &UIColorState::colorWithWhite>()
          .classMethod<"colorWithRed:green:blue:alpha:", &UIColorState::colorWithRed>()
          .classMethod<"blackColor", &UIColorState::constant<colors::black>>()
          .classMethod<"whiteColor", &UIColorState::constant<colors::white>>()
          .classMethod<"clearColor", &UIColorState::constant<colors::clear>>()
          .classMethod<"grayColor", &UIColorState::constant<gray>>()
          .classMethod<"darkGrayColor", &UIColorState::constant<darkGray>>()
          .classMethod<"lightGrayColor", &UIColorState::constant<lightGray>>()
          .classMethod<"redColor", &UIColorState::constant<red>>()
          .classMethod<"greenColor", &UIColorState::constant<green>>()
          .classMethod<"blueColor", &UIColorState::constant<blue>>()
          .method<"colorWithAlphaComponent:", &UIColorState::withAlpha>()
          .method<"CGColor", &UIColorState::cgColor>()
          .method<"copyWithZone:", &UIColorState::copyWithZone>()
          .method<"isEqual:", &UIColorState::isEqual>()
          .method<"hash", &UIColorState::hash>()
          .build();
  return made;
}

UIColor UIColorState::make(Color color) {
  auto made = makeNew<UIColor>(classObject());
  if (made)
    of(made.get())._value = {unit(color.red), unit(color.green), unit(color.blue),
                             unit(color.alpha)};
  return made.autorelease();
}

Color UIColorState::valueOf(Object color) {
  return isKindOf(color, classObject()) ? of(color.get())._value : Color{};
}

Color UIColorState::valueOf(CGColorRef color) {
  return valueOf(Object(reinterpret_cast<id>(color)));
}

UIColor UIColorState::colorWithWhite(CGFloat white, CGFloat alpha) {
  return make(Color::white(white, alpha));
}

UIColor UIColorState::colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  return make({red, green, blue, alpha});
}

// A colour never changes: its copy is itself, with a reference for the caller.
Object UIColorState::copyWithZone(void*) {
  return Owned<NSObject>::retain(self()).detach();
}

bool UIColorState::isEqual(Object other) const {
  return isKindOf(other, classObject()) && of(other.get())._value == _value;
}

NSUInteger UIColorState::hash() const {
  const std::hash<double> hashOf;
  return hashOf(_value.red) ^ hashOf(_value.green) * 3 ^ hashOf(_value.blue) * 5 ^
         hashOf(_value.alpha) * 7;
}

}  // namespace desktop::uikit
