// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_text_position.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UITextPosition::classObject() {
  static const Class made = bridge::ClassBuilder<UITextPosition>("UITextPosition")
                                .method<"isEqual:", &UITextPosition::isEqual>()
                                .method<"hash", &UITextPosition::hash>()
                                .build();
  return made;
}

bridge::UITextPosition UITextPosition::make(std::size_t offset) {
  auto made = bridge::Owned<bridge::UITextPosition>::adopt(
      bridge::send<bridge::UITextPosition, "new">(classObject()));
  if (made) of(made.get())._offset = offset;
  return made.autorelease();
}

std::size_t UITextPosition::offsetOf(bridge::Object position) {
  return bridge::isKindOf(position, classObject()) ? of(position)._offset : 0;
}

bool UITextPosition::isEqual(bridge::Object other) const {
  return bridge::isKindOf(other, classObject()) && of(other)._offset == _offset;
}

Class UITextRange::classObject() {
  static const Class made = bridge::ClassBuilder<UITextRange>("UITextRange")
                                .method<"start", &UITextRange::start>()
                                .method<"end", &UITextRange::end>()
                                .method<"isEmpty", &UITextRange::isEmpty>()
                                .method<"isEqual:", &UITextRange::isEqual>()
                                .method<"hash", &UITextRange::hash>()
                                .build();
  return made;
}

bridge::UITextRange UITextRange::make(NSRange range) {
  auto made = bridge::Owned<bridge::UITextRange>::adopt(
      bridge::send<bridge::UITextRange, "new">(classObject()));
  if (made) of(made.get())._range = range;
  return made.autorelease();
}

NSRange UITextRange::rangeOf(bridge::Object range) {
  return bridge::isKindOf(range, classObject()) ? of(range)._range : NSRange{};
}

bool UITextRange::isEqual(bridge::Object other) const {
  return bridge::isKindOf(other, classObject()) && of(other)._range == _range;
}

}  // namespace desktop::uikit
