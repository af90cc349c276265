// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_button.h"

#include <gmock/gmock.h>

#include "desktop/uikit/controls/ui_control.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/recording_canvas.h"
#include "tests/desktop/uikit/touch_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

UIImage square(int side) {
  Bitmap bitmap{side, side, {}};
  bitmap.pixels.resize(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  return UIImageState::make(std::make_shared<const Bitmap>(std::move(bitmap)), 1);
}

class UIButtonTest : public TouchTest {
 protected:
  static UIButtonState& of(UIButton button) { return UIButtonState::of(button.get()); }
  static CGSize fitting(UIButton button) { return send<CGSize, "sizeThatFits:">(button, CGSize{}); }
  static void set(UIButton button, UIImage image, NSUInteger state) {
    send<void, "setImage:forState:">(button, image, state);
  }
  static Color colorOf(UIButton button) { return of(button).currentTitleColor(); }

  UIButton plain = UIButtonState::withType(UIButtonState::custom);
  UIButton info = UIButton::withType(UIButton::infoLight);
};

TEST_F(UIButtonTest, InfoLightIsTwentyTwoPointsInTheTintColor) {
  EXPECT_EQ(info.frame().size, (CGSize{22, 22}));
  EXPECT_EQ(fitting(info), (CGSize{22, 22}));
  info.sizeToFit();
  EXPECT_EQ(info.frame().size, (CGSize{22, 22}));
  RecordingCanvas canvas;
  of(info).drawContent(&canvas);
  ASSERT_FALSE(canvas.strokes.empty());
  for (const Color& color : canvas.strokes) EXPECT_EQ(color, colors::tint);
  send<void, "setTintColor:">(info, UIColor::whiteColor());
  RecordingCanvas tinted;
  of(info).drawContent(&tinted);
  EXPECT_EQ(tinted.strokes.at(0), colors::white);
}

TEST_F(UIButtonTest, TypesWithASymbolDrawIt) {
  const struct {
    NSInteger type;
    bool hasSymbol;
  } cases[] = {{UIButtonState::custom, false},
               {UIButtonState::system, false},
               {UIButtonState::infoDark, true},
               {UIButtonState::detailDisclosure, true},
               {UIButtonState::contactAdd, true},
               {99, false},
               {-1, false}};
  for (const auto& [type, hasSymbol] : cases) {
    RecordingCanvas canvas;
    of(UIButtonState::withType(type)).drawContent(&canvas);
    EXPECT_EQ(!canvas.strokes.empty(), hasSymbol) << type;
  }
}

TEST_F(UIButtonTest, ATitleForOneStateIsShownInThatStateOnly) {
  plain.setTitle(NSString::make("normal"), stateNormal);
  plain.setTitle(NSString::make("pressed"), stateHighlighted);
  plain.setFrame({{100, 100}, {80, 40}});
  window().addSubview(plain);
  EXPECT_EQ(of(plain).currentTitle().utf8(), "normal");
  touches().down({120, 120});
  EXPECT_EQ(of(plain).currentTitle().utf8(), "pressed");
  touches().up({120, 120});
  EXPECT_EQ(of(plain).currentTitle().utf8(), "normal");
  send<void, "setSelected:">(plain, true);
  EXPECT_EQ(of(plain).currentTitle().utf8(), "normal");
  plain.setTitle({}, stateNormal);
  EXPECT_FALSE(of(plain).currentTitle());
}

TEST_F(UIButtonTest, TheLabelShowsTheTitle) {
  plain.setTitle(NSString::make("title"), stateNormal);
  EXPECT_EQ(plain.titleLabel().text().utf8(), "title");
  EXPECT_EQ(plain.titleLabel(), plain.titleLabel());
  EXPECT_EQ(plain.subviews().count(), 1u);
}

TEST_F(UIButtonTest, TitleColorsGoByState) {
  EXPECT_EQ(colorOf(plain), colors::white);
  EXPECT_EQ(colorOf(UIButtonState::withType(UIButtonState::system)), colors::tint);
  plain.setTitleColor(UIColor::blackColor(), stateNormal);
  EXPECT_EQ(colorOf(plain), colors::black);
  plain.setTitleColor(UIColor::greenColor(), stateHighlighted);
  send<void, "setHighlighted:">(plain, true);
  EXPECT_EQ(colorOf(plain), (Color{0, 1, 0, 1}));
  send<void, "setHighlighted:">(plain, false);
  EXPECT_EQ(colorOf(plain), colors::black);
}

TEST_F(UIButtonTest, IsAsLargeAsItsImage) {
  set(plain, square(30), stateNormal);
  EXPECT_EQ(fitting(plain), (CGSize{30, 30}));
  plain.setFrame({{0, 0}, {50, 40}});
  send<void, "layoutIfNeeded">(plain);
  EXPECT_EQ(of(plain).imageView().frame(), (CGRect{{10, 5}, {30, 30}}));
}

TEST_F(UIButtonTest, HasRoomAroundItsTitle) {
  plain.setTitle(NSString::make("a title"), stateNormal);
  const CGSize title = send<CGSize, "sizeThatFits:">(plain.titleLabel(), CGSize{1000, 1000});
  const CGSize size = fitting(plain);
  EXPECT_GE(size.width, title.width);
  EXPECT_GE(size.height, title.height + 12);
  plain.sizeToFit();
  send<void, "layoutIfNeeded">(plain);
  const CGRect frame = plain.titleLabel().frame();
  EXPECT_GE(frame.origin.x, 0);
  EXPECT_LE(right(frame), size.width);
}

TEST_F(UIButtonTest, AnImageIsDimmedUnderTheFinger) {
  set(plain, square(30), stateNormal);
  plain.setFrame({{100, 100}, {30, 30}});
  window().addSubview(plain);
  const auto alpha = [&] { return UIViewState::of(of(plain).imageView().get()).alpha(); };
  touches().down({110, 110});
  EXPECT_EQ(alpha(), 0.5);
  touches().up({110, 110});
  EXPECT_EQ(alpha(), 1);
  send<void, "setAdjustsImageWhenHighlighted:">(plain, false);
  touches().down({110, 110});
  EXPECT_EQ(alpha(), 1);
}

TEST_F(UIButtonTest, ABackgroundImageFillsIt) {
  send<void, "setBackgroundImage:forState:">(plain, square(1), NSUInteger{1});
  plain.setFrame({{0, 0}, {60, 20}});
  RecordingCanvas canvas;
  of(plain).drawContent(&canvas);
  EXPECT_THAT(canvas.images, IsEmpty());
  send<void, "setHighlighted:">(plain, true);
  of(plain).drawContent(&canvas);
  EXPECT_THAT(canvas.images, ElementsAre(CGRect{{0, 0}, {60, 20}}));
}

TEST_F(UIButtonTest, TellsItsTargetsOfATap) {
  info.setFrame({{100, 100}, {22, 22}});
  window().addSubview(info);
  info.addTarget(probe, selector<"act:">(), touchUpInside);
  tap({110, 110});
  EXPECT_THAT(Probe::of(probe.get()).told, ElementsAre("act:"));
}

TEST_F(UIButtonTest, LeavesNothingBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool inner;
    const auto button = UIButtonState::withType(UIButtonState::system);
    button.setTitle(NSString::make("title"), stateNormal);
    set(button, square(3), stateNormal);
    button.setTitleColor(UIColor::blackColor(), stateHighlighted);
    EXPECT_GT(liveBoundObjects(), before);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
