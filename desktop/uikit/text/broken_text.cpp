// SPDX-License-Identifier: MIT
//
// A text is broken by pieces when they are looked at; the heights of the others are estimated and
// refined as they come into sight, so that a long text is there at once.
#include "desktop/uikit/text/broken_text.h"

#include <algorithm>
#include <cmath>

#include "desktop/uikit/text/text_direction.h"

namespace desktop::uikit {
namespace {

constexpr std::size_t longestWholeText = std::size_t{64} << 10;  // in UTF-16 units
constexpr std::size_t wholeBeginning = std::size_t{4} << 10;     // of texts beyond
constexpr double unlimitedWidth = 1e7;
constexpr std::size_t keptPieces = 1024;  // whose lines are remembered

double indentOf(const TextPiece& piece, const ParagraphStyle& style, bool isFirst, double width) {
  const bool isParagraphsFirst = isFirst && piece.beginsParagraph;
  return std::clamp(isParagraphsFirst ? style.firstLineHeadIndent : style.headIndent, 0.0, width);
}

}  // namespace

BrokenText::BrokenText(SharedText text, double width) : _text(std::move(text)) {
  if (!(width > 0)) return;
  _width = std::min(width, unlimitedWidth);
  _pieces = piecesOf(_text->text);
  _measured.resize(_pieces.size());
  std::vector<double> heights(_pieces.size());
  const std::size_t length = _text->text.size();
  std::size_t budget = length > longestWholeText ? wholeBeginning : length;
  for (std::size_t piece = 0; piece < _pieces.size(); ++piece) {
    _measured[piece] = measured(piece, budget);
    _lineCount += _measured[piece].lines;
    heights[piece] = heightOf(piece);
  }
  _heights = HeightIndex(std::move(heights));
}

std::u16string_view BrokenText::textOf(const TextPiece& piece) const {
  return std::u16string_view(_text->text).substr(piece.start, piece.length);
}

std::vector<TextLine> BrokenText::broken(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  const TextRun& run = runOf(piece);
  const ParagraphRoom room{.width = _width,
                           .firstLineIndent = indentOf(piece, run.style, true, _width),
                           .headIndent = indentOf(piece, run.style, false, _width)};
  return textEngine().breakLines(run.face, textOf(piece), room);
}

const std::vector<TextLine>& BrokenText::linesOf(std::size_t piece) const {
  if (const auto known = _lines.find(piece); known != _lines.end()) return known->second;
  if (_lines.size() >= keptPieces) _lines.clear();
  return _lines.emplace(piece, broken(piece)).first->second;
}

// Exactly where that is quick or there is budget left, else about.
BrokenText::Measured BrokenText::measured(std::size_t index, std::size_t& budget) {
  const TextPiece& piece = _pieces[index];
  const TextRun& run = runOf(piece);
  const bool isQuick = textEngine().breaksQuickly(run.face, textOf(piece));
  if (!isQuick && piece.length > budget) {
    ++_estimated;
    return {estimatedLines(piece, run), false};
  }
  if (!isQuick) budget -= piece.length;
  const std::vector<TextLine> lines = broken(index);
  count(lines, piece);
  return {static_cast<std::uint32_t>(lines.size()), true};
}

std::uint32_t BrokenText::estimatedLines(const TextPiece& piece, const TextRun& run) {
  constexpr std::u16string_view sample = u"The quick brown fox jumps over the lazy dog 0123456789.";
  if (!(run.face == _sampledFace)) {
    _sampledFace = run.face;
    _sampledAdvance = textEngine().width(run.face, sample) / static_cast<double>(sample.size());
  }
  const double room = std::max(_width - indentOf(piece, run.style, false, _width), _sampledAdvance);
  const double lines = std::ceil(piece.length * _sampledAdvance / room);
  return std::isfinite(lines)
             ? static_cast<std::uint32_t>(std::clamp(lines, 1.0, 1.0 * longestPiece))
             : 1;
}

void BrokenText::count(const std::vector<TextLine>& lines, const TextPiece& piece) {
  const ParagraphStyle& style = runOf(piece).style;
  for (const TextLine& line : lines)
    _longest =
        std::max(_longest, line.width + indentOf(piece, style, &line == lines.data(), _width));
}

double BrokenText::lineAdvance(std::size_t piece) const {
  const TextRun& run = runOf(_pieces[piece]);
  return measuresOf(run.face).lineHeight() + std::max(run.style.lineSpacing, 0.0);
}

double BrokenText::spacingBefore(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  return index > 0 && piece.beginsParagraph ? std::max(runOf(piece).style.spacingBefore, 0.0) : 0;
}

double BrokenText::heightOf(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  const ParagraphStyle& style = runOf(piece).style;
  const double lines = spacingBefore(index) + _measured[index].lines * lineAdvance(index);
  if (index + 1 == _pieces.size()) return lines - std::max(style.lineSpacing, 0.0);
  return piece.endsParagraph ? lines + std::max(style.spacing, 0.0) : lines;
}

CGSize BrokenText::size() const {
  return {isExact() ? _longest : _width, _heights.total()};
}

double BrokenText::refine(double top, double bottom) {
  double shift = 0;
  if (isExact()) return shift;
  const double margin = std::max(bottom - top, 0.0);
  for (std::size_t index = _heights.at(top - margin); index < _pieces.size(); ++index) {
    const double pieceTop = _heights.before(index);
    if (pieceTop > bottom + margin + shift) break;
    if (_measured[index].isExact) continue;
    const double before = heightOf(index);
    const std::vector<TextLine>& lines = linesOf(index);
    count(lines, _pieces[index]);
    _lineCount += lines.size() - _measured[index].lines;
    _measured[index] = {static_cast<std::uint32_t>(lines.size()), true};
    --_estimated;
    const double growth = heightOf(index) - before;
    _heights.grow(index, growth);
    if (pieceTop < top + shift) shift += growth;
  }
  return shift;
}

std::size_t BrokenText::pieceOfUnit(std::size_t unit) const {
  const auto next = std::ranges::upper_bound(_pieces, unit, {}, &TextPiece::start);
  return next == _pieces.begin() ? 0 : static_cast<std::size_t>(next - _pieces.begin()) - 1;
}

double BrokenText::x(std::size_t index, std::size_t lineIndex) const {
  const TextPiece& piece = _pieces[index];
  const TextLine& line = linesOf(index)[lineIndex];
  const ParagraphStyle& style = runOf(piece).style;
  const double indent = indentOf(piece, style, lineIndex == 0, _width);
  switch (style.alignment) {
    case TextAlignment::center:
      return indent + (_width - indent - line.width) / 2;
    case TextAlignment::right:
      return _width - line.width;
    case TextAlignment::natural:
      return isRightToLeft(textOf(piece)) ? _width - indent - line.width : indent;
    default:
      return indent;
  }
}

}  // namespace desktop::uikit
