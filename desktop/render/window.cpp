// SPDX-License-Identifier: MIT
//
// Qt tells of time, size, mouse and keys; the application hears of them as time that passes, a
// screen of a size, and a finger. A timer makes frames while something moves or waits; a frame
// prepares the views, then paints only what is damaged into a picture that the window keeps.
#include "desktop/render/window.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "bridge/runtime/autorelease_pool.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::render {
namespace {

using uikit::animator;
using uikit::application;
using uikit::scheduler;
using uikit::touches;

constexpr int frameMilliseconds = 16;
constexpr uikit::Seconds longPress = 0.6;  // long enough for whoever waits for one
constexpr double pointsPerWheelDegree = 4;

CGPoint pointOf(QPointF position) {
  return {position.x(), position.y()};
}

CGPoint wheelDistance(const QWheelEvent& event) {
  if (!event.pixelDelta().isNull())
    return {-1.0 * event.pixelDelta().x(), -1.0 * event.pixelDelta().y()};
  constexpr double eighths = 8;  // of a degree, as Qt counts
  return {-event.angleDelta().x() / eighths * pointsPerWheelDegree,
          -event.angleDelta().y() / eighths * pointsPerWheelDegree};
}

}  // namespace

Window::Window() : _store(this) {
  setSurfaceType(QSurface::RasterSurface);
  const CGSize size = uikit::screen().size;
  resize(static_cast<int>(size.width), static_cast<int>(size.height));
  setMinimumSize({280, 400});
  _timer.setSingleShot(true);
  _timer.setTimerType(Qt::PreciseTimer);
  connect(&_timer, &QTimer::timeout, this, [this] { takeTurn(); });
  _clock.start();
}

double Window::scale() const {
  return devicePixelRatio();
}

void Window::wake() {
  if (!_timer.isActive() || _timer.remainingTime() > 0) _timer.start(0);
}

void Window::takeTurn() {
  const AutoreleasePool pool;
  if (turn) turn();
  scheduler().advanceTo(static_cast<double>(_clock.elapsed()) / 1000);
  application().prepareFrame();
  showChanges();
  planNextTurn();
}

void Window::showChanges() {
  if (!isExposed()) return;
  const std::vector<CGRect> changed = _picture.update(scale());
  const QRect all(QPoint(), size());
  QRegion region;
  for (const CGRect& rect : changed)
    region += QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height)
                  .toAlignedRect()
                  .intersected(all);
  if (std::exchange(_isStale, false)) region = all;
  if (region.isEmpty()) return;
  _store.resize(size());
  _store.beginPaint(region);
  QPainter painter(_store.paintDevice());
  painter.setClipRegion(region);
  painter.drawImage(QRectF(all), _picture.image());
  painter.end();
  _store.endPaint();
  _store.flush(region);
}

void Window::planNextTurn() {
  if (!animator().isIdle() || !uikit::screen().damage.isEmpty())
    return _timer.start(frameMilliseconds);
  const auto due = scheduler().nextDue();
  if (!due) return;
  const double wait = (*due - scheduler().now()) * 1000;
  _timer.start(static_cast<int>(std::clamp(wait, 0.0, 60'000.0)));
}

bool Window::event(QEvent* event) {
  if (event->type() == QEvent::UpdateRequest) takeTurn();
  return QWindow::event(event);
}

void Window::exposeEvent(QExposeEvent*) {
  _isStale = true;
  wake();
}

void Window::resizeEvent(QResizeEvent* event) {
  uikit::screen().scale = scale();
  application().resize(
      {static_cast<double>(event->size().width()), static_cast<double>(event->size().height())});
  _isStale = true;
  takeTurn();
}

void Window::mousePressEvent(QMouseEvent* event) {
  takeTurn();
  const CGPoint at = pointOf(event->position());
  if (event->button() == Qt::RightButton) pressLong(at);
  if (event->button() == Qt::MiddleButton && middlePressed) middlePressed(at);
  if (event->button() == Qt::LeftButton) touches().down(at);
  wake();
}

void Window::pressLong(CGPoint at) {
  touches().down(at);
  scheduler().callAfter(longPress, [at] { touches().up(at); });
}

void Window::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  touches().move(pointOf(event->position()));
  wake();
}

void Window::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  touches().up(pointOf(event->position()));
  wake();
}

void Window::wheelEvent(QWheelEvent* event) {
  touches().scroll(pointOf(event->position()), wheelDistance(*event));
  wake();
}

void Window::keyPressEvent(QKeyEvent* event) {
  const AutoreleasePool pool;
  event->setAccepted(keyPressed && keyPressed(*event));
  wake();
}

}  // namespace desktop::render
