// SPDX-License-Identifier: MIT
//
// UILabel: a few lines of text, centred vertically in the view.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/label_lines.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UILabelState : public Bound<UILabelState, UIViewState, UILabel> {
 public:
  explicit UILabelState(id self);
  static Class classObject();

  NSString text() const { return _text; }
  UIFont font() const { return _font; }
  Color textColor() const { return _style.color; }
  TextAlignment alignment() const { return _alignment; }
  LineBreakMode lineBreakMode() const { return _style.lineBreakMode; }
  NSInteger numberOfLines() const { return _style.numberOfLines; }
  // The size that the font has after shrinking to the width; the font's own where it fits.
  CGFloat shownFontSize() const;
  // What is painted: the lines that there is room for, cut where they are too long.
  const std::vector<LabelLine>& lines() const;

  void setText(NSString text);
  void setFont(UIFont font);
  void setColor(Color color);
  // As wide as the text or as the size, where it has a width; as high as the lines.
  CGSize sizeThatFits(CGSize size) const;

 private:
  NSAttributedString attributedText() const;
  void setAttributedText(NSAttributedString text);
  UIColor textColorObject() const;
  void setTextColor(UIColor color);
  UIColor highlightedTextColor() const { return _highlightedTextColor; }
  void setHighlightedTextColor(UIColor color);
  bool isHighlighted() const { return _isHighlighted; }
  void setHighlighted(bool highlighted);
  NSInteger alignmentNumber() const { return static_cast<NSInteger>(_alignment); }
  void setAlignmentNumber(NSInteger alignment);
  NSInteger lineBreakModeNumber() const { return static_cast<NSInteger>(lineBreakMode()); }
  void setLineBreakModeNumber(NSInteger mode);
  void setNumberOfLines(NSInteger lines);
  bool adjustsFontSize() const { return _adjustsFontSize; }
  void setAdjustsFontSize(bool adjusts);
  CGFloat minimumFontSize() const { return _minimumFontSize; }
  void setMinimumFontSize(CGFloat points);
  CGFloat minimumScaleFactor() const { return _minimumScaleFactor; }
  void setMinimumScaleFactor(CGFloat factor);
  CGSize intrinsicContentSize() const;
  void drawContent(Canvas* canvas) const;

  // What is painted, and for which room.
  struct Shown {
    CGSize size;
    CGRect seen;
    CGFloat scale = 0;  // pixels a point; 0 before anything was laid out
    std::vector<LabelLine> lines;
  };

  void changed();
  void updateHighlight();
  SharedText textIn(const FontFace& face) const;
  std::vector<LabelLine> linesIn(CGSize size, CGRect seen) const;

  Owned<NSString> _text;                      // nil: none
  Owned<NSAttributedString> _attributedText;  // nil: plain
  Owned<UIFont> _font;
  Owned<UIColor> _highlightedTextColor;  // nil: the same
  TextAlignment _alignment = TextAlignment::natural;
  CGFloat _minimumFontSize = 0;
  CGFloat _minimumScaleFactor = 0;
  bool _adjustsFontSize = false;
  bool _isHighlighted = false;
  LabelStyle _style;
  mutable Shown _shown;
};

}  // namespace desktop::uikit
