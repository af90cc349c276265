// SPDX-License-Identifier: MIT
//
// A canvas that paints on a QImage, as large as the screen at some scale.
#pragma once

#include <QImage>
#include <QPainter>
#include <memory>
#include <vector>

#include "desktop/render/soft_shadow.h"
#include "desktop/uikit/graphics/canvas.h"

namespace desktop::render {

class PainterCanvas : public uikit::Canvas {
 public:
  // Paints on the image, whose pixels stand `scale` to a point; only inside the rectangle, which is
  // in points. The image and the shadows outlive the canvas.
  PainterCanvas(QImage& image, double scale, CGRect inside, ShadowCache& shadows);
  ~PainterCanvas() override;

  void save() override;
  void restore() override;
  void transform(const CGAffineTransform& by) override;
  void clip(CGRect rect, CGFloat cornerRadius) override;
  void beginGroup(double alpha, CGRect bounds) override;
  void fill(CGRect rect, uikit::Color color, CGFloat cornerRadius) override;
  void fill(const uikit::Path& path, uikit::Color color) override;
  void stroke(const uikit::Path& path, CGFloat width, uikit::Color color) override;
  void shadow(const uikit::Path& path, uikit::Color color, CGSize offset, CGFloat blur) override;
  void gradient(CGRect rect, std::span<const uikit::Color> colors, CGPoint start, CGPoint end,
                CGFloat cornerRadius) override;
  void image(const uikit::SharedBitmap& bitmap, CGRect rect) override;
  void text(std::u16string_view line, const uikit::FontFace& face, uikit::Color color,
            CGPoint baseline) override;
  bool isClippedAway(CGRect rect) const override;

 private:
  // A picture that is painted apart and put down as a whole.
  struct Group {
    Group(QSize size, QPoint where, double opacity);
    QImage image;
    QPoint origin;  // where it goes, in pixels of what is below
    double alpha;
    QPainter painter;
  };
  struct Level {
    QRectF clip;             // around what can be seen, in pixels of the whole image
    QTransform toPixels;     // of the whole image
    std::size_t groups = 0;  // how many are open
  };

  QPainter& painter();
  void paintGroup();
  void applyTransform();

  QPainter _painter;
  double _scale;
  ShadowCache& _shadows;
  Level _now;
  std::vector<Level> _saved;
  std::vector<std::unique_ptr<Group>> _groups;  // a painter needs its image to stay where it is
};

}  // namespace desktop::render
