// SPDX-License-Identifier: MIT
#include "desktop/render/screen_picture.h"

#include <QBuffer>
#include <QImageWriter>
#include <algorithm>
#include <cmath>

#include "bridge/runtime/autorelease_pool.h"
#include "desktop/platform.h"
#include "desktop/render/painter_canvas.h"
#include "desktop/uikit/application/window_painter.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/views/view_painter.h"
#include "io/file_replacement.h"

namespace desktop::render {
namespace {

QSize screenPixels(double scale) {
  const CGSize size = uikit::screen().size;
  const auto pixels = [scale](double points) {
    return std::max(1, static_cast<int>(std::ceil(points * scale)));
  };
  return {pixels(size.width), pixels(size.height)};
}

QImage blankScreen(double scale) {
  QImage image(screenPixels(scale), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  return image;
}

// Whole pixels around a rectangle, so that what was there is painted over completely.
CGRect wholePixels(CGRect rect, double scale) {
  const double left = std::floor(rect.origin.x * scale) - 1;
  const double top = std::floor(rect.origin.y * scale) - 1;
  const double right = std::ceil(uikit::right(rect) * scale) + 1;
  const double bottom = std::ceil(uikit::bottom(rect) * scale) + 1;
  return {{left / scale, top / scale}, {(right - left) / scale, (bottom - top) / scale}};
}

void paintScreen(QImage& image, double scale, CGRect inside, ShadowCache& shadows) {
  const AutoreleasePool pool;
  PainterCanvas canvas(image, scale, inside, shadows);
  canvas.fill(inside, uikit::colors::black, 0);
  uikit::paintWindows(canvas);
}

}  // namespace

std::vector<CGRect> ScreenPicture::update(double scale) {
  const CGRect screen = uikit::rectOfSize(uikit::screen().size);
  std::vector<CGRect> damage = uikit::screen().damage.take();
  if (_image.size() != screenPixels(scale) || _scale != scale) {
    _image = blankScreen(scale);
    _scale = scale;
    damage = {screen};
  }
  std::erase_if(damage, [&](CGRect rect) { return !uikit::intersects(rect, screen); });
  for (CGRect& rect : damage) {
    rect = uikit::intersection(wholePixels(rect, scale), screen);
    paintScreen(_image, scale, rect, _shadows);
  }
  return damage;
}

std::optional<model::Error> writeScreenshot(const std::string& path, double scale) {
  QImage image = blankScreen(scale);
  ShadowCache shadows;
  paintScreen(image, scale, uikit::rectOfSize(uikit::screen().size), shadows);
  QBuffer bytes;
  QImageWriter writer(&bytes, "png");
  if (!writer.write(image.convertToFormat(QImage::Format_RGB32)))
    return model::Error{writer.errorString().toStdString()};
  return io::writeOutput(path, bytes.data().toStdString());
}

}  // namespace desktop::render
