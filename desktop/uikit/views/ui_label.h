// SPDX-License-Identifier: MIT
//
// UILabel: a few lines of text, centred vertically in the view.
#pragma once

#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/text/attributed_text.h"
#include "desktop/uikit/text/text_layout.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

// One line as a label paints it.
struct LabelLine {
  std::u16string text;
  FontFace face;
  Color color;
  CGPoint baseline;  // in the label's coordinates
};

class UILabelState : public Bound<UILabelState, UIViewState, UILabel> {
 public:
  explicit UILabelState(id self);
  static Class classObject();

  NSString text() const { return _text; }
  UIFont font() const { return _font; }
  Color textColor() const { return _textColor; }
  TextAlignment alignment() const { return _alignment; }
  LineBreakMode lineBreakMode() const { return _lineBreakMode; }
  NSInteger numberOfLines() const { return _numberOfLines; }
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
  NSInteger lineBreakModeNumber() const { return static_cast<NSInteger>(_lineBreakMode); }
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
    CGFloat scale = 0;  // pixels a point; 0 before anything was laid out
    std::vector<LabelLine> lines;
  };

  void changed();
  AttributedText textIn(const FontFace& face) const;
  std::vector<PlacedLine> linesWithRoom(const TextLayout& layout, CGSize size) const;
  std::vector<LabelLine> linesIn(CGSize size) const;
  Color colorOf(const TextRun& run) const;

  Owned<NSString> _text;                      // nil: none
  Owned<NSAttributedString> _attributedText;  // nil: plain
  Owned<UIFont> _font;
  Color _textColor = colors::black;
  Owned<UIColor> _highlightedTextColor;  // nil: the same
  TextAlignment _alignment = TextAlignment::natural;
  LineBreakMode _lineBreakMode = LineBreakMode::byTruncatingTail;
  NSInteger _numberOfLines = 1;  // 0: as many as there are
  CGFloat _minimumFontSize = 0;
  CGFloat _minimumScaleFactor = 0;
  bool _adjustsFontSize = false;
  bool _isHighlighted = false;
  mutable Shown _shown;
};

}  // namespace desktop::uikit
