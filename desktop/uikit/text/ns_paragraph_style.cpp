// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/ns_paragraph_style.h"

#include <cmath>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {
namespace {

Owned<NSObject> newStyle(Class style, const ParagraphStyle& value) {
  auto made = makeNew<NSObject>(style);
  if (made) NSParagraphStyleState::of(made.get()).setValue(value);
  return made;
}

template <typename Enum>
constexpr bool isOneOf(NSInteger value, Enum last) {
  return value >= 0 && value <= static_cast<NSInteger>(last);
}

}  // namespace

// Numbers as they are, choices as the platform numbers them.
template <auto Field>
auto NSParagraphStyleState::get() const {
  using Type = std::decay_t<decltype(_value.*Field)>;
  if constexpr (std::is_enum_v<Type>)
    return static_cast<NSInteger>(_value.*Field);
  else
    return CGFloat{_value.*Field};
}

Class NSParagraphStyleState::classObject() {
  using Style = ParagraphStyle;
  static const Class made =
      ClassBuilder<NSParagraphStyleState>("NSParagraphStyle")
          .classMethod<"defaultParagraphStyle", &NSParagraphStyleState::defaultParagraphStyle>()
          .method<"paragraphSpacing", &NSParagraphStyleState::get<&Style::spacing>>()
          .method<"paragraphSpacingBefore", &NSParagraphStyleState::get<&Style::spacingBefore>>()
          .method<"firstLineHeadIndent", &NSParagraphStyleState::get<&Style::firstLineHeadIndent>>()
          .method<"headIndent", &NSParagraphStyleState::get<&Style::headIndent>>()
          .method<"lineSpacing", &NSParagraphStyleState::get<&Style::lineSpacing>>()
          .method<"alignment", &NSParagraphStyleState::get<&Style::alignment>>()
          .method<"lineBreakMode", &NSParagraphStyleState::get<&Style::lineBreakMode>>()
          .method<"copyWithZone:", &NSParagraphStyleState::copyWithZone>()
          .method<"mutableCopyWithZone:", &NSParagraphStyleState::mutableCopyWithZone>()
          .method<"isEqual:", &NSParagraphStyleState::isEqual>()
          .method<"hash", &NSParagraphStyleState::hash>()
          .build();
  return made;
}

ParagraphStyle NSParagraphStyleState::valueOf(Object style) {
  return isKindOf(style, classObject()) ? of(style)._value : ParagraphStyle{};
}

NSObject NSParagraphStyleState::make(const ParagraphStyle& value) {
  return newStyle(classObject(), value).autorelease();
}

Object NSParagraphStyleState::copyWithZone(void*) const {
  return newStyle(classObject(), _value).detach();
}

Object NSParagraphStyleState::mutableCopyWithZone(void*) const {
  return newStyle(NSMutableParagraphStyleState::classObject(), _value).detach();
}

bool NSParagraphStyleState::isEqual(Object other) const {
  return isKindOf(other, classObject()) && of(other)._value == _value;
}

NSUInteger NSParagraphStyleState::hash() const {
  const std::hash<double> hashOf;
  return hashOf(_value.spacing) ^ hashOf(_value.headIndent) * 3;
}

Class NSMutableParagraphStyleState::classObject() {
  using Own = NSMutableParagraphStyleState;
  using Style = ParagraphStyle;
  static const Class made =
      ClassBuilder<NSMutableParagraphStyleState>("NSMutableParagraphStyle")
          .method<"setParagraphSpacing:", &Own::setLength<&Style::spacing>>()
          .method<"setParagraphSpacingBefore:", &Own::setLength<&Style::spacingBefore>>()
          .method<"setFirstLineHeadIndent:", &Own::setLength<&Style::firstLineHeadIndent>>()
          .method<"setHeadIndent:", &Own::setLength<&Style::headIndent>>()
          .method<"setLineSpacing:", &Own::setLength<&Style::lineSpacing>>()
          .method<"setAlignment:", &Own::setAlignment>()
          .method<"setLineBreakMode:", &Own::setLineBreakMode>()
          .method<"setParagraphStyle:", &Own::setParagraphStyle>()
          .build();
  return made;
}

// What is no length is none at all.
template <auto Field>
void NSMutableParagraphStyleState::setLength(CGFloat points) {
  NSParagraphStyleState& style = *this;
  ParagraphStyle value = style.value();
  value.*Field = std::isfinite(points) ? points : 0;
  style.setValue(value);
}

void NSMutableParagraphStyleState::setAlignment(NSInteger alignment) {
  if (!isOneOf(alignment, TextAlignment::natural)) return;
  NSParagraphStyleState& style = *this;
  ParagraphStyle value = style.value();
  value.alignment = static_cast<TextAlignment>(alignment);
  style.setValue(value);
}

void NSMutableParagraphStyleState::setLineBreakMode(NSInteger mode) {
  if (!isOneOf(mode, LineBreakMode::byTruncatingMiddle)) return;
  NSParagraphStyleState& style = *this;
  ParagraphStyle value = style.value();
  value.lineBreakMode = static_cast<LineBreakMode>(mode);
  style.setValue(value);
}

void NSMutableParagraphStyleState::setParagraphStyle(NSObject style) {
  setValue(NSParagraphStyleState::valueOf(style));
}

}  // namespace desktop::uikit
