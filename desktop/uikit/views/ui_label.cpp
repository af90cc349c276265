// SPDX-License-Identifier: MIT
//
// What a label shows, and how. Setters stop where nothing changes; else the lines are made anew
// when they are next asked for, and the label is painted again. Where its lines stand is in
// ui_label_lines.cpp.
#include "desktop/uikit/views/ui_label.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat standardSize = 17;
}  // namespace

Class UILabel::classObject() {
  static const Class made =
      bridge::ClassBuilder<UILabel>("UILabel")
          .method<"text", &UILabel::text>()
          .method<"setText:", &UILabel::setText>()
          .method<"attributedText", &UILabel::attributedText>()
          .method<"setAttributedText:", &UILabel::setAttributedText>()
          .method<"font", &UILabel::font>()
          .method<"setFont:", &UILabel::setFont>()
          .method<"textColor", &UILabel::textColorObject>()
          .method<"setTextColor:", &UILabel::setTextColor>()
          .method<"highlightedTextColor", &UILabel::highlightedTextColor>()
          .method<"setHighlightedTextColor:", &UILabel::setHighlightedTextColor>()
          .method<"isHighlighted", &UILabel::isHighlighted>()
          .method<"setHighlighted:", &UILabel::setHighlighted>()
          .method<"textAlignment", &UILabel::alignmentNumber>()
          .method<"setTextAlignment:", &UILabel::setAlignmentNumber>()
          .method<"lineBreakMode", &UILabel::lineBreakModeNumber>()
          .method<"setLineBreakMode:", &UILabel::setLineBreakModeNumber>()
          .method<"numberOfLines", &UILabel::numberOfLines>()
          .method<"setNumberOfLines:", &UILabel::setNumberOfLines>()
          .method<"adjustsFontSizeToFitWidth", &UILabel::adjustsFontSize>()
          .method<"setAdjustsFontSizeToFitWidth:", &UILabel::setAdjustsFontSize>()
          .method<"minimumFontSize", &UILabel::minimumFontSize>()
          .method<"setMinimumFontSize:", &UILabel::setMinimumFontSize>()
          .method<"minimumScaleFactor", &UILabel::minimumScaleFactor>()
          .method<"setMinimumScaleFactor:", &UILabel::setMinimumScaleFactor>()
          .method<"sizeThatFits:", &UILabel::sizeThatFits>()
          .method<"intrinsicContentSize", &UILabel::intrinsicContentSize>()
          .method<"drawContentOn:", &UILabel::drawContent>()
          .build();
  return made;
}

UILabel::UILabel(id self) : Bound(self) {
  _font = bridge::Owned<bridge::UIFont>::retain(bridge::UIFont::systemFont(standardSize));
  bridge::send<void, "setUserInteractionEnabled:">(bridge::Object(self), false);
}

void UILabel::changed() {
  _shown = {};
  UIView::of(self()).setNeedsDisplay();
}

void UILabel::setText(bridge::NSString text) {
  if (!_attributedText && (text == _text.get() || text.isEqual(_text.get()))) return;
  _text = bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(text));
  _attributedText.reset();
  changed();
}

bridge::NSAttributedString UILabel::attributedText() const {
  if (_attributedText || !_text) return _attributedText;
  auto made = bridge::NSMutableAttributedString::withString(_text);
  made->addAttribute(bridge::fontAttributeName(), _font.get(), {0, made->length()});
  return made.autorelease();
}

// The text's first font becomes the label's.
void UILabel::setAttributedText(bridge::NSAttributedString text) {
  using bridge::NSAttributedString;
  using bridge::NSString;
  _attributedText =
      bridge::Owned<NSAttributedString>::adopt(bridge::send<NSAttributedString, "copy">(text));
  _text = bridge::Owned<NSString>::adopt(
      bridge::send<NSString, "copy">(bridge::send<NSString, "string">(text)));
  if (text) {
    const FontFace face = AttributedText::of(text, UIFont::faceOf(_font.get())).runs[0].face;
    _font = bridge::Owned<bridge::UIFont>::retain(UIFont::make(face));
  }
  changed();
}

// No font is the standard one.
void UILabel::setFont(bridge::UIFont font) {
  if (!font) font = bridge::UIFont::systemFont(standardSize);
  if (font.isEqual(_font.get())) return;
  _font = bridge::Owned<bridge::UIFont>::retain(font);
  changed();
}

bridge::UIColor UILabel::textColorObject() const {
  return UIColor::make(_textColor);
}

void UILabel::setTextColor(bridge::UIColor color) {
  setColor(color ? UIColor::valueOf(color) : colors::black);
}

void UILabel::setColor(Color color) {
  if (color == _textColor) return;
  _textColor = color;
  changed();
}

void UILabel::setHighlightedTextColor(bridge::UIColor color) {
  _highlightedTextColor = bridge::Owned<bridge::UIColor>::retain(color);
  changed();
}

void UILabel::setHighlighted(bool highlighted) {
  if (std::exchange(_isHighlighted, highlighted) != highlighted) changed();
}

void UILabel::setAlignmentNumber(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  _alignment = static_cast<TextAlignment>(alignment);
  changed();
}

void UILabel::setLineBreakModeNumber(NSInteger mode) {
  if (mode < 0 || mode > static_cast<NSInteger>(LineBreakMode::byTruncatingMiddle)) return;
  _lineBreakMode = static_cast<LineBreakMode>(mode);
  changed();
}

void UILabel::setNumberOfLines(NSInteger lines) {
  _numberOfLines = std::max(lines, NSInteger{0});
  changed();
}

void UILabel::setAdjustsFontSize(bool adjusts) {
  if (std::exchange(_adjustsFontSize, adjusts) != adjusts) changed();
}

void UILabel::setMinimumFontSize(CGFloat points) {
  _minimumFontSize = points > 0 ? points : 0;
  changed();
}

void UILabel::setMinimumScaleFactor(CGFloat factor) {
  _minimumScaleFactor = factor > 0 ? std::min(factor, 1.0) : 0;
  changed();
}

}  // namespace desktop::uikit
