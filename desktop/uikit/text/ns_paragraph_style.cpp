// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/ns_paragraph_style.h"

#include <cmath>
#include <functional>

#include "bridge/class_builder.h"

namespace desktop::uikit {
namespace {

bridge::NSObject newStyle(Class style, const ParagraphStyle& value) {
  const auto made = bridge::send<bridge::NSObject, "new">(style);
  if (made) NSParagraphStyle::of(made).setValue(value);
  return made;
}

template <typename Enum>
constexpr bool isOneOf(NSInteger value, Enum last) {
  return value >= 0 && value <= static_cast<NSInteger>(last);
}

}  // namespace

// Numbers as they are, choices as the platform numbers them.
template <auto Field>
auto NSParagraphStyle::get() const {
  using Type = std::decay_t<decltype(_value.*Field)>;
  if constexpr (std::is_enum_v<Type>)
    return static_cast<NSInteger>(_value.*Field);
  else
    return CGFloat{_value.*Field};
}

Class NSParagraphStyle::classObject() {
  using Style = ParagraphStyle;
  static const Class made =
      bridge::ClassBuilder<NSParagraphStyle>("NSParagraphStyle")
          .classMethod<"defaultParagraphStyle", &NSParagraphStyle::defaultParagraphStyle>()
          .method<"paragraphSpacing", &NSParagraphStyle::get<&Style::spacing>>()
          .method<"paragraphSpacingBefore", &NSParagraphStyle::get<&Style::spacingBefore>>()
          .method<"firstLineHeadIndent", &NSParagraphStyle::get<&Style::firstLineHeadIndent>>()
          .method<"headIndent", &NSParagraphStyle::get<&Style::headIndent>>()
          .method<"lineSpacing", &NSParagraphStyle::get<&Style::lineSpacing>>()
          .method<"alignment", &NSParagraphStyle::get<&Style::alignment>>()
          .method<"lineBreakMode", &NSParagraphStyle::get<&Style::lineBreakMode>>()
          .method<"copyWithZone:", &NSParagraphStyle::copyWithZone>()
          .method<"mutableCopyWithZone:", &NSParagraphStyle::mutableCopyWithZone>()
          .method<"isEqual:", &NSParagraphStyle::isEqual>()
          .method<"hash", &NSParagraphStyle::hash>()
          .build();
  return made;
}

ParagraphStyle NSParagraphStyle::valueOf(bridge::Object style) {
  return bridge::isKindOf(style, classObject()) ? of(style)._value : ParagraphStyle{};
}

bridge::NSObject NSParagraphStyle::make(const ParagraphStyle& value) {
  return bridge::Owned<bridge::NSObject>::adopt(newStyle(classObject(), value)).autorelease();
}

bridge::Object NSParagraphStyle::copyWithZone(void*) const {
  return newStyle(classObject(), _value);
}

bridge::Object NSParagraphStyle::mutableCopyWithZone(void*) const {
  return newStyle(NSMutableParagraphStyle::classObject(), _value);
}

bool NSParagraphStyle::isEqual(bridge::Object other) const {
  return bridge::isKindOf(other, classObject()) && of(other)._value == _value;
}

NSUInteger NSParagraphStyle::hash() const {
  const std::hash<double> hashOf;
  return hashOf(_value.spacing) ^ hashOf(_value.headIndent) * 3;
}

Class NSMutableParagraphStyle::classObject() {
  using Own = NSMutableParagraphStyle;
  using Style = ParagraphStyle;
  static const Class made =
      bridge::ClassBuilder<NSMutableParagraphStyle>("NSMutableParagraphStyle")
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
void NSMutableParagraphStyle::setLength(CGFloat points) {
  NSParagraphStyle& style = NSParagraphStyle::of(self());
  ParagraphStyle value = style.value();
  value.*Field = std::isfinite(points) ? points : 0;
  style.setValue(value);
}

void NSMutableParagraphStyle::setAlignment(NSInteger alignment) {
  if (!isOneOf(alignment, TextAlignment::natural)) return;
  NSParagraphStyle& style = NSParagraphStyle::of(self());
  ParagraphStyle value = style.value();
  value.alignment = static_cast<TextAlignment>(alignment);
  style.setValue(value);
}

void NSMutableParagraphStyle::setLineBreakMode(NSInteger mode) {
  if (!isOneOf(mode, LineBreakMode::byTruncatingMiddle)) return;
  NSParagraphStyle& style = NSParagraphStyle::of(self());
  ParagraphStyle value = style.value();
  value.lineBreakMode = static_cast<LineBreakMode>(mode);
  style.setValue(value);
}

void NSMutableParagraphStyle::setParagraphStyle(bridge::NSObject style) {
  NSParagraphStyle::of(self()).setValue(NSParagraphStyle::valueOf(style));
}

}  // namespace desktop::uikit
