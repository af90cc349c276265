// SPDX-License-Identifier: MIT
//
// A report page as a user gets it: in a navigation controller that is presented over an empty
// screen.
#pragma once

#include "bridge/uikit.h"
#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/controllers/ui_activity_view_controller.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/lumifact/views/foundation_test.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {

class PresentedPageTest : public desktop::uikit::ApplicationTest {
 protected:
  PresentedPageTest() {
    useThePhonesFoundation();
    _root = bridge::makeNew<bridge::UIViewController>();
    window().setRootViewController(_root);
    desktop::uikit::application().prepareFrame();
  }

  void present(bridge::UIViewController page) {
    const auto navigation = bridge::UINavigationController::withRoot(page);
    _root->present(navigation, bridge::UIViewController::animated, {});
    settle();
  }
  // What the screen shows on top, or nil.
  bridge::UIViewController presented() const {
    return bridge::send<bridge::UIViewController, "presentedViewController">(_root);
  }
  bridge::UIViewController topPage() const {
    return bridge::send<bridge::UIViewController, "topViewController">(presented());
  }
  bridge::UIViewController root() const { return _root; }

  // The items of the page's bar, the right-most first, and those on the left.
  bridge::NSArray rightItems() const { return topPage().navigationItem().rightBarButtonItems(); }
  bridge::NSArray leftItems() const {
    return bridge::send<bridge::NSArray, "leftBarButtonItems">(topPage().navigationItem());
  }
  static const desktop::uikit::UIBarButtonItemState& look(bridge::Object item) {
    return desktop::uikit::UIBarButtonItemState::of(item);
  }
  static std::string titleOf(bridge::Object item) { return look(item).title().utf8(); }
  void press(bridge::Object item) const {
    using desktop::uikit::BarButtonView;
    for (const bridge::UIView view : viewsOf(presented().view(), BarButtonView::classObject()))
      if (BarButtonView::of(view).item() == item) return tap(view);
    ADD_FAILURE() << titleOf(item) << " is not on the bar";
  }

  // The share sheet over the page, or nil.
  bridge::UIViewController sheet() const {
    return bridge::as<bridge::UIActivityViewController>(
        bridge::send<bridge::UIViewController, "presentedViewController">(topPage()));
  }
  std::string sharedText() const {
    return desktop::uikit::UIActivityViewControllerState::of(sheet()).text();
  }
  void closeSheet() {
    desktop::uikit::UIActivityViewControllerState::of(sheet()).cancel();
    settle();
  }

 private:
  bridge::Owned<bridge::UIViewController> _root;
};

}  // namespace lumifact
