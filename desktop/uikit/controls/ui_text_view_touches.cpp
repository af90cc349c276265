// SPDX-License-Identifier: MIT
//
// Selecting by touch: a long press selects a word and, dragged, more; the ends of a selection can
// be dragged; a tap clears it.
#include <algorithm>
#include <cmath>

#include "desktop/uikit/controls/ui_text_view.h"
#include "desktop/uikit/text/text_words.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat reach = 20;  // points around an end that take hold of it

// A recogniser of a class, which the view owns; borrowed from it.
template <FixedString ClassName, FixedString Action>
UIGestureRecognizer addRecognizer(UIView view) {
  const auto made = makeWith<UIGestureRecognizer, "initWithTarget:action:">(
      classNamed<ClassName>(), view, selector<Action>());
  made->setDelegate(view);
  view.addGestureRecognizer(made);
  return made;
}

CGFloat distance(CGPoint point, CGRect caret) {
  const CGFloat y = std::clamp(point.y, caret.origin.y, bottom(caret));
  return std::hypot(point.x - caret.origin.x, point.y - y);
}

bool isOver(UIGestureRecognizer recognizer) {
  return recognizer.state() == UIGestureRecognizer::ended ||
         recognizer.state() == UIGestureRecognizer::cancelled;
}

void hideMenu() {
  const auto menu = UIMenuController::shared();
  menu.setMenuVisible(false, true);
}

}  // namespace

void UITextViewState::addGestures() {
  const UIView view = self();
  _press = addRecognizer<"UILongPressGestureRecognizer", "textPressed:">(view);
  _handle = addRecognizer<"UILongPressGestureRecognizer", "selectionEndDragged:">(view);
  UILongPressGestureRecognizer(_handle.get()).setMinimumPressDuration(0);
  _tap = addRecognizer<"UITapGestureRecognizer", "textTapped:">(view);
}

bool UITextViewState::wantsTouch(UIGestureRecognizer recognizer, UITouch touch) {
  if (recognizer == _handle) return hasSelectedText() && isNearEnd(touch.locationIn(self()));
  if (recognizer == _tap) return _selection.has_value();
  return _isSelectable;
}

bool UITextViewState::isNearEnd(CGPoint point) {
  const NSRange range = selectedRange();
  return distance(point, caretAt(range.location)) <= reach ||
         distance(point, caretAt(range.location + range.length)) <= reach;
}

void UITextViewState::selectBetween(std::size_t from, std::size_t to) {
  select(NSRange{std::min(from, to), std::max(from, to) - std::min(from, to)});
}

// The unit below a point, where a caret nearest to it may stand behind the unit.
std::size_t UITextViewState::unitAt(CGPoint point) {
  const std::size_t index = indexAt(point);
  return index > 0 && caretAt(index).origin.x > point.x ? index - 1 : index;
}

void UITextViewState::pressed(UIGestureRecognizer recognizer) {
  const NSRange word = wordAt(_text->text, unitAt(recognizer.locationIn(self())));
  if (recognizer.state() == UIGestureRecognizer::began) {
    hideMenu();
    _pressed = word;
    self().becomeFirstResponder();
  }
  if (recognizer.state() != UIGestureRecognizer::cancelled)
    selectBetween(std::min(word.location, _pressed.location),
                  std::max(word.location + word.length, _pressed.location + _pressed.length));
  if (isOver(recognizer)) showMenu();
}

void UITextViewState::tapped(UIGestureRecognizer) {
  hideMenu();
  select(std::nullopt);
}

// The end that is dragged goes with the finger, to the other side of the fixed one too; at least
// one unit stays selected.
void UITextViewState::dragged(UIGestureRecognizer recognizer) {
  const CGPoint point = recognizer.locationIn(self());
  if (recognizer.state() == UIGestureRecognizer::began) {
    const NSRange range = selectedRange();
    const std::size_t end = range.location + range.length;
    const bool isFirst = distance(point, caretAt(range.location)) < distance(point, caretAt(end));
    _fixedEnd = isFirst ? end : range.location;
    hideMenu();
    self().becomeFirstResponder();
    return;
  }
  const std::size_t index = indexAt(point);
  if (!isOver(recognizer) && index != _fixedEnd) selectBetween(_fixedEnd, index);
  if (isOver(recognizer)) showMenu();
}

void UITextViewState::showMenu() {
  const std::vector<CGRect> rects = selectionInSight();
  CGRect target = rects.empty() ? CGRect{bounds().origin, {1, 1}} : rects[0];
  for (const CGRect& rect : rects) target = unionOf(target, rect);
  target = intersection(target, bounds());
  const auto menu = UIMenuController::shared();
  menu.setTargetRect(target, self());
  menu.setMenuVisible(true, true);
}

}  // namespace desktop::uikit
