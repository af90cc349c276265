// SPDX-License-Identifier: MIT
//
// The engine of the start, but one that says breaking lines takes time, and counts how often it is
// asked to.
#pragma once

#include <algorithm>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::uikit {

class SlowTextEngine : public TextEngine {
 public:
  double width(const FontFace& face, std::u16string_view text) override {
    return advance * static_cast<double>(text.size()) * face.size;
  }
  // Only between letters: as many as fit.
  std::vector<TextLine> breakLines(const FontFace& face, std::u16string_view paragraph,
                                   const ParagraphRoom& room) override {
    brokenUnits += paragraph.size();
    std::vector<TextLine> lines;
    std::size_t start = 0;
    do {
      const double indent = lines.empty() ? room.firstLineIndent : room.headIndent;
      const double fitting = (room.width - indent) / (advance * face.size);
      const std::size_t length =
          std::min(paragraph.size() - start, fitting > 1 ? static_cast<std::size_t>(fitting) : 1);
      lines.push_back({start, length, static_cast<double>(length) * advance * face.size});
      start += length;
    } while (start < paragraph.size());
    return lines;
  }
  bool breaksQuickly(const FontFace&, std::u16string_view) override { return false; }
  std::size_t indexAt(const FontFace& face, std::u16string_view line, double x) override {
    const double index = x / (advance * face.size) + 0.5;
    return index > 0 ? std::min(line.size(), static_cast<std::size_t>(index)) : 0;
  }
  double positionOf(const FontFace& face, std::u16string_view, std::size_t index) override {
    return advance * static_cast<double>(index) * face.size;
  }

  static constexpr double advance = 0.5;
  std::size_t brokenUnits = 0;
};

}  // namespace desktop::uikit
