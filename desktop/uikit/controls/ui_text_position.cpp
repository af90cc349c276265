// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_text_position.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UITextPositionState::classObject() {
  static const Class made = ClassBuilder<UITextPositionState>("UITextPosition")
                                .method<"isEqual:", &UITextPositionState::isEqual>()
                                .method<"hash", &UITextPositionState::hash>()
                                .build();
  return made;
}

UITextPosition UITextPositionState::make(std::size_t offset) {
  auto made = makeNew<UITextPosition>(classObject());
  if (made) of(made.get())._offset = offset;
  return made.autorelease();
}

std::size_t UITextPositionState::offsetOf(Object position) {
  return isKindOf(position, classObject()) ? of(position)._offset : 0;
}

bool UITextPositionState::isEqual(Object other) const {
  return isKindOf(other, classObject()) && of(other)._offset == _offset;
}

Class UITextRangeState::classObject() {
  static const Class made = ClassBuilder<UITextRangeState>("UITextRange")
                                .method<"start", &UITextRangeState::start>()
                                .method<"end", &UITextRangeState::end>()
                                .method<"isEmpty", &UITextRangeState::isEmpty>()
                                .method<"isEqual:", &UITextRangeState::isEqual>()
                                .method<"hash", &UITextRangeState::hash>()
                                .build();
  return made;
}

UITextRange UITextRangeState::make(NSRange range) {
  auto made = makeNew<UITextRange>(classObject());
  if (made) of(made.get())._range = range;
  return made.autorelease();
}

NSRange UITextRangeState::rangeOf(Object range) {
  return isKindOf(range, classObject()) ? of(range)._range : NSRange{};
}

bool UITextRangeState::isEqual(Object other) const {
  return isKindOf(other, classObject()) && of(other)._range == _range;
}

}  // namespace desktop::uikit
