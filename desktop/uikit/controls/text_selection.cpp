// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/text_selection.h"

#include <algorithm>

namespace desktop::uikit {
namespace {

NSRange between(std::size_t start, std::size_t end) {
  return {start, end - start};
}

}  // namespace

bool TextSelection::set(std::optional<NSRange> range, std::size_t textLength) {
  if (range) {
    range->location = std::min<NSUInteger>(range->location, textLength);
    range->length = std::min<NSUInteger>(range->length, textLength - range->location);
  }
  if (range == _range) return false;
  _range = range;
  return true;
}

NSRange TextSelection::pressedTo(NSRange word) const {
  return between(std::min(word.location, _pressed.location),
                 std::max(word.location + word.length, _pressed.location + _pressed.length));
}

std::optional<NSRange> TextSelection::draggedTo(std::size_t index) const {
  if (index == _fixedEnd) return std::nullopt;
  return between(std::min(index, _fixedEnd), std::max(index, _fixedEnd));
}

}  // namespace desktop::uikit
