// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/bars_visibility.h"

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::photos_ui {
namespace {

// Plain controllers in a navigation; the second one has the bars.
class BarsVisibilityTest : public uikit::ApplicationTest {
 protected:
  BarsVisibilityTest() {
    _navigation->push(_first, UIViewController::immediately);
    _navigation->push(_second, UIViewController::immediately);
    window().setRootViewController(_navigation);
    uikit::application().statusBar.isShown = true;
  }

  uikit::UINavigationControllerState& navigation() const {
    return uikit::UINavigationControllerState::of(_navigation.get());
  }
  uikit::Color background() const {
    return uikit::UIViewState::of(_second->view()).backgroundColor();
  }

 private:
  const Owned<UINavigationController> _navigation = makeNew<UINavigationController>();
  const Owned<UIViewController> _first = makeNew<UIViewController>();
  const Owned<UIViewController> _second = makeNew<UIViewController>();

 protected:
  BarsVisibility bars{_second.get()};
};

TEST_F(BarsVisibilityTest, HidesAllBarsAndShowsThemAgain) {
  EXPECT_FALSE(bars.show(true, false)) << "they are on show";
  for (int time = 0; time < 2; ++time) {
    EXPECT_TRUE(bars.show(false, false));
    EXPECT_FALSE(bars.areShown());
    EXPECT_TRUE(navigation().isNavigationBarHidden());
    EXPECT_TRUE(navigation().isToolbarHidden());
    EXPECT_FALSE(uikit::application().statusBar.isShown);
    EXPECT_EQ(background(), uikit::colors::black);
    EXPECT_FALSE(bars.show(false, false)) << "they are hidden";
    EXPECT_TRUE(bars.show(true, false));
    EXPECT_FALSE(navigation().isNavigationBarHidden());
    EXPECT_FALSE(navigation().isToolbarHidden());
    EXPECT_TRUE(uikit::application().statusBar.isShown);
    EXPECT_EQ(background(), uikit::colors::white);
  }
}

TEST_F(BarsVisibilityTest, BringsNoStatusBarWhereThereWasNone) {
  uikit::application().statusBar.isShown = false;
  bars.show(false, false);
  bars.show(true, false);
  EXPECT_FALSE(uikit::application().statusBar.isShown);
}

TEST_F(BarsVisibilityTest, HasAToolbarWhileItsControllerIsOnTop) {
  EXPECT_TRUE(navigation().isToolbarHidden());
  bars.showToolbar(false);
  EXPECT_FALSE(navigation().isToolbarHidden());
  bars.hideToolbarForAnother(false);
  EXPECT_FALSE(navigation().isToolbarHidden()) << "its controller is still on top";
}

TEST_F(BarsVisibilityTest, ShowsNoToolbarWithHiddenBars) {
  bars.show(false, false);
  bars.showToolbar(false);
  EXPECT_TRUE(navigation().isToolbarHidden());
}

}  // namespace
}  // namespace desktop::photos_ui
