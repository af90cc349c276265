// SPDX-License-Identifier: MIT
//
// The text of a text view, its look and its arrangement. Selecting is in
// ui_text_view_selection.cpp, touches are in ui_text_view_touches.cpp.
#include "desktop/uikit/controls/ui_text_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat padding = 5;  // at both ends of every line
constexpr FontFace standardFace{.size = 12};
constexpr CGFloat unlimited = 1e7;

// To whole points, upwards.
CGFloat pointsUp(CGFloat points) {
  constexpr CGFloat tolerance = 1e-6;
  return std::ceil(points - tolerance);
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
          .method<"textColor", &Self::textColorObject>()
          .method<"setTextColor:", &Self::setTextColor>()
          .method<"textAlignment", &Self::alignmentNumber>()
          .method<"setTextAlignment:", &Self::setAlignmentNumber>()
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

UITextViewState::UITextViewState(id self) : Bound(self) {
  _look.face = standardFace;
  _text = std::make_shared<AttributedText>(AttributedText::plain({}, _look.face));
  _string = Owned<NSString>::retain(NSString::make(""));
  addGestures();
}

// Another text begins without a selection.
void UITextViewState::show(AttributedText text) {
  _text = std::make_shared<AttributedText>(std::move(text));
  _layout.reset();
  setNeedsLayout();
  setNeedsDisplay();
}

void UITextViewState::setText(NSString text) {
  if (!text) text = NSString::make("");
  _string = copy(text);
  AttributedText plain = AttributedText::plain(utf16Of(_string), _look.face, _look.style);
  plain.runs[0].color = _look.color;
  show(std::move(plain));
  select(std::nullopt);
}

void UITextViewState::setAttributedText(NSAttributedString text) {
  const auto string = text.string();
  _string = copy(string ? string : NSString::make(""));
  AttributedText attributed = AttributedText::of(text, standardFace);
  // Paragraphs without an alignment of their own stand as the view says.
  for (TextRun& run : attributed.runs)
    if (run.style.alignment == TextAlignment::natural) run.style.alignment = alignment();
  if (!attributed.text.empty()) _look = attributed.runs[0];
  show(std::move(attributed));
  select(std::nullopt);
}

NSAttributedString UITextViewState::attributedText() const {
  return attributedString(_string, _text->runs);
}

// Changes the look of all text, and of what is set later.
template <typename Change>
void UITextViewState::restyle(const Change& change) {
  AttributedText restyled = *_text;
  for (TextRun& run : restyled.runs) change(run);
  change(_look);
  show(std::move(restyled));
}

UIFont UITextViewState::font() const {
  return UIFontState::make(_look.face);
}

// No font is the standard one.
void UITextViewState::setFont(UIFont font) {
  const FontFace face = UIFontState::faceOf(font, standardFace);
  restyle([&](TextRun& run) { run.face = face; });
}

UIColor UITextViewState::textColorObject() const {
  return UIColorState::make(textColor());
}

void UITextViewState::setTextColor(UIColor color) {
  const auto value = color ? std::optional(UIColorState::valueOf(color)) : std::nullopt;
  restyle([&](TextRun& run) { run.color = value; });
}

void UITextViewState::setAlignmentNumber(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  restyle([&](TextRun& run) { run.style.alignment = static_cast<TextAlignment>(alignment); });
}

void UITextViewState::setSelectable(bool selectable) {
  _isSelectable = selectable;
  if (!selectable) select(std::nullopt);
}

void UITextViewState::setTextContainerInset(EdgeInsets inset) {
  const bool isFinite = std::isfinite(inset.top + inset.left + inset.bottom + inset.right);
  if (!isFinite || inset == _inset) return;
  _inset = inset;
  _layout.reset();
  setNeedsLayout();
  setNeedsDisplay();
}

double UITextViewState::columnWidth(CGFloat viewWidth) const {
  return std::max(viewWidth - _inset.left - _inset.right - 2 * padding, 0.0);
}

CGPoint UITextViewState::textOrigin() const {
  return {_inset.left + padding, _inset.top};
}

const TextLayout& UITextViewState::layout() {
  const double width = columnWidth(bounds().size.width);
  if (!_layout || _layout->width() != width) {
    _layout.emplace(_text, width);
    updateContentSize();
  }
  return *_layout;
}

CGSize UITextViewState::sizeAround(const TextLayout& layout, CGFloat width) const {
  const CGSize text = layout.size();
  const CGFloat needed = pointsUp(text.width + 2 * padding + _inset.left + _inset.right);
  return {std::min(needed, width), pointsUp(text.height + _inset.top + _inset.bottom)};
}

void UITextViewState::updateContentSize() {
  const CGFloat width = bounds().size.width;
  setContentSize({width, sizeAround(*_layout, width).height});
}

CGSize UITextViewState::contentSize() {
  layout();
  return UIScrollViewState::contentSize();
}

// As wide as the longest line; a size without width does not limit it.
CGSize UITextViewState::sizeThatFits(CGSize size) const {
  const CGFloat width = size.width > 0 ? std::min(size.width, unlimited) : unlimited;
  if (_layout && _layout->width() == columnWidth(width)) return sizeAround(*_layout, width);
  return sizeAround(TextLayout(_text, columnWidth(width)), width);
}

// What comes into sight is laid out for good; what is in sight then stays where it is.
void UITextViewState::layoutSubviews() {
  super<void, "layoutSubviews">();
  layout();
  const CGRect seen = bounds();
  const double top = seen.origin.y - _inset.top;
  if (_layout->isExact()) return;
  const double shift = _layout->refine(top, top + seen.size.height);
  updateContentSize();
  CGPoint offset = seen.origin;
  if (shift != 0) offset = clamped({offset.x, offset.y + shift});
  if (offset != seen.origin) self().setContentOffset(offset);
  setNeedsDisplay();
}

std::size_t UITextViewState::indexAt(CGPoint point) {
  return layout().indexAt(point - textOrigin());
}

CGRect UITextViewState::caretAt(std::size_t index) {
  return offset(layout().caretAt(std::min(index, _text->text.size())), textOrigin());
}

void UITextViewState::scrollRangeToVisible(NSRange range) {
  const CGRect first = caretAt(range.location);
  self().scrollRectToVisible(first, false);
}

void UITextViewState::drawContent(Canvas* canvas) {
  const CGRect seen = bounds();
  if (hasSelectedText()) drawSelection(*canvas);
  const double top = seen.origin.y - _inset.top;
  layout().draw(*canvas, textOrigin(), textColor(), top, top + seen.size.height);
}

}  // namespace desktop::uikit
