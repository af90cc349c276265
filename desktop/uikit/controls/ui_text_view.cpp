// SPDX-License-Identifier: MIT
//
// What a text view answers, by its parts: the text as it is shown, and what of it is selected. A
// long press selects a word and, dragged, more; the ends of a selection can be dragged; a tap
// clears it.
#include "desktop/uikit/controls/ui_text_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/controls/ui_text_position.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat reach = 20;  // points around an end of the selection that take hold of it

// A recogniser of a class, which the view owns; borrowed from it.
template <FixedString ClassName, FixedString Action>
UIGestureRecognizer addRecognizer(UIView view) {
  const auto made = makeWith<UIGestureRecognizer, "initWithTarget:action:">(
      classNamed<ClassName>(), view, selector<Action>());
  made->setDelegate(view);
  view.addGestureRecognizer(made);
  return made;
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

Class UITextViewState::classObject() {
  using Self = UITextViewState;
  static const Class made =
      ClassBuilder<UITextViewState>("UITextView")
          .method<"text", &Self::text>()
          .method<"setText:", &Self::setText>()
          .method<"attributedText", &Self::attributedText>()
          .method<"setAttributedText:", &Self::setAttributedText>()
          .method<"font", &Self::font>()
          .method<"setFont:", &Self::setFont>()
          .method<"textColor", &Self::textColor>()
          .method<"setTextColor:", &Self::setTextColor>()
          .method<"textAlignment", &Self::alignment>()
          .method<"setTextAlignment:", &Self::setAlignment>()
          .method<"isEditable", &Self::isEditable>()
          .method<"setEditable:", &Self::setEditable>()
          .method<"isSelectable", &Self::isSelectable>()
          .method<"setSelectable:", &Self::setSelectable>()
          .method<"textContainerInset", &Self::textContainerInset>()
          .method<"setTextContainerInset:", &Self::setTextContainerInset>()
          .method<"contentSize", &Self::contentSize>()
          .method<"sizeThatFits:", &Self::sizeThatFits>()
          .method<"layoutSubviews", &Self::layoutSubviews>()
          .method<"scrollRangeToVisible:", &Self::scrollRangeToVisible>()
          .method<"drawContentOn:", &Self::drawContent>()
          .method<"selectedRange", &Self::selectedRange>()
          .method<"setSelectedRange:", &Self::setSelectedRange>()
          .method<"selectedTextRange", &Self::selectedTextRange>()
          .method<"setSelectedTextRange:", &Self::setSelectedTextRange>()
          .method<"beginningOfDocument", &Self::beginningOfDocument>()
          .method<"endOfDocument", &Self::endOfDocument>()
          .method<"offsetFromPosition:toPosition:", &Self::offsetBetween>()
          .method<"positionFromPosition:offset:", &Self::positionFrom>()
          .method<"textRangeFromPosition:toPosition:", &Self::rangeBetween>()
          .method<"textInRange:", &Self::textInRange>()
          .method<"closestPositionToPoint:", &Self::closestPosition>()
          .method<"caretRectForPosition:", &Self::caretRect>()
          .method<"selectAll:", &Self::selectAll>()
          .method<"copy:", &Self::copyText>()
          .method<"canPerformAction:withSender:", &Self::canPerformAction>()
          .method<"canBecomeFirstResponder", &Self::canBecomeFirstResponder>()
          .method<"gestureRecognizer:shouldReceiveTouch:", &Self::wantsTouch>()
          .method<"textPressed:", &Self::pressed>()
          .method<"textTapped:", &Self::tapped>()
          .method<"selectionEndDragged:", &Self::dragged>()
          .build();
  return made;
}

UITextViewState::UITextViewState(id object) : Bound(object) {
  _string = Owned<NSString>::retain(NSString::make(""));
  addRecognizer<"UILongPressGestureRecognizer", "textPressed:">(self());
  _handle = addRecognizer<"UILongPressGestureRecognizer", "selectionEndDragged:">(self());
  UILongPressGestureRecognizer(_handle.get()).setMinimumPressDuration(0);
  _tap = addRecognizer<"UITapGestureRecognizer", "textTapped:">(self());
}

// The text, arranged for the width that the view has at present.
const ShownText& UITextViewState::arranged() {
  if (_text.arrange(bounds().size.width)) updateContentSize();
  return _text;
}

void UITextViewState::updateContentSize() {
  const CGFloat width = bounds().size.width;
  setContentSize({width, _text.sizeIn(width).height});
}

void UITextViewState::textChanged() {
  setNeedsLayout();
  setNeedsDisplay();
}

// Another text begins without a selection.
void UITextViewState::setText(NSString text) {
  _string = copy(text ? text : NSString::make(""));
  _text.setPlain(utf16Of(_string));
  textChanged();
  select(std::nullopt);
}

void UITextViewState::setAttributedText(NSAttributedString text) {
  const auto string = text.string();
  _string = copy(string ? string : NSString::make(""));
  _text.setAttributed(AttributedText::of(text, ShownText::standardFace));
  textChanged();
  select(std::nullopt);
}

NSAttributedString UITextViewState::attributedText() const {
  return attributedString(_string, _text.content().runs);
}

UIFont UITextViewState::font() const {
  return UIFontState::make(_text.face());
}

// No font is the standard one.
void UITextViewState::setFont(UIFont font) {
  _text.setFace(UIFontState::faceOf(font, ShownText::standardFace));
  textChanged();
}

UIColor UITextViewState::textColor() const {
  return UIColorState::make(_text.color());
}

void UITextViewState::setTextColor(UIColor color) {
  _text.setColor(color ? std::optional(UIColorState::valueOf(color)) : std::nullopt);
  textChanged();
}

void UITextViewState::setAlignment(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  _text.setAlignment(static_cast<TextAlignment>(alignment));
  textChanged();
}

void UITextViewState::setTextContainerInset(EdgeInsets inset) {
  if (_text.setInset(inset)) textChanged();
}

void UITextViewState::setSelectable(bool selectable) {
  _isSelectable = selectable;
  if (!selectable) select(std::nullopt);
}

CGSize UITextViewState::contentSize() {
  arranged();
  return UIScrollViewState::contentSize();
}

// A size without width does not limit it.
CGSize UITextViewState::sizeThatFits(CGSize size) const {
  constexpr CGFloat unlimited = 1e7;
  return _text.sizeIn(size.width > 0 ? std::min(size.width, unlimited) : unlimited);
}

// What comes into sight is laid out for good; what is in sight then stays where it is. A view that
// is as high as a long text is never seen whole.
void UITextViewState::layoutSubviews() {
  super<void, "layoutSubviews">();
  if (arranged().layout().isExact()) return;
  const CGRect seen = partInSight();
  const double shift = _text.refine(seen);
  updateContentSize();
  CGPoint offset = contentOffset();
  if (shift != 0) offset = clamped({offset.x, offset.y + shift});
  if (offset != contentOffset()) self().setContentOffset(offset);
  setNeedsDisplay();
}

void UITextViewState::scrollRangeToVisible(NSRange range) {
  self().scrollRectToVisible(caretAt(range.location), false);
}

void UITextViewState::drawContent(Canvas* canvas) {
  const ShownText& text = arranged();
  if (hasSelectedText()) text.drawSelection(*canvas, selectedRange(), partInSight(), tint());
  text.draw(*canvas, partInSight());
}

// The delegate hears of another selection only.
void UITextViewState::select(std::optional<NSRange> range) {
  if (!_selection.set(range, _text.length())) return;
  setNeedsDisplay();
  told<"textViewDidChangeSelection:">(delegate(), self());
}

void UITextViewState::setSelectedRange(NSRange range) {
  if (range.location == static_cast<NSUInteger>(NSNotFound)) return select(std::nullopt);
  select(range);
}

UITextRange UITextViewState::selectedTextRange() const {
  return _selection.range() ? UITextRangeState::make(*_selection.range()) : UITextRange();
}

void UITextViewState::setSelectedTextRange(UITextRange range) {
  if (!range) return select(std::nullopt);
  select(UITextRangeState::rangeOf(range));
}

UITextPosition UITextViewState::beginningOfDocument() const {
  return UITextPositionState::make(0);
}

UITextPosition UITextViewState::endOfDocument() const {
  return UITextPositionState::make(_text.length());
}

NSInteger UITextViewState::offsetBetween(UITextPosition from, UITextPosition to) const {
  return static_cast<NSInteger>(UITextPositionState::offsetOf(to)) -
         static_cast<NSInteger>(UITextPositionState::offsetOf(from));
}

// Nil outside the text.
UITextPosition UITextViewState::positionFrom(UITextPosition position, NSInteger offset) const {
  const auto start = static_cast<NSInteger>(UITextPositionState::offsetOf(position));
  const auto length = static_cast<NSInteger>(_text.length());
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
  return stringOf(_text.units(UITextRangeState::rangeOf(range)));
}

UITextPosition UITextViewState::closestPosition(CGPoint point) {
  return UITextPositionState::make(arranged().indexAt(point));
}

CGRect UITextViewState::caretRect(UITextPosition position) {
  return caretAt(UITextPositionState::offsetOf(position));
}

// Chosen from the edit menu, it leaves the menu there for what comes next.
void UITextViewState::selectAll(NSObject sender) {
  if (!_isSelectable) return;
  select(NSRange{0, _text.length()});
  self().becomeFirstResponder();
  if (isKindOf(sender, UIMenuController::classObject())) showMenu();
}

void UITextViewState::copyText(NSObject) {
  if (!hasSelectedText() || !outside().copyText) return;
  outside().copyText(stringOf(_text.units(_selection.units())).utf8());
}

bool UITextViewState::canPerformAction(SEL action, Object sender) const {
  if (sameSelector(action, selector<"copy:">())) return hasSelectedText();
  if (sameSelector(action, selector<"selectAll:">()))
    return _isSelectable && selectedRange().length < _text.length();
  return super<bool, "canPerformAction:withSender:">(action, sender);
}

bool UITextViewState::wantsTouch(UIGestureRecognizer recognizer, UITouch touch) {
  if (recognizer == _tap) return _selection.range().has_value();
  if (recognizer != _handle) return _isSelectable;
  if (!hasSelectedText()) return false;
  const CGPoint point = touch.locationIn(self());
  return arranged().distance(point, _selection.start()) <= reach ||
         arranged().distance(point, _selection.end()) <= reach;
}

void UITextViewState::pressed(UIGestureRecognizer recognizer) {
  const NSRange word = arranged().wordAt(recognizer.locationIn(self()));
  if (recognizer.state() == UIGestureRecognizer::began) {
    hideMenu();
    _selection.press(word);
    self().becomeFirstResponder();
  }
  if (recognizer.state() != UIGestureRecognizer::cancelled) select(_selection.pressedTo(word));
  if (isOver(recognizer)) showMenu();
}

void UITextViewState::tapped(UIGestureRecognizer) {
  hideMenu();
  select(std::nullopt);
}

// The end that is nearer to the finger goes with it.
void UITextViewState::dragged(UIGestureRecognizer recognizer) {
  const CGPoint point = recognizer.locationIn(self());
  if (recognizer.state() == UIGestureRecognizer::began) {
    _selection.hold(arranged().distance(point, _selection.start()) <
                    arranged().distance(point, _selection.end()));
    hideMenu();
    self().becomeFirstResponder();
    return;
  }
  if (isOver(recognizer)) return showMenu();
  if (const auto range = _selection.draggedTo(arranged().indexAt(point))) select(range);
}

void UITextViewState::showMenu() {
  const std::vector<CGRect> rects = arranged().selection(selectedRange(), bounds());
  CGRect target = rects.empty() ? CGRect{bounds().origin, {1, 1}} : rects[0];
  for (const CGRect& rect : rects) target = unionOf(target, rect);
  const auto menu = UIMenuController::shared();
  menu.setTargetRect(intersection(target, bounds()), self());
  menu.setMenuVisible(true, true);
}

}  // namespace desktop::uikit
