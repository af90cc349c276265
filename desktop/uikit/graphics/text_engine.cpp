// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/text_engine.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop::uikit {
namespace {

// Every UTF-16 unit is as wide as every other.
class FixedAdvanceEngine : public TextEngine {
 public:
  double width(const FontFace& face, std::u16string_view text) override {
    return static_cast<double>(text.size()) * advance(face);
  }

  std::vector<TextLine> breakLines(const FontFace& face, std::u16string_view paragraph,
                                   const ParagraphRoom& room) override {
    std::vector<TextLine> lines;
    std::size_t start = 0;
    do {
      const double indent = lines.empty() ? room.firstLineIndent : room.headIndent;
      lines.push_back(lineFrom(face, paragraph, start, room.width - indent));
      start += lines.back().length;
    } while (start < paragraph.size());
    return lines;
  }

  bool breaksQuickly(const FontFace&, std::u16string_view) override { return true; }

  std::size_t indexAt(const FontFace& face, std::u16string_view line, double x) override {
    if (advance(face) <= 0) return 0;
    const double index = std::round(x / advance(face));
    return static_cast<std::size_t>(std::clamp(index, 0.0, static_cast<double>(line.size())));
  }

  double positionOf(const FontFace& face, std::u16string_view line, std::size_t index) override {
    return static_cast<double>(std::min(index, line.size())) * advance(face);
  }

 private:
  static double advance(const FontFace& face) {
    constexpr double fraction = 0.6;
    return std::isfinite(face.size) && face.size > 0 ? fraction * face.size : 0;
  }

  // As many words as fit, and the blanks behind them.
  static TextLine lineFrom(const FontFace& face, std::u16string_view text, std::size_t start,
                           double width) {
    std::size_t fitting = text.size() - start;
    if (advance(face) > 0)
      fitting = std::min(
          fitting, static_cast<std::size_t>(std::clamp(width / advance(face) + 1e-9, 1.0, 1e9)));
    std::size_t end = start + fitting;
    if (end < text.size() && text[end] != u' ') {
      const std::size_t blank = text.substr(start, fitting).rfind(u' ');
      if (blank != std::u16string_view::npos) end = start + blank + 1;
    }
    while (end < text.size() && text[end] == u' ') ++end;
    std::size_t shown = end;
    while (shown > start && text[shown - 1] == u' ') --shown;
    return {start, end - start, static_cast<double>(shown - start) * advance(face)};
  }
};

std::unique_ptr<TextEngine>& installedEngine() {
  static auto& engine = *new std::unique_ptr<TextEngine>;
  return engine;
}

}  // namespace

FontMeasures measuresOf(const FontFace& face) {
  if (!(std::isfinite(face.size) && face.size > 0)) return {};
  // Inter as the font states it; Courier as the phone lays it out, one size high.
  if (face.family == FontFamily::courier) return {0.754 * face.size, -0.246 * face.size};
  return {2728.0 / 2816 * face.size, -680.0 / 2816 * face.size};
}

TextEngine& textEngine() {
  static auto& fixed = *new FixedAdvanceEngine;
  return installedEngine() ? *installedEngine() : fixed;
}

std::unique_ptr<TextEngine> setTextEngine(std::unique_ptr<TextEngine> engine) {
  return std::exchange(installedEngine(), std::move(engine));
}

}  // namespace desktop::uikit
