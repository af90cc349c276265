// SPDX-License-Identifier: MIT
//
// A canvas that writes down what is painted on it, and where.
#pragma once

#include <vector>

#include "desktop/uikit/graphics/canvas.h"

namespace desktop::uikit {

class RecordingCanvas : public Canvas {
 public:
  struct Fill {
    CGRect rect;
    Color color;
  };
  std::vector<Fill> fills;
  std::vector<Color> strokes;
  std::vector<CGRect> images;
  std::vector<std::u16string> texts;

  void save() override {}
  void restore() override {}
  void transform(const CGAffineTransform&) override {}
  void clip(CGRect, CGFloat) override {}
  void beginGroup(double, CGRect) override {}
  void fill(CGRect rect, Color color, CGFloat) override { fills.push_back({rect, color}); }
  void fill(const Path& path, Color color) override { fills.push_back({path.bounds(), color}); }
  void stroke(const Path&, CGFloat, Color color) override { strokes.push_back(color); }
  void shadow(const Path&, Color, CGSize, CGFloat) override {}
  void gradient(CGRect, std::span<const Color>, CGPoint, CGPoint, CGFloat) override {}
  void image(const SharedBitmap&, CGRect rect) override { images.push_back(rect); }
  void text(std::u16string_view line, const FontFace&, Color, CGPoint) override {
    texts.emplace_back(line);
  }
  bool isClippedAway(CGRect) const override { return false; }
};

}  // namespace desktop::uikit
