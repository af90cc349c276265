// SPDX-License-Identifier: MIT
//
// The text that a text view shows: how it looks, and where it stands in a view of some width.
// Places are in points of the view's coordinates, ranges in UTF-16 units.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "desktop/platform.h"
#include "desktop/uikit/scrolling/edge_insets.h"
#include "desktop/uikit/text/text_layout.h"

namespace desktop::uikit {

class ShownText {
 public:
  static constexpr FontFace standardFace{.size = 12};

  ShownText();

  const AttributedText& content() const { return *_text; }
  std::size_t length() const { return _text->text.size(); }
  // As many units of a range as there are.
  std::u16string_view units(NSRange range) const;
  // The look of the text's beginning, and of all plain text.
  const FontFace& face() const { return _look.face; }
  Color color() const { return _look.color.value_or(colors::black); }
  TextAlignment alignment() const { return _look.style.alignment; }
  EdgeInsets inset() const { return _inset; }

  // Another text, in the present look or in its own one; paragraphs without an alignment of their
  // own then take the present one.
  void setPlain(std::u16string text);
  void setAttributed(AttributedText text);
  // The look of all text, and of what is set later.
  void setFace(const FontFace& face);
  void setColor(std::optional<Color> color);
  void setAlignment(TextAlignment alignment);
  // Whether it is another one; one that is not finite is none.
  bool setInset(EdgeInsets inset);

  // As wide as the longest line with the room around it, but no wider than the view.
  CGSize sizeIn(CGFloat viewWidth) const;
  // Arranges the text for a view; whether it was not arranged for its width. All below is of the
  // text as it was last arranged. REQUIRES: it was, since text, look or inset changed.
  bool arrange(CGFloat viewWidth);
  const TextLayout& layout() const { return *_layout; }
  // Lays out for good what is in sight. How far what is at the top of that moved down.
  double refine(CGRect inSight);

  // The place in the text nearest to a point.
  std::size_t indexAt(CGPoint point) const;
  NSRange wordAt(CGPoint point) const;
  CGRect caretAt(std::size_t index) const;
  // From a point to the caret at a place.
  CGFloat distance(CGPoint point, std::size_t index) const;
  // What a selection covers in sight: a rectangle a line.
  std::vector<CGRect> selection(NSRange range, CGRect inSight) const;
  // Paints what lies behind selected text, with a handle at both ends.
  void drawSelection(Canvas& canvas, NSRange range, CGRect inSight, Color tint) const;
  void draw(Canvas& canvas, CGRect inSight) const;

 private:
  template <typename Change>
  void restyle(const Change& change);
  void show(AttributedText text);
  CGPoint origin() const;
  double columnWidth(CGFloat viewWidth) const;
  CGSize sizeAround(const TextLayout& layout, CGFloat viewWidth) const;

  SharedText _text;
  TextRun _look;
  EdgeInsets _inset{8, 0, 8, 0};
  std::optional<TextLayout> _layout;  // none: to be made
};

}  // namespace desktop::uikit
