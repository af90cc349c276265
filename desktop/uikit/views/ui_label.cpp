// SPDX-License-Identifier: MIT
//
// What a label shows, and how. Setters stop where nothing changes; else the lines are made anew
// when they are next asked for, and the label is painted again. Lines are kept until text, room or
// screen change; where the font may shrink, the size that fits is looked for.
#include "desktop/uikit/views/ui_label.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/label_text.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat standardSize = 17;
constexpr NSUInteger longestWholeText = 10'000;  // in UTF-16 units; more than a screen has room for

}  // namespace

Class UILabelState::classObject() {
  static const Class made =
      ClassBuilder<UILabelState>("UILabel")
          .method<"text", &UILabelState::text>()
          .method<"setText:", &UILabelState::setText>()
          .method<"attributedText", &UILabelState::attributedText>()
          .method<"setAttributedText:", &UILabelState::setAttributedText>()
          .method<"font", &UILabelState::font>()
          .method<"setFont:", &UILabelState::setFont>()
          .method<"textColor", &UILabelState::textColorObject>()
          .method<"setTextColor:", &UILabelState::setTextColor>()
          .method<"highlightedTextColor", &UILabelState::highlightedTextColor>()
          .method<"setHighlightedTextColor:", &UILabelState::setHighlightedTextColor>()
          .method<"isHighlighted", &UILabelState::isHighlighted>()
          .method<"setHighlighted:", &UILabelState::setHighlighted>()
          .method<"textAlignment", &UILabelState::alignmentNumber>()
          .method<"setTextAlignment:", &UILabelState::setAlignmentNumber>()
          .method<"lineBreakMode", &UILabelState::lineBreakModeNumber>()
          .method<"setLineBreakMode:", &UILabelState::setLineBreakModeNumber>()
          .method<"numberOfLines", &UILabelState::numberOfLines>()
          .method<"setNumberOfLines:", &UILabelState::setNumberOfLines>()
          .method<"adjustsFontSizeToFitWidth", &UILabelState::adjustsFontSize>()
          .method<"setAdjustsFontSizeToFitWidth:", &UILabelState::setAdjustsFontSize>()
          .method<"minimumFontSize", &UILabelState::minimumFontSize>()
          .method<"setMinimumFontSize:", &UILabelState::setMinimumFontSize>()
          .method<"minimumScaleFactor", &UILabelState::minimumScaleFactor>()
          .method<"setMinimumScaleFactor:", &UILabelState::setMinimumScaleFactor>()
          .method<"sizeThatFits:", &UILabelState::sizeThatFits>()
          .method<"intrinsicContentSize", &UILabelState::intrinsicContentSize>()
          .method<"drawContentOn:", &UILabelState::drawContent>()
          .build();
  return made;
}

UILabelState::UILabelState(id object) : Bound(object) {
  _font = Owned<UIFont>::retain(UIFont::systemFont(standardSize));
  self().setUserInteractionEnabled(false);
}

void UILabelState::changed() {
  _shown = {};
  setNeedsDisplay();
}

void UILabelState::setText(NSString text) {
  if (!_attributedText && (text == _text.get() || text.isEqual(_text.get()))) return;
  _text = copy(text);
  _attributedText.reset();
  changed();
}

NSAttributedString UILabelState::attributedText() const {
  if (_attributedText || !_text) return _attributedText;
  auto made = NSMutableAttributedString::withString(_text);
  made->addAttribute(fontAttributeName(), _font.get(), {0, made->length()});
  return made.autorelease();
}

// The text's first font becomes the label's.
void UILabelState::setAttributedText(NSAttributedString text) {
  _attributedText = copy(text);
  _text = copy(text.string());
  if (text) {
    const FontFace face = AttributedText::of(text, UIFontState::faceOf(_font.get())).runs[0].face;
    _font = Owned<UIFont>::retain(UIFontState::make(face));
  }
  changed();
}

// No font is the standard one.
void UILabelState::setFont(UIFont font) {
  if (!font) font = UIFont::systemFont(standardSize);
  if (font.isEqual(_font.get())) return;
  _font = Owned<UIFont>::retain(font);
  changed();
}

