// SPDX-License-Identifier: MIT
//
// Everything is painted at once by a QPainter, but for groups (views that are seen through as a
// whole): a group is painted on a picture of its own, as large as the clip, and laid over what is
// below when its state is restored. The transform and the clip in pixels are kept beside Qt's, as
// each group's painter starts afresh, and for asking what lies out of sight.
#include "desktop/render/painter_canvas.h"

#include <QPainterPath>
#include <cmath>

#include "desktop/render/painter_text.h"

namespace desktop::render {
namespace {

QRectF toQt(CGRect rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QPointF toQt(CGPoint point) {
  return {point.x, point.y};
}

QColor toQt(uikit::Color color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

QTransform toQt(const CGAffineTransform& t) {
  return {t.a, t.b, t.c, t.d, t.tx, t.ty};
}

QPainterPath toQt(const uikit::Path& path) {
  using Step = uikit::Path::Step;
  QPainterPath made;
  for (const uikit::Path::Element& element : path.elements()) {
    switch (element.step) {
      case Step::move:
        made.moveTo(toQt(element.point));
        break;
      case Step::line:
        made.lineTo(toQt(element.point));
        break;
      case Step::curve:
        made.cubicTo(toQt(element.control1), toQt(element.control2), toQt(element.point));
        break;
      case Step::close:
        made.closeSubpath();
        break;
    }
  }
  return made;
}

QPainterPath roundedRect(CGRect rect, CGFloat radius) {
  QPainterPath path;
  path.addRoundedRect(toQt(rect), radius, radius);
  return path;
}

// A QImage over the bitmap's own pixels, which the image keeps alive.
QImage toQt(const uikit::SharedBitmap& bitmap) {
  auto* const kept = new uikit::SharedBitmap(bitmap);
  return QImage(
      reinterpret_cast<const uchar*>(bitmap->pixels.data()), bitmap->width, bitmap->height,
      qsizetype{bitmap->width} * 4, QImage::Format_ARGB32_Premultiplied,
      [](void* pointer) { delete static_cast<uikit::SharedBitmap*>(pointer); }, kept);
}

// The same rectangle where it lies on whole pixels; empty where it does not.
QRect wholePixels(const QRectF& rect) {
  constexpr double tolerance = 0.01;  // pixels
  const QRect whole = rect.toRect();
  const bool isWhole = std::abs(rect.x() - whole.x()) < tolerance &&
                       std::abs(rect.y() - whole.y()) < tolerance &&
                       std::abs(rect.width() - whole.width()) < tolerance &&
                       std::abs(rect.height() - whole.height()) < tolerance;
  return isWhole ? whole : QRect();
}

void prepare(QPainter& painter) {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
}

}  // namespace

PainterCanvas::PainterCanvas(QImage& image, double scale, CGRect inside, ShadowCache& shadows)
    : _painter(&image), _scale(scale), _shadows(shadows) {
  prepare(_painter);
  _now.toPixels = QTransform::fromScale(scale, scale);
  _now.clip = _now.toPixels.mapRect(toQt(inside)).intersected(QRectF(image.rect()));
  _painter.setClipRect(_now.clip);
  applyTransform();
}

PainterCanvas::Group::Group(QSize size, QPoint where, double opacity)
    : image(size, QImage::Format_ARGB32_Premultiplied), origin(where), alpha(opacity) {
  image.fill(Qt::transparent);
  painter.begin(&image);
}

PainterCanvas::~PainterCanvas() {
  while (!_saved.empty()) PainterCanvas::restore();
  while (!_groups.empty()) paintGroup();
}

QPainter& PainterCanvas::painter() {
  return _groups.empty() ? _painter : _groups.back()->painter;
}

void PainterCanvas::applyTransform() {
  QTransform shown = _now.toPixels;
  if (!_groups.empty())
    for (const auto& group : _groups)
      shown *= QTransform::fromTranslate(-group->origin.x(), -group->origin.y());
  painter().setWorldTransform(shown);
}

void PainterCanvas::save() {
  painter().save();
  _now.groups = _groups.size();
  _saved.push_back(_now);
}

void PainterCanvas::restore() {
  _now = _saved.back();
  _saved.pop_back();
  while (_groups.size() > _now.groups) paintGroup();
  painter().restore();
}

void PainterCanvas::transform(const CGAffineTransform& by) {
  _now.toPixels = toQt(by) * _now.toPixels;
  applyTransform();
}

void PainterCanvas::clip(CGRect rect, CGFloat cornerRadius) {
  if (cornerRadius > 0)
    painter().setClipPath(roundedRect(rect, cornerRadius), Qt::IntersectClip);
  else
    painter().setClipRect(toQt(rect), Qt::IntersectClip);
  _now.clip = _now.clip.intersected(_now.toPixels.mapRect(toQt(rect)));
}

// The picture is as large as what can be seen, whatever the bounds: views paint outside theirs.
void PainterCanvas::beginGroup(double alpha, CGRect) {
  const QRect seen = _now.clip.toAlignedRect();
  QPoint origin = seen.topLeft();
  for (const auto& group : _groups) origin -= group->origin;
  _groups.push_back(std::make_unique<Group>(seen.size().expandedTo({1, 1}), origin, alpha));
  prepare(painter());
  applyTransform();
}

void PainterCanvas::paintGroup() {
  const std::unique_ptr<Group> group = std::move(_groups.back());
  _groups.pop_back();
  group->painter.end();
  QPainter& below = painter();
  below.save();
  below.resetTransform();
  below.setOpacity(group->alpha);
  below.drawImage(group->origin, group->image);
  below.restore();
}

void PainterCanvas::fill(CGRect rect, uikit::Color color, CGFloat cornerRadius) {
  if (cornerRadius > 0)
    painter().fillPath(roundedRect(rect, cornerRadius), toQt(color));
  else
    painter().fillRect(toQt(rect), toQt(color));
}

void PainterCanvas::fill(const uikit::Path& path, uikit::Color color) {
  painter().fillPath(toQt(path), toQt(color));
}

void PainterCanvas::stroke(const uikit::Path& path, CGFloat width, uikit::Color color) {
  painter().strokePath(toQt(path),
                       QPen(toQt(color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void PainterCanvas::shadow(const uikit::Path& path, uikit::Color color, CGSize offset,
                           CGFloat blur) {
  const QPainterPath outline = toQt(path);
  if (!painter().worldTransform().isInvertible() || outline.isEmpty()) return;
  const SoftShadow& made = _shadows.of(path, outline, blur, _scale, toQt(color));
  const QRectF place = made.place.translated(offset.width, offset.height);
  painter().drawImage(place, made.image);
}

void PainterCanvas::gradient(CGRect rect, std::span<const uikit::Color> colors, CGPoint start,
                             CGPoint end, CGFloat cornerRadius) {
  const auto at = [&](CGPoint fraction) {
    return QPointF(rect.origin.x + fraction.x * rect.size.width,
                   rect.origin.y + fraction.y * rect.size.height);
  };
  QLinearGradient gradient(at(start), at(end));
  const double last = colors.size() > 1 ? static_cast<double>(colors.size() - 1) : 1;
  for (std::size_t index = 0; index < colors.size(); ++index)
    gradient.setColorAt(static_cast<double>(index) / last, toQt(colors[index]));
  painter().fillPath(roundedRect(rect, cornerRadius), gradient);
}

// Pixels that stand on pixels are copied, which takes a fraction of the time of scaling them; with
// the hint to scale smoothly Qt goes the long way even then.
void PainterCanvas::image(const uikit::SharedBitmap& bitmap, CGRect rect) {
  if (!bitmap || bitmap->width <= 0 || bitmap->height <= 0) return;
  const QTransform shown = painter().worldTransform();
  const QRect place = wholePixels(shown.mapRect(toQt(rect)));
  const bool isUnscaled = shown.type() <= QTransform::TxScale && shown.m11() > 0 &&
                          shown.m22() > 0 && place.size() == QSize(bitmap->width, bitmap->height);
  if (!isUnscaled) return painter().drawImage(toQt(rect), toQt(bitmap));
  painter().resetTransform();
  painter().setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter().drawImage(place.topLeft(), toQt(bitmap));
  painter().setRenderHint(QPainter::SmoothPixmapTransform);
  painter().setWorldTransform(shown);
}

void PainterCanvas::text(std::u16string_view line, const uikit::FontFace& face, uikit::Color color,
                         CGPoint baseline) {
  paintText(painter(), line, face, toQt(color), toQt(baseline));
}

bool PainterCanvas::isClippedAway(CGRect rect) const {
  return !_now.toPixels.mapRect(toQt(rect)).intersects(_now.clip);
}

}  // namespace desktop::render
