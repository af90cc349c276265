// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/navigation/way_back.h"

#include <algorithm>

#include "bridge/photos.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/controllers/ui_alert_controller.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/overlays/ui_alert_action.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

// What says no more than that the alert was seen. Nil where there is nothing of the kind.
UIAlertAction quietAction(const uikit::UIAlertControllerState& alert) {
  const auto& actions = alert.actions();
  const auto cancel = std::ranges::find_if(actions, [](const auto& action) {
    return uikit::UIAlertActionState::of(action.get()).style() == uikit::UIAlertActionState::cancel;
  });
  if (cancel != actions.end()) return cancel->get();
  return actions.size() == 1 ? actions.front().get() : UIAlertAction();
}

bool covers(UIView view, CGRect room) {
  const auto& state = uikit::UIViewState::of(view);
  constexpr CGFloat leastAlpha = 0.01;  // of what takes touches
  const CGRect frame = view.frame();
  return !state.isHidden() && state.alpha() >= leastAlpha && frame.origin.x <= room.origin.x &&
         frame.origin.y <= room.origin.y && uikit::right(frame) >= uikit::right(room) &&
         uikit::bottom(frame) >= uikit::bottom(room);
}

// This application puts one view into a grid's or a photo's: what lies over all of that is somebody
// else's. Nil where there is nothing.
UIView coverOf(UIViewController controller) {
  if (!isKindOf(controller, PUPhotosGridViewController::classObject()) &&
      !isKindOf(controller, PUOneUpViewController::classObject()))
    return {};
  const UIView view = controller.view();
  const auto& views = uikit::UIViewState::of(view).subviews();
  return views.size() > 1 && covers(views.back().get(), view.bounds()) ? views.back().get()
                                                                       : UIView();
}

// In the corner that bars leave free, by a touch as any other. What is still on its way takes none.
void tapAside(UIView cover, UIViewController controller) {
  if (uikit::animator().isAnimating(cover)) return;
  const auto bars = uikit::UIViewControllerState::of(controller).safeArea();
  const CGPoint corner =
      uikit::apply(uikit::UIViewState::of(cover).toScreen(), CGPoint{bars.left + 2, bars.top + 2});
  uikit::touches().down(corner);
  uikit::touches().up(corner);
}

}  // namespace

void leavePresented(UIViewController presented) {
  if (isKindOf(presented, UIAlertController::classObject())) {
    auto& alert = uikit::UIAlertControllerState::of(presented);
    if (const auto action = quietAction(alert)) return alert.choose(action);
  }
  // A page that was reached from the presented one leads back to it.
  if (isKindOf(presented, UINavigationController::classObject()) &&
      UINavigationController(presented.get()).pop(true))
    return;
  presented.dismiss(UIViewController::animated, {});
}

bool tapCoverAway(UIViewController controller) {
  const UIView cover = coverOf(controller);
  if (cover) tapAside(cover, controller);
  return static_cast<bool>(cover);
}

}  // namespace desktop::photos_ui
