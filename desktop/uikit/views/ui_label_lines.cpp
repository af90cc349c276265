// SPDX-License-Identifier: MIT
//
// Where the lines of a label stand, and painting them. The text is laid out in the width that there
// is; as many lines stay as the label may show and has room for, and the last one is cut. Where the
// font may shrink, the size that fits is looked for. The outcome is kept until text or room change.
#include <algorithm>
#include <cmath>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/label_text.h"
#include "desktop/uikit/text/text_direction.h"
#include "desktop/uikit/text/text_layout.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"
#include "desktop/uikit/views/ui_label.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat unlimited = 1e7;  // points

// To whole pixels, upwards.
CGFloat pixelsUp(CGFloat points) {
  constexpr CGFloat tolerance = 1e-6;
  const CGFloat scale = screen().scale;
  return std::ceil(points * scale - tolerance) / scale;
}

CGFloat nearestPixel(CGFloat points) {
  return std::round(points * screen().scale) / screen().scale;
}

// What is left of a line's paragraph from the line on, and whether anything follows it.
std::u16string_view restOfParagraph(std::u16string_view text, std::size_t start) {
  constexpr std::u16string_view breaks = u"\n\r\x0B\x0C\x85\x2028\x2029";
  return text.substr(start, text.find_first_of(breaks, start) - start);
}

// The last line that there is room for: with what follows it as far as that fits.
std::u16string lastLine(std::u16string_view text, const PlacedLine& line, double width,
                        LineBreakMode mode) {
  const std::u16string_view rest = restOfParagraph(text, line.start);
  if (mode == LineBreakMode::byWordWrapping || mode == LineBreakMode::byCharWrapping)
    return std::u16string(text.substr(line.start, line.length));
  const bool isCut = line.start + rest.size() < text.size();
  if (!isCut || mode == LineBreakMode::byClipping) return truncated(rest, line.face, width, mode);
  return truncated(std::u16string(rest) + u"\u2026", line.face, width, mode);
}

// Where a line begins that stands alone in the width.
double xOf(const LabelLine& line, const ParagraphStyle& style, double width) {
  const double free = width - textEngine().width(line.face, line.text);
  if (style.alignment == TextAlignment::center) return std::max(free / 2, 0.0);
  const bool isRight = style.alignment == TextAlignment::right ||
                       (style.alignment == TextAlignment::natural && isRightToLeft(line.text));
  return isRight ? free : 0;
}

bool isWithin(const LabelLine& line, CGSize size) {
  const FontMeasures measures = measuresOf(line.face);
  return line.baseline.x >= 0 &&
         line.baseline.x + textEngine().width(line.face, line.text) <= size.width &&
         line.baseline.y >= measures.ascender &&
         line.baseline.y - measures.descender <= size.height;
}

}  // namespace

// The text with the label's own alignment.
AttributedText UILabelState::textIn(const FontFace& face) const {
  AttributedText text = _attributedText ? AttributedText::of(_attributedText, face)
                                        : AttributedText::plain(utf16Of(_text), face);
  for (TextRun& run : text.runs)
    if (run.style.alignment == TextAlignment::natural) run.style.alignment = _alignment;
  return text;
}

CGFloat UILabelState::shownFontSize() const {
  const FontFace face = UIFontState::faceOf(_font.get());
  if (!_adjustsFontSize || _numberOfLines != 1 || _attributedText || !_text) return face.size;
  const double smallest = std::max(_minimumFontSize, _minimumScaleFactor * face.size);
  return sizeFitting(utf16Of(_text), face, bounds().size.width, smallest);
}

CGSize UILabelState::sizeThatFits(CGSize size) const {
  if (_text.get().length() == 0) return {};
  const FontFace face = UIFontState::faceOf(_font.get());
  const bool isBroken = _numberOfLines != 1 && size.width > 0;
  const TextLayout layout(std::make_shared<AttributedText>(textIn(face)),
                          isBroken ? size.width : unlimited);
  CGSize fitting = layout.size();
  if (_numberOfLines > 0 && layout.lineCount() > static_cast<std::size_t>(_numberOfLines))
    fitting.height = static_cast<double>(_numberOfLines) * measuresOf(face).lineHeight();
  return {pixelsUp(fitting.width), pixelsUp(fitting.height)};
}

CGSize UILabelState::intrinsicContentSize() const {
  return self().sizeThatFits(CGSize{});
}

const std::vector<LabelLine>& UILabelState::lines() const {
  const CGSize size = bounds().size;
  if (_shown.scale != screen().scale || _shown.size != size)
    _shown = {size, screen().scale, linesIn(size)};
  return _shown.lines;
}

// As many lines of the layout as the label may show and has room for; one at least.
std::vector<PlacedLine> UILabelState::linesWithRoom(const TextLayout& layout, CGSize size) const {
  const double lineHeight = measuresOf(layout.text().runs[0].face).lineHeight();
  auto count = static_cast<std::size_t>(std::clamp(size.height / lineHeight, 1.0, 1e6));
  if (_numberOfLines > 0) count = std::min(count, static_cast<std::size_t>(_numberOfLines));
  std::vector<PlacedLine> lines = layout.lines(0, size.height + lineHeight);
  lines.resize(std::min(lines.size(), count));
  return lines;
}

std::vector<LabelLine> UILabelState::linesIn(CGSize size) const {
  std::vector<LabelLine> made;
  if (_text.get().length() == 0 || isEmpty(rectOfSize(size))) return made;
  FontFace face = UIFontState::faceOf(_font.get());
  face.size = shownFontSize();
  const auto text = std::make_shared<AttributedText>(textIn(face));
  const TextLayout layout(text, _numberOfLines == 1 ? unlimited : size.width);
  const std::vector<PlacedLine> placed = linesWithRoom(layout, size);
  const bool isCut = placed.size() < layout.lineCount() || _numberOfLines == 1;
  const PlacedLine last = placed.empty() ? PlacedLine{} : placed.back();
  const double top = nearestPixel((size.height - bottom(last.frame)) / 2);
  for (const PlacedLine& line : placed) {
    const TextRun& run = text->runAt(line.start);
    LabelLine shown{.text = text->text.substr(line.start, line.length),
                    .face = line.face,
                    .color = colorOf(run),
                    .baseline = {line.frame.origin.x,
                                 top + line.frame.origin.y + measuresOf(line.face).ascender}};
    if (isCut && line.start == last.start) {
      shown.text = lastLine(text->text, line, size.width, _lineBreakMode);
      shown.baseline.x = xOf(shown, run.style, size.width);
    }
    made.push_back(std::move(shown));
  }
  return made;
}

Color UILabelState::colorOf(const TextRun& run) const {
  if (_isHighlighted && _highlightedTextColor) return UIColorState::valueOf(_highlightedTextColor);
  return run.color.value_or(_textColor);
}

void UILabelState::drawContent(Canvas* canvas) const {
  const CGRect bounds = UIViewState::bounds();
  const auto& shown = lines();
  const bool fits = std::ranges::all_of(
      shown, [&](const LabelLine& line) { return isWithin(line, bounds.size); });
  if (!fits) canvas->save();
  if (!fits) canvas->clip(bounds, 0);
  for (const LabelLine& line : shown)
    canvas->text(line.text, line.face, line.color, line.baseline + bounds.origin);
  if (!fits) canvas->restore();
}

}  // namespace desktop::uikit
