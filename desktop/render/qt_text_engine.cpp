// SPDX-License-Identifier: MIT
//
// Lines are broken by Qt's text layout. Text of one advance needs no shaping: its lines end where
// Qt says that a line may end, found by counting; that is some fifty times as fast.
#include "desktop/render/qt_text_engine.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "desktop/render/qt_fonts.h"
#include "desktop/render/qt_strings.h"
#include "desktop/render/shaped_line.h"
#include "desktop/uikit/text/text_direction.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::render {
namespace {

using uikit::FontFace;
using uikit::ParagraphRoom;
using uikit::TextLine;

// More in one piece would be too long for Qt's fixed-point numbers at the design size.
constexpr std::size_t longestPiece = 8192;
constexpr double widestRoom = 1.6e7;  // pixels at the design size
constexpr double tolerance = 1e-6;    // points
// What a letter may reach over its advance, at the design size: Qt would not let it reach out of
// the room, and so break a line once more that was found to be just as wide.
constexpr double overhang = 0.03 * designSize;

bool isPlain(std::u16string_view text) {
  return std::ranges::all_of(text, [](char16_t unit) { return unit >= u' ' && unit <= u'~'; });
}

bool takesRoom(const FontFace& face) {
  return std::isfinite(face.size) && face.size > 0;
}

// One line without an end, at the design size.
void layOutLine(QTextLayout& layout) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout.setTextOption(option);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
}

// Without the blanks at the line's end, in points: from caret to caret where the text is all
// written from left to right, else as it is painted.
double shownWidth(const QTextLine& line, std::u16string_view text, const FontFace& face) {
  const auto start = static_cast<std::size_t>(line.textStart());
  std::size_t end = start + static_cast<std::size_t>(line.textLength());
  while (end > start && text[end - 1] == u' ') --end;
  const auto shown = text.substr(start, end - start);
  if (uikit::hasRightToLeft(text)) return shapedLine(face, shown).width;
  return line.cursorToX(static_cast<int>(end)) * face.size / designSize;
}

// Breaks text whose characters all have one advance.
class FixedPitchBreaker {
 public:
  FixedPitchBreaker(std::u16string_view text, double advance) : _text(text), _advance(advance) {}

  std::vector<TextLine> lines(const ParagraphRoom& room) {
    std::vector<TextLine> made;
    std::size_t start = 0;
    do {
      const double indent = made.empty() ? room.firstLineIndent : room.headIndent;
      made.push_back(lineFrom(start, room.width - indent));
      start += made.back().length;
    } while (start < _text.size());
    return made;
  }

 private:
  TextLine lineFrom(std::size_t start, double width) {
    const double letters = std::clamp((width + tolerance) / _advance, 1.0, 1e9);
    std::size_t end = std::min(start + static_cast<std::size_t>(letters), _text.size());
    if (end < _text.size() && _text[end] != u' ') end = lastBreak(start, end);
    while (end < _text.size() && _text[end] == u' ') ++end;
    std::size_t shown = end;
    while (shown > start && _text[shown - 1] == u' ') --shown;
    return {start, end - start, static_cast<double>(shown - start) * _advance};
  }

  // The last place after the start where a line may end: as Unicode says, and behind every blank,
  // as Qt does. The limit where there is none.
  std::size_t lastBreak(std::size_t start, std::size_t limit) {
    if (!_finder.isValid()) {
      _string = QString::fromUtf16(_text.data(), static_cast<qsizetype>(_text.size()));
      _finder = QTextBoundaryFinder(QTextBoundaryFinder::Line, _string);
    }
    _finder.setPosition(static_cast<qsizetype>(limit));
    if (_finder.isAtBoundary()) return limit;
    const auto before =
        static_cast<std::size_t>(std::max(_finder.toPreviousBoundary(), qsizetype{0}));
    const std::size_t blank = _text.substr(0, limit).rfind(u' ');
    const std::size_t behindBlank = blank == std::u16string_view::npos ? 0 : blank + 1;
    const std::size_t found = std::max(before, behindBlank);
    return found > start ? found : limit;
  }

