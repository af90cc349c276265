// SPDX-License-Identifier: MIT
//
// Soft shadows: a shape filled and blurred. Blurring costs more than everything else on a screen,
// so what was blurred is kept.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <list>

#include "desktop/uikit/graphics/path.h"

namespace desktop::render {

struct SoftShadow {
  QImage image;
  QRectF place;  // in points of the shape's coordinates
};

class ShadowCache {
 public:
  // The shadow of an outline, blurred by a radius in points, for a screen of the scale. Valid until
  // the next call.
  const SoftShadow& of(const uikit::Path& path, const QPainterPath& outline, double blur,
                       double scale, const QColor& color);

 private:
  struct Entry {
    uikit::Path path;
    double blur;
    double scale;
    QColor color;
    SoftShadow shadow;
  };
  std::list<Entry> _entries;  // the last used first
};

}  // namespace desktop::render
