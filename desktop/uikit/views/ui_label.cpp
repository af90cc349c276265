// SPDX-License-Identifier: MIT
//
// What a label shows, and how. Setters stop where nothing changes; else the lines are made anew
// when they are next asked for, and the label is painted again. Where its lines stand is in
// ui_label_lines.cpp.
#include "desktop/uikit/views/ui_label.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat standardSize = 17;
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
  return UIColorState::make(_textColor);
}

void UILabelState::setTextColor(UIColor color) {
  setColor(color ? UIColorState::valueOf(color) : colors::black);
}

void UILabelState::setColor(Color color) {
  if (color == _textColor) return;
  _textColor = color;
  changed();
}

void UILabelState::setHighlightedTextColor(UIColor color) {
  _highlightedTextColor = Owned<UIColor>::retain(color);
  changed();
}

void UILabelState::setHighlighted(bool highlighted) {
  if (std::exchange(_isHighlighted, highlighted) != highlighted) changed();
}

void UILabelState::setAlignmentNumber(NSInteger alignment) {
  if (alignment < 0 || alignment > static_cast<NSInteger>(TextAlignment::natural)) return;
  _alignment = static_cast<TextAlignment>(alignment);
  changed();
}

void UILabelState::setLineBreakModeNumber(NSInteger mode) {
  if (mode < 0 || mode > static_cast<NSInteger>(LineBreakMode::byTruncatingMiddle)) return;
  _lineBreakMode = static_cast<LineBreakMode>(mode);
  changed();
}

void UILabelState::setNumberOfLines(NSInteger lines) {
  _numberOfLines = std::max(lines, NSInteger{0});
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

}  // namespace desktop::uikit
