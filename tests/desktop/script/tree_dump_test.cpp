// SPDX-License-Identifier: MIT
#include "desktop/script/tree_dump.h"

#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "desktop/script/view_dump.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/controls/ui_segmented_control.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "desktop/uikit/controls/ui_switch.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::script {
namespace {

using Json = nlohmann::ordered_json;

class TreeDumpTest : public uikit::ApplicationTest {};

TEST_F(TreeDumpTest, TellsWhereAViewIsAndHowItLooks) {
  const auto box = bridge::makeView<UIView>({{10, 20}, {30, 40}});
  box->setTag(7);
  box->setAutoresizingMask(18);
  box->setBackgroundColor(UIColor::white(1, 0.5));
  box->setTransform(scaling(2, 2));
  window().addSubview(box);
  const Json node = dumpView(box.get());
  EXPECT_EQ(node, Json::parse(R"({"class": "UIView", "frame": [-5.0, 0.0, 60.0, 80.0],
      "alpha": 1.0, "hidden": false, "tag": 7, "autoresizing": 18,
      "background": [1.0, 1.0, 1.0, 0.5], "transform": [2.0, 0.0, 0.0, 2.0, 0.0, 0.0]})"));
}

TEST_F(TreeDumpTest, TellsOfLayersWhatIsNotPlain) {
  const auto box = bridge::makeView<UIView>({{0, 0}, {10, 10}});
  box->layer().setCornerRadius(5);
  box->layer().setShadowOpacity(0.5F);
  box->layer().setShadowPath(UIBezierPath::withRect({{0, 0}, {15, 15}}).cgPath());
  const Json layer = dumpView(box.get())["layer"];
  EXPECT_EQ(layer["cornerRadius"], 5.0);
  EXPECT_EQ(layer["shadowOpacity"], 0.5);
  EXPECT_EQ(layer["shadowPath"], (Json{0.0, 0.0, 15.0, 15.0}));
  EXPECT_FALSE(layer.contains("borderWidth"));
}

TEST_F(TreeDumpTest, TellsTheNamesAndValuesOfControls) {
  const auto toggle = uikit::UISwitch::make();
  uikit::UISwitch::of(toggle.get()).setAccessibilityLabel(NSString::make("Colours"));
  uikit::UISwitch::of(toggle.get()).setOn(true, false);
  toggle->setEnabled(false);
  const Json node = dumpView(toggle.get());
  EXPECT_EQ(node["name"], "Colours");
  EXPECT_EQ(node["on"], true);
  EXPECT_EQ(node["enabled"], false);
  const auto slider = uikit::UISlider::make();
  uikit::UISlider::of(slider.get()).setValue(0.5F);
  EXPECT_EQ(dumpView(slider.get())["value"], 0.5);
  const auto segments = uikit::UISegmentedControl::make();
  uikit::UISegmentedControl::of(segments.get()).setTitles({"a", "b"});
  uikit::UISegmentedControl::of(segments.get()).select(1);
  EXPECT_EQ(dumpView(segments.get())["selected"], 1);
}

TEST_F(TreeDumpTest, ShowsWhatIsAnimatedAsItIsNow) {
  const auto box = bridge::makeView<UIView>({{0, 0}, {10, 10}});
  window().addSubview(box);
  UIView::animate(1, Block<void()>([&box] { box->setAlpha(0); }));
  uikit::scheduler().advanceTo(0.5);
  EXPECT_EQ(dumpView(box.get())["alpha"], 0.5);
}

TEST_F(TreeDumpTest, TheScreenIsOneJsonObject) {
  uikit::application().opened.push_back("comgooglemaps://?center=1,2");
  uikit::platformLog().push_back("bad \xFF text");
  const Json screen = Json::parse(dumpScreen());
  EXPECT_EQ(screen["screen"], (Json{{"width", 375.0}, {"height", 667.0}}));
  EXPECT_EQ(screen["opened"], Json::array({"comgooglemaps://?center=1,2"}));
  EXPECT_EQ(screen["log"], Json::array({"bad \xEF\xBF\xBD text"}));
  EXPECT_EQ(screen["view"]["class"], "UIWindow");
  for (const char* absent : {"navigation", "alert", "sheet", "menu"})
    EXPECT_TRUE(screen[absent].is_null()) << absent;
}

}  // namespace
}  // namespace desktop::script
