// SPDX-License-Identifier: MIT
//
// The text of a text view, its look and its arrangement. Selecting is in
// ui_text_view_selection.cpp, touches are in ui_text_view_touches.cpp.
#include "desktop/uikit/controls/ui_text_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
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

Class UITextView::classObject() {
  using Self = UITextView;
  static const Class made =
      bridge::ClassBuilder<UITextView>("UITextView")
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

UITextView::UITextView(id self) : Bound(self) {
  _look.face = standardFace;
  _text = std::make_shared<AttributedText>(AttributedText::plain({}, _look.face));
  _string = bridge::Owned<bridge::NSString>::retain(bridge::NSString::make(""));
  addGestures();
}

// Another text begins without a selection.
void UITextView::show(AttributedText text) {
  _text = std::make_shared<AttributedText>(std::move(text));
  _layout.reset();
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

void UITextView::setText(bridge::NSString text) {
  if (!text) text = bridge::NSString::make("");
  _string = bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(text));
  AttributedText plain = AttributedText::plain(utf16Of(_string), _look.face, _look.style);
  plain.runs[0].color = _look.color;
  show(std::move(plain));
  select(std::nullopt);
}

void UITextView::setAttributedText(bridge::NSAttributedString text) {
  using bridge::NSString;
  const auto string = bridge::send<NSString, "string">(text);
  _string = bridge::Owned<NSString>::adopt(
      bridge::send<NSString, "copy">(string ? string : NSString::make("")));
  AttributedText attributed = AttributedText::of(text, standardFace);
  // Paragraphs without an alignment of their own stand as the view says.
  for (TextRun& run : attributed.runs)
    if (run.style.alignment == TextAlignment::natural) run.style.alignment = alignment();
  if (!attributed.text.empty()) _look = attributed.runs[0];
  show(std::move(attributed));
  select(std::nullopt);
}

bridge::NSAttributedString UITextView::attributedText() const {
  return attributedString(_string, _text->runs);
}

// Changes the look of all text, and of what is set later.
template <typename Change>
void UITextView::restyle(const Change& change) {
  AttributedText restyled = *_text;
  for (TextRun& run : restyled.runs) change(run);
  change(_look);
  show(std::move(restyled));
}

bridge::UIFont UITextView::font() const {
  return UIFont::make(_look.face);
}

// No font is the standard one.
void UITextView::setFont(bridge::UIFont font) {
  const FontFace face = UIFont::faceOf(font, standardFace);
  restyle([&](TextRun& run) { run.face = face; });
}

bridge::UIColor UITextView::textColorObject() const {
  return UIColor::make(textColor());
}

void UITextView::setTextColor(bridge::UIColor color) {
  const auto value = color ? std::optional(UIColor::valueOf(color)) : std::nullopt;
  restyle([&](TextRun& run) { run.color = value; });
}

void UITextView::setAlignmentNumber(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  restyle([&](TextRun& run) { run.style.alignment = static_cast<TextAlignment>(alignment); });
}

void UITextView::setSelectable(bool selectable) {
  _isSelectable = selectable;
  if (!selectable) select(std::nullopt);
}

void UITextView::setTextContainerInset(EdgeInsets inset) {
  const bool isFinite = std::isfinite(inset.top + inset.left + inset.bottom + inset.right);
  if (!isFinite || inset == _inset) return;
  _inset = inset;
  _layout.reset();
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

double UITextView::columnWidth(CGFloat viewWidth) const {
  return std::max(viewWidth - _inset.left - _inset.right - 2 * padding, 0.0);
}

CGPoint UITextView::textOrigin() const {
  return {_inset.left + padding, _inset.top};
}

const TextLayout& UITextView::layout() const {
  const double width = columnWidth(UIView::of(self()).bounds().size.width);
  if (!_layout || _layout->width() != width) {
    _layout.emplace(_text, width);
    updateContentSize();
  }
  return *_layout;
}

CGSize UITextView::sizeAround(const TextLayout& layout, CGFloat width) const {
  const CGSize text = layout.size();
  const CGFloat needed = pointsUp(text.width + 2 * padding + _inset.left + _inset.right);
  return {std::min(needed, width), pointsUp(text.height + _inset.top + _inset.bottom)};
}

void UITextView::updateContentSize() const {
  const CGFloat width = UIView::of(self()).bounds().size.width;
  UIScrollView::of(self()).setContentSize({width, sizeAround(*_layout, width).height});
}

CGSize UITextView::contentSize() const {
  layout();
  return UIScrollView::of(self()).contentSize();
}

// As wide as the longest line; a size without width does not limit it.
CGSize UITextView::sizeThatFits(CGSize size) const {
  const CGFloat width = size.width > 0 ? std::min(size.width, unlimited) : unlimited;
  if (_layout && _layout->width() == columnWidth(width)) return sizeAround(*_layout, width);
  return sizeAround(TextLayout(_text, columnWidth(width)), width);
}

// What comes into sight is laid out for good; what is in sight then stays where it is.
void UITextView::layoutSubviews() {
  super<void, "layoutSubviews">();
  layout();
  const CGRect seen = UIView::of(self()).bounds();
  const double top = seen.origin.y - _inset.top;
  if (_layout->isExact()) return;
  const double shift = _layout->refine(top, top + seen.size.height);
  updateContentSize();
  const UIScrollView& scroll = UIScrollView::of(self());
  CGPoint offset = seen.origin;
  if (shift != 0) offset = scroll.clamped({offset.x, offset.y + shift});
  if (offset != seen.origin) bridge::send<void, "setContentOffset:">(self(), offset);
  UIView::of(self()).setNeedsDisplay();
}

std::size_t UITextView::indexAt(CGPoint point) const {
  return layout().indexAt(point - textOrigin());
}

CGRect UITextView::caretAt(std::size_t index) const {
  return offset(layout().caretAt(std::min(index, _text->text.size())), textOrigin());
}

void UITextView::scrollRangeToVisible(NSRange range) {
  const CGRect first = caretAt(range.location);
  bridge::send<void, "scrollRectToVisible:animated:">(self(), first, false);
}

void UITextView::drawContent(Canvas* canvas) const {
  const CGRect seen = UIView::of(self()).bounds();
  if (hasSelectedText()) drawSelection(*canvas);
  const double top = seen.origin.y - _inset.top;
  layout().draw(*canvas, textOrigin(), textColor(), top, top + seen.size.height);
}

}  // namespace desktop::uikit
