// SPDX-License-Identifier: MIT
//
// The text stands in a column between the insets. The layout of the column is kept until text,
// look, inset or the view's width change; it knows nothing of where in the view the column begins.
#include "desktop/uikit/controls/shown_text.h"

#include <algorithm>
#include <cmath>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/text/text_words.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat padding = 5;  // at both ends of every line

// To whole points, upwards.
CGFloat pointsUp(CGFloat points) {
  constexpr CGFloat tolerance = 1e-6;
  return std::ceil(points - tolerance);
}

// A thin bar with a dot at its outer end.
void drawHandle(Canvas& canvas, CGRect caret, Color color, bool isFirst) {
  constexpr CGFloat width = 2;
  constexpr CGFloat dot = 10;
  canvas.fill({{caret.origin.x - width / 2, caret.origin.y}, {width, caret.size.height}}, color, 0);
  const CGFloat y = isFirst ? caret.origin.y - dot : bottom(caret);
  canvas.fill({{caret.origin.x - dot / 2, y}, {dot, dot}}, color, dot / 2);
}

}  // namespace

ShownText::ShownText() {
  _look.face = standardFace;
  setPlain({});
}

void ShownText::show(AttributedText text) {
  _text = std::make_shared<AttributedText>(std::move(text));
  _layout.reset();
}

void ShownText::setPlain(std::u16string text) {
  AttributedText plain = AttributedText::plain(std::move(text), _look.face, _look.style);
  plain.runs[0].color = _look.color;
  show(std::move(plain));
}

void ShownText::setAttributed(AttributedText text) {
  for (TextRun& run : text.runs)
    if (run.style.alignment == TextAlignment::natural) run.style.alignment = alignment();
  if (!text.text.empty()) _look = text.runs[0];
  show(std::move(text));
}

template <typename Change>
void ShownText::restyle(const Change& change) {
  AttributedText restyled = *_text;
  for (TextRun& run : restyled.runs) change(run);
  change(_look);
  show(std::move(restyled));
}

void ShownText::setFace(const FontFace& face) {
  restyle([&](TextRun& run) { run.face = face; });
}

void ShownText::setColor(std::optional<Color> color) {
  restyle([&](TextRun& run) { run.color = color; });
}

void ShownText::setAlignment(TextAlignment alignment) {
  restyle([&](TextRun& run) { run.style.alignment = alignment; });
}

bool ShownText::setInset(EdgeInsets inset) {
  const bool isFinite = std::isfinite(inset.top + inset.left + inset.bottom + inset.right);
  if (!isFinite || inset == _inset) return false;
  _inset = inset;
  _layout.reset();
  return true;
}

std::u16string_view ShownText::units(NSRange range) const {
  const std::size_t start = std::min<std::size_t>(range.location, length());
  return std::u16string_view(_text->text).substr(start, range.length);
}

CGPoint ShownText::origin() const {
  return {_inset.left + padding, _inset.top};
}

double ShownText::columnWidth(CGFloat viewWidth) const {
  return std::max(viewWidth - _inset.left - _inset.right - 2 * padding, 0.0);
}

CGSize ShownText::sizeAround(const TextLayout& layout, CGFloat viewWidth) const {
  const CGSize text = layout.size();
  const CGFloat needed = pointsUp(text.width + 2 * padding + _inset.left + _inset.right);
  return {std::min(needed, viewWidth), pointsUp(text.height + _inset.top + _inset.bottom)};
}

CGSize ShownText::sizeIn(CGFloat viewWidth) const {
  const double width = columnWidth(viewWidth);
  if (_layout && _layout->width() == width) return sizeAround(*_layout, viewWidth);
  return sizeAround(TextLayout(_text, width), viewWidth);
}

bool ShownText::arrange(CGFloat viewWidth) {
  const double width = columnWidth(viewWidth);
  if (_layout && _layout->width() == width) return false;
  _layout.emplace(_text, width);
  return true;
}

double ShownText::refine(CGRect inSight) {
  const double top = inSight.origin.y - origin().y;
  return _layout->refine(top, top + inSight.size.height);
}

std::size_t ShownText::indexAt(CGPoint point) const {
  return _layout->indexAt(point - origin());
}

// The word of the unit below a point, where a caret nearest to it may stand behind the unit.
NSRange ShownText::wordAt(CGPoint point) const {
  const std::size_t index = indexAt(point);
  const bool isBehind = index > 0 && caretAt(index).origin.x > point.x;
  return uikit::wordAt(_text->text, isBehind ? index - 1 : index);
}

CGRect ShownText::caretAt(std::size_t index) const {
  return offset(_layout->caretAt(std::min(index, length())), origin());
}

CGFloat ShownText::distance(CGPoint point, std::size_t index) const {
  const CGRect caret = caretAt(index);
  const CGFloat y = std::clamp(point.y, caret.origin.y, bottom(caret));
  return std::hypot(point.x - caret.origin.x, point.y - y);
}

std::vector<CGRect> ShownText::selection(NSRange range, CGRect inSight) const {
  const double top = inSight.origin.y - origin().y;
  std::vector<CGRect> rects = _layout->selection(range, top, top + inSight.size.height);
  for (CGRect& rect : rects) rect = offset(rect, origin());
  return rects;
}

void ShownText::drawSelection(Canvas& canvas, NSRange range, CGRect inSight, Color tint) const {
  constexpr double alpha = 0.2;
  for (const CGRect& rect : selection(range, inSight)) canvas.fill(rect, tint.withAlpha(alpha), 0);
  drawHandle(canvas, caretAt(range.location), tint, true);
  drawHandle(canvas, caretAt(range.location + range.length), tint, false);
}

void ShownText::draw(Canvas& canvas, CGRect inSight) const {
  const double top = inSight.origin.y - origin().y;
  _layout->draw(canvas, origin(), color(), top, top + inSight.size.height);
}

}  // namespace desktop::uikit
