// SPDX-License-Identifier: MIT
//
// The text is laid out in the width that there is; as many lines stay as the label may show and has
// room for, and the last one is cut. They stand in the middle of the height.
#include "desktop/uikit/views/label_lines.h"

#include <algorithm>
#include <cmath>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/text/label_text.h"
#include "desktop/uikit/text/text_direction.h"
#include "desktop/uikit/text/text_layout.h"

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

// As many lines of the layout as the label may show and has room for; one at least.
std::vector<PlacedLine> linesWithRoom(const TextLayout& layout, NSInteger atMost, CGSize size) {
  const double lineHeight = measuresOf(layout.text().runs[0].face).lineHeight();
  auto count = static_cast<std::size_t>(std::clamp(size.height / lineHeight, 1.0, 1e6));
  if (atMost > 0) count = std::min(count, static_cast<std::size_t>(atMost));
  std::vector<PlacedLine> lines = layout.lines(0, size.height + lineHeight);
  lines.resize(std::min(lines.size(), count));
  return lines;
}

}  // namespace

std::vector<LabelLine> labelLines(const SharedText& text, const LabelStyle& style, CGSize size,
                                  double seenTop, double seenBottom) {
  std::vector<LabelLine> made;
  if (text->text.empty() || isEmpty(rectOfSize(size))) return made;
  const TextLayout layout(text, style.numberOfLines == 1 ? unlimited : size.width);
  const bool isPart = style.numberOfLines == 0 && !layout.isExact();
  const std::vector<PlacedLine> placed =
      isPart ? layout.lines(seenTop, seenBottom) : linesWithRoom(layout, style.numberOfLines, size);
  const bool isCut = !isPart && (placed.size() < layout.lineCount() || style.numberOfLines == 1);
  const PlacedLine last = placed.empty() ? PlacedLine{} : placed.back();
  const double end = isPart ? layout.size().height : bottom(last.frame);
  const double top = nearestPixel((size.height - end) / 2);
  for (const PlacedLine& line : placed) {
    const TextRun& run = text->runAt(line.start);
    LabelLine shown{.text = text->text.substr(line.start, line.length),
                    .face = line.face,
                    .color = style.highlight.value_or(run.color.value_or(style.color)),
                    .baseline = {line.frame.origin.x,
                                 top + line.frame.origin.y + measuresOf(line.face).ascender}};
    if (isCut && line.start == last.start) {
      shown.text = lastLine(text->text, line, size.width, style.lineBreakMode);
      shown.baseline.x = xOf(shown, run.style, size.width);
    }
    made.push_back(std::move(shown));
  }
  return made;
}

CGSize labelSize(const SharedText& text, const LabelStyle& style, const FontFace& face,
                 CGSize size) {
  const bool isBroken = style.numberOfLines != 1 && size.width > 0;
  const TextLayout layout(text, isBroken ? size.width : unlimited);
  CGSize fitting = layout.size();
  if (style.numberOfLines > 0 && layout.lineCount() > static_cast<std::size_t>(style.numberOfLines))
    fitting.height = static_cast<double>(style.numberOfLines) * measuresOf(face).lineHeight();
  return {pixelsUp(fitting.width), pixelsUp(fitting.height)};
}

void drawLabelLines(const std::vector<LabelLine>& lines, CGRect bounds, Canvas& canvas) {
  const bool fits = std::ranges::all_of(
      lines, [&](const LabelLine& line) { return isWithin(line, bounds.size); });
  if (!fits) canvas.save();
  if (!fits) canvas.clip(bounds, 0);
  for (const LabelLine& line : lines)
    canvas.text(line.text, line.face, line.color, line.baseline + bounds.origin);
  if (!fits) canvas.restore();
}

}  // namespace desktop::uikit