UIColor UILabelState::textColorObject() const {
  return UIColorState::make(_style.color);
}

void UILabelState::setTextColor(UIColor color) {
  setColor(color ? UIColorState::valueOf(color) : colors::black);
}

void UILabelState::setColor(Color color) {
  if (color == _style.color) return;
  _style.color = color;
  changed();
}

void UILabelState::setHighlightedTextColor(UIColor color) {
  _highlightedTextColor = Owned<UIColor>::retain(color);
  updateHighlight();
}

void UILabelState::setHighlighted(bool highlighted) {
  if (std::exchange(_isHighlighted, highlighted) != highlighted) updateHighlight();
}

void UILabelState::setAlignmentNumber(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  _alignment = static_cast<TextAlignment>(alignment);
  changed();
}

void UILabelState::setLineBreakModeNumber(NSInteger mode) {
  if (mode < 0 || mode > static_cast<NSInteger>(LineBreakMode::byTruncatingMiddle)) return;
  _style.lineBreakMode = static_cast<LineBreakMode>(mode);
  changed();
}

void UILabelState::setNumberOfLines(NSInteger lines) {
  _style.numberOfLines = std::max(lines, NSInteger{0});
  changed();
}

void UILabelState::setAdjustsFontSize(bool adjusts) {
  if (std::exchange(_adjustsFontSize, adjusts) != adjusts) changed();
}

void UILabelState::setMinimumFontSize(CGFloat points) {
  _minimumFontSize = points > 0 ? points : 0;
  changed();
}

void UILabelState::setMinimumScaleFactor(CGFloat factor) {
  _minimumScaleFactor = factor > 0 ? std::min(factor, 1.0) : 0;
  changed();
}

void UILabelState::updateHighlight() {
  _style.highlight.reset();
  if (_isHighlighted && _highlightedTextColor)
    _style.highlight = UIColorState::valueOf(_highlightedTextColor);
  changed();
}

// The text with the label's own alignment.
SharedText UILabelState::textIn(const FontFace& face) const {
  AttributedText text = _attributedText ? AttributedText::of(_attributedText, face)
                                        : AttributedText::plain(utf16Of(_text), face);
  for (TextRun& run : text.runs)
    if (run.style.alignment == TextAlignment::natural) run.style.alignment = _alignment;
  return std::make_shared<AttributedText>(std::move(text));
}

CGFloat UILabelState::shownFontSize() const {
  const FontFace face = UIFontState::faceOf(_font.get());
  if (!_adjustsFontSize || numberOfLines() != 1 || _attributedText || !_text) return face.size;
  const double smallest = std::max(_minimumFontSize, _minimumScaleFactor * face.size);
  return sizeFitting(utf16Of(_text), face, bounds().size.width, smallest);
}

CGSize UILabelState::sizeThatFits(CGSize size) const {
  if (_text.get().length() == 0) return {};
  const FontFace face = UIFontState::faceOf(_font.get());
  return labelSize(textIn(face), _style, face, size);
}

CGSize UILabelState::intrinsicContentSize() const {
  return self().sizeThatFits(CGSize{});
}

std::vector<LabelLine> UILabelState::linesIn(CGSize size, CGRect seen) const {
  if (_text.get().length() == 0 || isEmpty(rectOfSize(size))) return {};
  FontFace face = UIFontState::faceOf(_font.get());
  face.size = shownFontSize();
  return labelLines(textIn(face), _style, size, seen.origin.y, bottom(seen));
}

const std::vector<LabelLine>& UILabelState::lines() const {
  const CGSize size = bounds().size;
  // Only what is seen of a text that fills many screens is laid out, anew wherever it scrolls to.
  const CGRect seen = _text.get().length() > longestWholeText ? partInSight() : rectOfSize(size);
  if (_shown.scale != screen().scale || _shown.size != size || _shown.seen != seen)
    _shown = {size, seen, screen().scale, linesIn(size, seen)};
  return _shown.lines;
}

void UILabelState::drawContent(Canvas* canvas) const {
  drawLabelLines(lines(), bounds(), *canvas);
}

}  // namespace desktop::uikit
