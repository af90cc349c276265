// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

// The bar's two views with a title, each with a label and a view that is none.
class BarTitleTest : public GridHostTest {
 protected:
  BarTitleTest() {
    settings.showSelectedSize = true;
    setEditing(true);
  }
  ~BarTitleTest() override { setEditing(false); }

  void setEditing(bool editing) const { send<void, "setEditing:animated:">(_grid, editing, false); }
  void beginSwipe() const {
    send<void, "_handleSwipeSelectionGesture:">(_grid, host::gestureIn(UIGestureRecognizer::began));
  }
  static void setTitle(UIView view) {
    send<void, "setTitle:">(view, text("A title that is far too long for any bar to hold (4 MB) "));
  }
  static Owned<UIView> titleView(const char* className) {
    auto made = makeView<UIView>({{0, 0}, {375, 44}}, objc_getClass(className));
    made->addSubview(makeView<UIView>({}));
    made->addSubview(makeView<UILabel>({}));
    return made;
  }
  static std::vector<bool> fits(UIView view) {
    std::vector<bool> all;
    for (NSUInteger index = 0; index < view.subviews().count(); ++index)
      if (const auto label = as<UILabel>(view.subviews().at(index)))
        all.push_back(send<bool, "adjustsFontSizeToFitWidth">(label) &&
                      send<CGFloat, "minimumFontSize">(label) == 4);
    return all;
  }

  static constexpr const char* classes[] = {"_UINavigationBarLargeTitleView",
                                            "_UINavigationBarContentView"};

 private:
  Owned<PUPhotosGridViewController> _grid = host::makeGrid("PUPhotosGridViewController");
};

TEST_F(BarTitleTest, LongTitlesShrinkWhileSizesAreShown) {
  for (const char* className : classes) {
    const auto view = titleView(className);
    setTitle(view);
    EXPECT_THAT(fits(view), testing::Each(true)) << className;
    EXPECT_GE(fits(view).size(), 2U) << "the view's own label and another one";
    EXPECT_TRUE((send<NSString, "title">(view).utf8()).starts_with("A title")) << className;
  }
}

TEST_F(BarTitleTest, OtherTitlesKeepTheirFont) {
  const auto expectUntouched = [](const char* when) {
    for (const char* className : classes) {
      const auto view = titleView(className);
      setTitle(view);
      EXPECT_THAT(fits(view), testing::Each(false)) << when;
    }
  };
  beginSwipe();
  expectUntouched("during a swipe");
  setEditing(false);
  expectUntouched("outside select mode");
  setEditing(true);
  settings.showSelectedSize = false;
  expectUntouched("where the setting is off");
}

TEST_F(BarTitleTest, LabelsFurtherDownAreLeftAlone) {
  const auto view = titleView(classes[1]);
  const auto between = makeView<UIView>({});
  const auto inner = makeView<UILabel>({});
  between->addSubview(inner);
  view->addSubview(between);
  setTitle(view);
  EXPECT_FALSE((send<bool, "adjustsFontSizeToFitWidth">(inner)));
}

}  // namespace
}  // namespace lumifact
