// SPDX-License-Identifier: MIT
//
// What of a text view is selected, and what can be done with it.
#include <algorithm>

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

void UITextView::select(std::optional<NSRange> range) {
  const NSUInteger length = _text->text.size();
  if (range) {
    range->location = std::min(range->location, length);
    range->length = std::min(range->length, length - range->location);
  }
  if (range == _selection) return;
  _selection = range;
  UIView::of(self()).setNeedsDisplay();
  const bridge::NSObject delegate = UIScrollView::of(self()).delegate();
  if (bridge::respondsTo<"textViewDidChangeSelection:">(delegate))
    bridge::send<void, "textViewDidChangeSelection:">(delegate, self());
}

void UITextView::setSelectedRange(NSRange range) {
  if (range.location == static_cast<NSUInteger>(NSNotFound)) return select(std::nullopt);
  select(range);
}

bridge::UITextRange UITextView::selectedTextRange() const {
  return _selection ? UITextRange::make(*_selection) : bridge::UITextRange();
}

void UITextView::setSelectedTextRange(bridge::UITextRange range) {
  if (!range) return select(std::nullopt);
  select(UITextRange::rangeOf(range));
}

bridge::UITextPosition UITextView::beginningOfDocument() const {
  return UITextPosition::make(0);
}

bridge::UITextPosition UITextView::endOfDocument() const {
  return UITextPosition::make(_text->text.size());
}

NSInteger UITextView::offsetBetween(bridge::UITextPosition from, bridge::UITextPosition to) const {
  return static_cast<NSInteger>(UITextPosition::offsetOf(to)) -
         static_cast<NSInteger>(UITextPosition::offsetOf(from));
}

// Nil outside the text.
bridge::UITextPosition UITextView::positionFrom(bridge::UITextPosition position,
                                                NSInteger offset) const {
  const auto start = static_cast<NSInteger>(UITextPosition::offsetOf(position));
  const auto length = static_cast<NSInteger>(_text->text.size());
  if (!position || offset < -start || offset > length - start) return {};
  return UITextPosition::make(static_cast<std::size_t>(start + offset));
}

bridge::UITextRange UITextView::rangeBetween(bridge::UITextPosition from,
                                             bridge::UITextPosition to) const {
  if (!from || !to) return {};
  const auto [start, end] =
      std::minmax({UITextPosition::offsetOf(from), UITextPosition::offsetOf(to)});
  return UITextRange::make({start, end - start});
}

bridge::NSString UITextView::textInRange(bridge::UITextRange range) const {
  const NSRange wanted = UITextRange::rangeOf(range);
  const std::size_t start = std::min<std::size_t>(wanted.location, _text->text.size());
  return stringOf(std::u16string_view(_text->text).substr(start, wanted.length));
}

bridge::UITextPosition UITextView::closestPosition(CGPoint point) const {
  return UITextPosition::make(indexAt(point));
}

CGRect UITextView::caretRect(bridge::UITextPosition position) const {
  return caretAt(UITextPosition::offsetOf(position));
}

// Chosen from the edit menu, it leaves the menu there for what comes next.
void UITextView::selectAll(bridge::NSObject sender) {
  if (!_isSelectable) return;
  select(NSRange{0, _text->text.size()});
  bridge::send<bool, "becomeFirstResponder">(self());
  if (bridge::isKindOf(sender, bridge::UIMenuController::classObject())) showMenu();
}

void UITextView::copyText(bridge::NSObject) {
  if (!hasSelectedText() || !outside().copyText) return;
  const auto selected =
      std::u16string_view(_text->text).substr(_selection->location, _selection->length);
  outside().copyText(stringOf(selected).utf8());
}

bool UITextView::canPerformAction(SEL action, bridge::Object sender) const {
  if (bridge::sameSelector(action, bridge::selector<"copy:">())) return hasSelectedText();
  if (bridge::sameSelector(action, bridge::selector<"selectAll:">()))
    return _isSelectable && selectedRange().length < _text->text.size();
  return super<bool, "canPerformAction:withSender:">(action, sender);
}

std::vector<CGRect> UITextView::selectionInSight() const {
  const CGRect seen = UIView::of(self()).bounds();
  const double top = seen.origin.y - textOrigin().y;
  std::vector<CGRect> rects = layout().selection(selectedRange(), top, top + seen.size.height);
  for (CGRect& rect : rects) rect = offset(rect, textOrigin());
  return rects;
}

void UITextView::drawSelection(Canvas& canvas) const {
  const Color tint = UIView::of(self()).tint();
  for (const CGRect& rect : selectionInSight())
    canvas.fill(rect, tint.withAlpha(selectionAlpha), 0);
  drawHandle(canvas, caretAt(_selection->location), tint, true);
  drawHandle(canvas, caretAt(_selection->location + _selection->length), tint, false);
}

}  // namespace desktop::uikit
