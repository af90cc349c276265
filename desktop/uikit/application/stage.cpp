// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/stage.h"

#include <algorithm>
#include <memory>

#include "desktop/uikit/application/ui_window.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds frameTime = 1.0 / 60;
constexpr std::size_t damageRects = 8;  // more are joined into one

std::unique_ptr<Stage>& slot() {
  static auto& stage = *new std::unique_ptr<Stage>(std::make_unique<Stage>());
  return stage;
}

}  // namespace

void Damage::add(CGRect rect) {
  if (isEmpty() && uikit::isEmpty(rect)) return;
  if (uikit::isEmpty(rect)) return;
  for (CGRect& known : _rects) {
    if (!intersects(known, rect)) continue;
    known = unionOf(known, rect);
    return;
  }
  _rects.push_back(rect);
  if (_rects.size() <= damageRects) return;
  CGRect all;
  for (const CGRect& known : _rects) all = unionOf(all, known);
  _rects = {all};
}

std::vector<CGRect> Damage::take() {
  return std::exchange(_rects, {});
}

void Stage::prepareFrame() {
  const bridge::AutoreleasePool pool;
  animator.tick();
  const auto present = windows;
  for (const auto& window : present) bridge::send<void, "layoutIfNeeded">(window.get());
}

void Stage::advance(Seconds by) {
  const Seconds end = scheduler.now() + std::max(by, 0.0);
  do {
    const bridge::AutoreleasePool pool;
    scheduler.advanceTo(std::min(end, scheduler.now() + frameTime));
    prepareFrame();
  } while (scheduler.now() < end);
}

void Stage::resize(CGSize size) {
  if (size == screenSize) return;
  const CGRect before = rectOfSize(screenSize);
  screenSize = size;
  damage.add(rectOfSize(size));
  const auto present = windows;
  for (const auto& window : present) {
    if (UIView::of(window.get()).frame() != before) continue;
    const auto root = UIWindow::of(window.get()).rootViewController();
    if (root) UIViewController::of(root.get()).becomeSize(size);
    window->setFrame(rectOfSize(size));
  }
}

Stage& stage() {
  return *slot();
}

void resetStage() {
  const bridge::AutoreleasePool pool;
  stage().touches.abandon();
  // The windows go while there is still a stage for their views to tell of it.
  const auto windows = std::exchange(stage().windows, {});
  slot() = std::make_unique<Stage>();
}

}  // namespace desktop::uikit