  std::u16string_view _text;
  double _advance;
  QString _string;
  QTextBoundaryFinder _finder;  // made when it is needed: most paragraphs fit
};

class QtTextEngine : public uikit::TextEngine {
 public:
  ~QtTextEngine() override { forgetShapedLines(); }

  double width(const FontFace& face, std::u16string_view text) override {
    if (const double advance = fixedAdvance(face, text); advance > 0)
      return static_cast<double>(text.size()) * advance;
    double width = 0;
    while (!text.empty()) {
      const std::size_t length = uikit::outsidePair(text, std::min(text.size(), longestPiece));
      width += shapedLine(face, text.substr(0, length)).width;
      text.remove_prefix(length);
    }
    return width;
  }

  std::vector<TextLine> breakLines(const FontFace& face, std::u16string_view paragraph,
                                   const ParagraphRoom& room) override {
    if (paragraph.empty() || !takesRoom(face)) return {{0, paragraph.size(), 0}};
    if (const double advance = fixedAdvance(face, paragraph); advance > 0)
      return FixedPitchBreaker(paragraph, advance).lines(room);
    std::vector<TextLine> lines;
    for (std::size_t start = 0; start < paragraph.size();) {
      const auto piece = paragraph.substr(start);
      const std::size_t length = uikit::outsidePair(piece, std::min(piece.size(), longestPiece));
      addLines(lines, face, start, piece.substr(0, length), room);
      start += length;
    }
    return lines;
  }

  bool breaksQuickly(const FontFace& face, std::u16string_view paragraph) override {
    return paragraph.empty() || fixedAdvance(face, paragraph) > 0;
  }

  std::size_t indexAt(const FontFace& face, std::u16string_view line, double x) override {
    if (!takesRoom(face) || line.empty()) return 0;
    if (const double advance = fixedAdvance(face, line); advance > 0)
      return static_cast<std::size_t>(
          std::clamp(std::round(x / advance), 0.0, static_cast<double>(line.size())));
    QTextLayout layout(visibleString(line.substr(0, longestPiece)), designFontOf(face));
    layOutLine(layout);
    const double limited = std::clamp(x / face.size * designSize, -widestRoom, widestRoom);
    return static_cast<std::size_t>(std::max(layout.lineAt(0).xToCursor(limited), 0));
  }

  double positionOf(const FontFace& face, std::u16string_view line, std::size_t index) override {
    if (!takesRoom(face) || line.empty()) return 0;
    index = std::min(index, line.size());
    if (const double advance = fixedAdvance(face, line); advance > 0)
      return static_cast<double>(index) * advance;
    QTextLayout layout(visibleString(line.substr(0, longestPiece)), designFontOf(face));
    layOutLine(layout);
    return layout.lineAt(0).cursorToX(static_cast<int>(index)) * face.size / designSize;
  }

 private:
  // In points; 0 where the text needs shaping.
  static double fixedAdvance(const FontFace& face, std::u16string_view text) {
    if (face.family != uikit::FontFamily::courier || !takesRoom(face) || !isPlain(text)) return 0;
    return fixedAdvanceOf(face) * face.size;
  }

  static void addLines(std::vector<TextLine>& lines, const FontFace& face, std::size_t start,
                       std::u16string_view text, const ParagraphRoom& room) {
    const double scale = face.size / designSize;
    QTextLayout layout(visibleString(text), designFontOf(face));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      const double indent = lines.empty() ? room.firstLineIndent : room.headIndent;
      line.setLineWidth(
          std::clamp((room.width - indent + tolerance) / scale + overhang, 0.0, widestRoom));
      lines.push_back({start + static_cast<std::size_t>(line.textStart()),
                       static_cast<std::size_t>(line.textLength()), shownWidth(line, text, face)});
    }
    layout.endLayout();
  }
};

}  // namespace

std::unique_ptr<uikit::TextEngine> makeQtTextEngine() {
  return std::make_unique<QtTextEngine>();
}

}  // namespace desktop::render
