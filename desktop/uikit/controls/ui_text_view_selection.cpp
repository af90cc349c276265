// SPDX-License-Identifier: MIT
//
// What of a text view is selected, and what can be done with it.
#include <algorithm>

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/controls/ui_text_position.h"
#include "desktop/uikit/controls/ui_text_view.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr double selectionAlpha = 0.2;

// A thin bar with a dot at its outer end.
void drawHandle(Canvas& canvas, CGRect caret, Color color, bool isFirst) {
  constexpr CGFloat width = 2;
  constexpr CGFloat dot = 10;
  canvas.fill({{caret.origin.x - width / 2, caret.origin.y}, {width, caret.size.height}}, color, 0);
  const CGFloat y = isFirst ? caret.origin.y - dot : bottom(caret);
  canvas.fill({{caret.origin.x - dot / 2, y}, {dot, dot}}, color, dot / 2);
}

}  // namespace

void UITextViewState::select(std::optional<NSRange> range) {
  const NSUInteger length = _text->text.size();
  if (range) {
    range->location = std::min(range->location, length);
    range->length = std::min(range->length, length - range->location);
  }
  if (range == _selection) return;
  _selection = range;
  setNeedsDisplay();
  told<"textViewDidChangeSelection:">(delegate(), self());
}

void UITextViewState::setSelectedRange(NSRange range) {
  if (range.location == static_cast<NSUInteger>(NSNotFound)) return select(std::nullopt);
  select(range);
}

UITextRange UITextViewState::selectedTextRange() const {
  return _selection ? UITextRangeState::make(*_selection) : UITextRange();
}

void UITextViewState::setSelectedTextRange(UITextRange range) {
  if (!range) return select(std::nullopt);
  select(UITextRangeState::rangeOf(range));
}

UITextPosition UITextViewState::beginningOfDocument() const {
  return UITextPositionState::make(0);
}

UITextPosition UITextViewState::endOfDocument() const {
  return UITextPositionState::make(_text->text.size());
}

NSInteger UITextViewState::offsetBetween(UITextPosition from, UITextPosition to) const {
  return static_cast<NSInteger>(UITextPositionState::offsetOf(to)) -
         static_cast<NSInteger>(UITextPositionState::offsetOf(from));
}

// Nil outside the text.
UITextPosition UITextViewState::positionFrom(UITextPosition position, NSInteger offset) const {
  const auto start = static_cast<NSInteger>(UITextPositionState::offsetOf(position));
  const auto length = static_cast<NSInteger>(_text->text.size());
  if (!position || offset < -start || offset > length - start) return {};
  return UITextPositionState::make(static_cast<std::size_t>(start + offset));
}

UITextRange UITextViewState::rangeBetween(UITextPosition from, UITextPosition to) const {
  if (!from || !to) return {};
  const auto [start, end] =
      std::minmax({UITextPositionState::offsetOf(from), UITextPositionState::offsetOf(to)});
  return UITextRangeState::make({start, end - start});
}

NSString UITextViewState::textInRange(UITextRange range) const {
  const NSRange wanted = UITextRangeState::rangeOf(range);
  const std::size_t start = std::min<std::size_t>(wanted.location, _text->text.size());
  return stringOf(std::u16string_view(_text->text).substr(start, wanted.length));
}

UITextPosition UITextViewState::closestPosition(CGPoint point) {
  return UITextPositionState::make(indexAt(point));
}

CGRect UITextViewState::caretRect(UITextPosition position) {
  return caretAt(UITextPositionState::offsetOf(position));
}

// Chosen from the edit menu, it leaves the menu there for what comes next.
void UITextViewState::selectAll(NSObject sender) {
  if (!_isSelectable) return;
  select(NSRange{0, _text->text.size()});
  self().becomeFirstResponder();
  if (isKindOf(sender, UIMenuController::classObject())) showMenu();
}

void UITextViewState::copyText(NSObject) {
  if (!hasSelectedText() || !outside().copyText) return;
  const auto selected =
      std::u16string_view(_text->text).substr(_selection->location, _selection->length);
  outside().copyText(stringOf(selected).utf8());
}

bool UITextViewState::canPerformAction(SEL action, Object sender) const {
  if (sameSelector(action, selector<"copy:">())) return hasSelectedText();
  if (sameSelector(action, selector<"selectAll:">()))
    return _isSelectable && selectedRange().length < _text->text.size();
  return super<bool, "canPerformAction:withSender:">(action, sender);
}

std::vector<CGRect> UITextViewState::selectionInSight() {
  const CGRect seen = bounds();
  const double top = seen.origin.y - textOrigin().y;
  std::vector<CGRect> rects = layout().selection(selectedRange(), top, top + seen.size.height);
  for (CGRect& rect : rects) rect = offset(rect, textOrigin());
  return rects;
}

void UITextViewState::drawSelection(Canvas& canvas) {
  const Color tint = UIViewState::tint();
  for (const CGRect& rect : selectionInSight())
    canvas.fill(rect, tint.withAlpha(selectionAlpha), 0);
  drawHandle(canvas, caretAt(_selection->location), tint, true);
  drawHandle(canvas, caretAt(_selection->location + _selection->length), tint, false);
}

}  // namespace desktop::uikit
