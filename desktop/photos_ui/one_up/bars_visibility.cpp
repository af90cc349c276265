// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/bars_visibility.h"

#include <utility>

#include "desktop/uikit/application/application.h"

namespace desktop::photos_ui {

bool BarsVisibility::show(bool shown, bool animated) {
  constexpr double time = 0.25;  // seconds
  if (shown == _areShown) return false;
  _areShown = shown;
  showStatusBar(shown);
  const auto navigation = _controller.navigationController();
  navigation.setNavigationBarHidden(!shown, animated);
  navigation.setToolbarHidden(!shown, animated);
  const UIView view = _controller.view();
  UIView::animate(animated ? time : 0, Block<void()>([view, shown] {
                    view.setBackgroundColor(shown ? UIColor::whiteColor() : UIColor::blackColor());
                  }));
  return true;
}

void BarsVisibility::showToolbar(bool animated) const {
  _controller.navigationController().setToolbarHidden(!_areShown, animated);
}

void BarsVisibility::hideToolbarForAnother(bool animated) const {
  const auto navigation = _controller.navigationController();
  if (navigation.topViewController() != _controller) navigation.setToolbarHidden(true, animated);
}

void BarsVisibility::showStatusBar(bool shown) {
  bool& isShown = uikit::application().statusBar.isShown;
  if (shown)
    isShown = _hasStatusBar;
  else
    _hasStatusBar = std::exchange(isShown, false);
}

}  // namespace desktop::photos_ui
