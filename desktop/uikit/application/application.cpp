// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/application.h"

#include <algorithm>
#include <utility>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

constexpr Seconds frameTime = 1.0 / 60;

// The old one goes when the new one stands: what goes with it may still ask for it.
template <typename Part>
void renew(Part& part) {
  const Part gone = std::exchange(part, Part());
}

}  // namespace

Application& application() {
  static auto& made = *new Application;
  return made;
}

void Application::prepareFrame() const {
  const AutoreleasePool pool;
  animator().tick();
  const auto present = windows;
  for (const auto& window : present) window->layoutIfNeeded();
}

void Application::advance(Seconds by) const {
  const Seconds end = scheduler().now() + std::max(by, 0.0);
  do {
    const AutoreleasePool pool;
    scheduler().advanceTo(std::min(end, scheduler().now() + frameTime));
    prepareFrame();
  } while (scheduler().now() < end);
}

void Application::resize(CGSize size) const {
  if (size == screen().size) return;
  const CGSize before = std::exchange(screen().size, size);
  screen().damage.add(rectOfSize(size));
  const auto present = windows;
  for (const auto& window : present) screenDidResize(window.get(), before);
}

// From the top down: what goes may still tell the parts below.
void resetApplication() {
  const AutoreleasePool pool;
  touches().abandon();
  renew(application());
  renew(animator());
  renew(scheduler());
  renew(screen());
  renew(outside());
  renew(platformLog());
}

}  // namespace desktop::uikit
