// SPDX-License-Identifier: MIT
#include "desktop/script/screen_text.h"

#include <gtest/gtest.h>

#include "desktop/uikit/controls/ui_switch.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::script {
namespace {

class ScreenTextTest : public uikit::ApplicationTest {
 protected:
  static Owned<UILabel> addLabel(UIView to, CGRect frame, const char* text) {
    const auto label = bridge::makeView<UILabel>(frame);
    label->setText(NSString::make(text));
    to.addSubview(label);
    return label;
  }
};

TEST_F(ScreenTextTest, FindsTextsThatCanBeSeen) {
  addLabel(window(), {{10, 20}, {100, 20}}, "Dismiss");
  EXPECT_TRUE(isOnScreen("Dismiss"));
  EXPECT_TRUE(isOnScreen("miss"));
  EXPECT_FALSE(isOnScreen("dismiss"));
  EXPECT_EQ(placeOf("Dismiss"), (CGPoint{60, 30}));
}

TEST_F(ScreenTextTest, FindsPicturesByTheirNames) {
  const auto bar = bridge::makeView<UIToolbar>({{0, 600}, {375, 44}});
  const auto share = UIBarButtonItem::withSystemItem(UIBarButtonItem::action, {}, nullptr);
  bar->setItems(NSArray::of(share.get()));
  window().addSubview(bar);
  EXPECT_FALSE(isOnScreen("Dismiss"));
  uikit::application().prepareFrame();
  EXPECT_TRUE(isOnScreen("Share"));
  EXPECT_LT(placeOf("Share")->x, 60);
}

TEST_F(ScreenTextTest, FindsControlsByTheirNamesInFrontOfTheLabelsBesideThem) {
  addLabel(window(), {{10, 20}, {100, 20}}, "Colours");
  const auto control = uikit::UISwitch::make();
  control->setFrame({{300, 20}, {51, 31}});
  window().addSubview(control);
  uikit::UISwitch::of(control.get()).setAccessibilityLabel(NSString::make("Colours"));
  EXPECT_EQ(placeOf("Colours"), (CGPoint{325.5, 35.5}));
}

TEST_F(ScreenTextTest, DoesNotFindWhatIsHiddenTransparentOrOutside) {
  addLabel(window(), {{10, 20}, {100, 20}}, "hidden")->setAlpha(0);
  addLabel(window(), {{1000, 20}, {100, 20}}, "outside");
  const auto clipping = bridge::makeView<UIView>({{0, 0}, {50, 50}});
  clipping->setClipsToBounds(true);
  window().addSubview(clipping);
  addLabel(clipping.get(), {{0, 60}, {50, 20}}, "clipped");
  for (const char* text : {"hidden", "outside", "clipped"}) EXPECT_FALSE(isOnScreen(text)) << text;
}

TEST_F(ScreenTextTest, PrefersTheExactTextThenTheOneInFront) {
  addLabel(window(), {{0, 0}, {100, 20}}, "Select");
  addLabel(window(), {{0, 100}, {100, 20}}, "Select All");
  EXPECT_EQ(placeOf("Select"), (CGPoint{50, 10}));
  EXPECT_EQ(placeOf("elect"), (CGPoint{50, 110}));
  EXPECT_FALSE(placeOf("none"));
}

}  // namespace
}  // namespace desktop::script
