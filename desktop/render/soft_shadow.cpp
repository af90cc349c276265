// SPDX-License-Identifier: MIT
#include "desktop/render/soft_shadow.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace desktop::render {
namespace {

constexpr std::size_t keptShadows = 16;
constexpr double greatestBlur = 100;      // points
constexpr double greatestLength = 4'096;  // pixels; what is larger is blurred at a lower scale

// The mean of each pixel and its neighbours along a line of alphas.
void blurLine(uchar* alphas, int count, qsizetype step, int radius, std::vector<uchar>& line) {
  for (int i = 0; i < count; ++i) line[static_cast<std::size_t>(i)] = alphas[i * step];
  const int width = 2 * radius + 1;
  int sum = 0;
  const auto at = [&](int i) {
    return i < 0 || i >= count ? 0 : line[static_cast<std::size_t>(i)];
  };
  for (int i = -radius; i <= radius; ++i) sum += at(i);
  for (int i = 0; i < count; ++i) {
    alphas[i * step] = static_cast<uchar>(sum / width);
    sum += at(i + radius + 1) - at(i - radius);
  }
}

// Three box blurs come close to a Gaussian one.
void blur(QImage& alphas, double sigma) {
  const int radius = static_cast<int>(std::lround(sigma * 0.94));
  if (radius < 1) return;
  const int width = alphas.width(), height = alphas.height();
  std::vector<uchar> line(static_cast<std::size_t>(std::max(width, height)));
  const qsizetype stride = alphas.bytesPerLine();
  uchar* const bits = alphas.bits();
  for (int pass = 0; pass < 3; ++pass) {
    for (int y = 0; y < height; ++y) blurLine(bits + y * stride, width, 1, radius, line);
    for (int x = 0; x < width; ++x) blurLine(bits + x, height, stride, radius, line);
  }
}

SoftShadow makeShadow(const QPainterPath& outline, double blurRadius, double scale,
                      const QColor& color) {
  const double reach = std::clamp(blurRadius, 0.0, greatestBlur);
  const QRectF place =
      outline.boundingRect().adjusted(-2 * reach, -2 * reach, 2 * reach, 2 * reach);
  const double longest = std::max({place.width(), place.height(), 1.0});
  const double pixels = std::min(scale, greatestLength / longest);
  const QSize size = QSizeF(place.size() * pixels).toSize().expandedTo({1, 1});
  QImage alphas(size, QImage::Format_Alpha8);
  alphas.fill(0);
  QPainter filler(&alphas);
  filler.setRenderHint(QPainter::Antialiasing);
  filler.scale(pixels, pixels);
  filler.translate(-place.topLeft());
  filler.fillPath(outline, Qt::black);
  filler.end();
  blur(alphas, reach * pixels);

  QImage tinted(size, QImage::Format_ARGB32_Premultiplied);
  tinted.fill(color);
  QPainter tinter(&tinted);
  tinter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  tinter.drawImage(0, 0, alphas);
  return {tinted, place};
}

}  // namespace

const SoftShadow& ShadowCache::of(const uikit::Path& path, const QPainterPath& outline, double blur,
                                  double scale, const QColor& color) {
  const auto known = std::ranges::find_if(_entries, [&](const Entry& entry) {
    return entry.blur == blur && entry.scale == scale && entry.color == color && entry.path == path;
  });
  if (known != _entries.end()) {
    _entries.splice(_entries.begin(), _entries, known);
  } else {
    _entries.push_front({path, blur, scale, color, makeShadow(outline, blur, scale, color)});
    if (_entries.size() > keptShadows) _entries.pop_back();
  }
  return _entries.front().shadow;
}

}  // namespace desktop::render
