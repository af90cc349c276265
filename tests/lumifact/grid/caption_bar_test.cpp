// SPDX-License-Identifier: MIT
#include "lumifact/grid/caption_bar.h"

#include <gmock/gmock.h>

#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ca_gradient_layer.h"
#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using desktop::uikit::CALayerState;
using desktop::uikit::Color;
using host::HelperFields;

Color colorOf(UIView view) {
  return desktop::uikit::UIColorState::valueOf(send<Object, "backgroundColor">(view));
}

const CALayerState::Style& styleOf(UIView view) {
  return CALayerState::of(view.layer()).style();
}

CGRect shadowOf(UIView bar) {
  const auto& path = styleOf(bar).shadowPath;
  return path ? send<CGRect, "bounds">(path.get()) : CGRect{};
}

class CaptionBarTest : public GridHostTest {
 protected:
  UIView makeCellWithBar(CGRect frame = {{10, 20}, {93, 93}}) {
    cell = host::makeCell(frame);
    helper = host::makeHelper(HelperFields::today);
    photo().helper = helper;
    return sizeLabelView.get(cell);
  }
  host::HostPhotoView& photo() const { return host::HostPhotoView::of(stateOf(cell).photo->get()); }
  void layOut() const { send<void, "layoutSubviews">(cell); }
  UILabel label() const { return sizeLabel.get(cell); }

  Owned<PUPhotosGridCell> cell;
  Owned<PUPhotoViewContentHelper> helper;
};

TEST_F(CaptionBarTest, ACellIsMadeWithABarAndALabelInIt) {
  const UIView bar = makeCellWithBar();
  ASSERT_TRUE(bar);
  EXPECT_EQ(bar.frame(), (CGRect{{0, 0}, {93, 20}}));
  EXPECT_EQ(label().frame(), (CGRect{{2, 0}, {89, 20}}));
  EXPECT_EQ((send<NSInteger, "tag">(bar)), 100);
  EXPECT_EQ((send<NSInteger, "tag">(label())), 200);
  EXPECT_EQ((send<Object, "superview">(bar)), cell->contentView());
  EXPECT_EQ((send<Object, "superview">(label())), bar);
  EXPECT_EQ(label().text().utf8(), "");
}

TEST_F(CaptionBarTest, TheLabelIsWhiteSmallAndCentred) {
  makeCellWithBar();
  EXPECT_TRUE((send<NSObject, "font">(label()).isEqual(UIFont::systemFont(12))));
  EXPECT_TRUE((send<NSObject, "textColor">(label()).isEqual(UIColor::whiteColor())));
  EXPECT_EQ(colorOf(label()).alpha, 0);
  EXPECT_EQ((send<NSInteger, "textAlignment">(label())), 1);
  EXPECT_TRUE((send<bool, "adjustsFontSizeToFitWidth">(label())));
  EXPECT_EQ((send<NSUInteger, "autoresizingMask">(label())), 2U);
}

TEST_F(CaptionBarTest, TheSizeOfTheReportsTextIsNoneOfItsBusiness) {
  settings.fontSize = 40;
  makeCellWithBar();
  EXPECT_TRUE((send<NSObject, "font">(label()).isEqual(UIFont::systemFont(12))));
}

TEST_F(CaptionBarTest, ASolidBarIsBlackAndNothingElse) {
  const UIView bar = makeCellWithBar();
  EXPECT_EQ(colorOf(bar), (Color{0, 0, 0, 1}));
  EXPECT_FALSE(styleOf(bar).shadowPath);
  EXPECT_EQ(styleOf(bar).shadowOpacity, 0);
  EXPECT_TRUE(CALayerState::of(bar.layer()).sublayers().empty());
}

TEST_F(CaptionBarTest, AFadingBarHasAGradientAndAShadow) {
  settings.thumbnailInfoDisplaySolid = false;
  const UIView bar = makeCellWithBar();
  EXPECT_EQ(colorOf(bar).alpha, 0);
  const CALayerState::Style& style = styleOf(bar);
  EXPECT_FALSE(style.masksToBounds);
  EXPECT_EQ(desktop::uikit::UIColorState::valueOf(style.shadowColor), (Color{0, 0, 0, 1}));
  EXPECT_EQ(style.shadowOffset, (CGSize{0, -2}));
  EXPECT_EQ(style.shadowOpacity, 0.5F);
  EXPECT_EQ(shadowOf(bar), (CGRect{{2, 0}, {89, 20}}));
  const auto& sublayers = CALayerState::of(bar.layer()).sublayers();
  ASSERT_FALSE(sublayers.empty());
  ASSERT_TRUE(isKindOf(sublayers[0].get(), CAGradientLayer::classObject()));
  EXPECT_EQ(CALayerState::of(sublayers[0].get()).frame(), (CGRect{{0, 0}, {93, 20}}));
  const auto& gradient = desktop::uikit::CAGradientLayerState::of(sublayers[0].get());
  EXPECT_EQ(gradient.colors(), (std::vector<Color>{{0, 0, 0, 0}, {0, 0, 0, 1}}));
  EXPECT_EQ(gradient.startPoint(), (CGPoint{0.5, 0}));
  EXPECT_EQ(gradient.endPoint(), (CGPoint{0.5, 1}));
}

TEST_F(CaptionBarTest, AFadingBarsShadowLagsOneLayoutAndItsGradientForGood) {
  settings.thumbnailInfoDisplaySolid = false;
  const UIView bar = makeCellWithBar();
  stateOf(cell).photo->setFrame({{0, 0}, {186, 186}});
  layOut();
  EXPECT_EQ(bar.frame(), (CGRect{{0, 170}, {186, 16}}));
  EXPECT_EQ(shadowOf(bar), (CGRect{{2, 0}, {89, 20}}));
  layOut();
  EXPECT_EQ(shadowOf(bar), (CGRect{{2, 0}, {182, 16}}));
  const auto& sublayers = CALayerState::of(bar.layer()).sublayers();
  ASSERT_FALSE(sublayers.empty());
  EXPECT_EQ(CALayerState::of(sublayers[0].get()).frame(), (CGRect{{0, 0}, {93, 20}}));
}

TEST_F(CaptionBarTest, TheLookIsThatOfItsMakingWhileShadowsFollowTheSetting) {
  const UIView bar = makeCellWithBar();
  settings.thumbnailInfoDisplaySolid = false;
  layOut();
  EXPECT_EQ(colorOf(bar).alpha, 1);
  EXPECT_TRUE(CALayerState::of(bar.layer()).sublayers().empty());
  EXPECT_TRUE(styleOf(bar).shadowPath);
}

TEST_F(CaptionBarTest, StandsOnTheLowerEdgeOfThePhoto) {
  const UIView bar = makeCellWithBar();
  layOut();
  EXPECT_EQ(bar.frame(), (CGRect{{0, 77}, {93, 16}}));
  infoLineHeight = 21;
  stateOf(cell).photo->setFrame({{0, 0}, {93, 120}});
  layOut();
  EXPECT_EQ(bar.frame(), (CGRect{{0, 99}, {93, 21}}));
}

TEST_F(CaptionBarTest, EveryLayoutAsksThePhotoToBringItToTheFront) {
  const UIView bar = makeCellWithBar();
  layOut();
  layOut();
  EXPECT_THAT(photo().broughtToFront, testing::ElementsAre(bar.get(), bar.get()));
  settings.thumbnailInfoDisplay = 0;
  layOut();
  EXPECT_THAT(photo().broughtToFront, testing::SizeIs(2));
}

TEST_F(CaptionBarTest, TheTextStandsOnePointAboveTheBarsEdge) {
  makeCellWithBar();
  layOut();
  layOut();
  EXPECT_EQ(label().frame(), (CGRect{{2, -1}, {89, 16}}));
}

TEST_F(CaptionBarTest, StandsOnTheUpperEdgeWhereABannerHasAText) {
  const UIView bar = makeCellWithBar();
  const auto banner = host::makeBanner(text("LIVE"));
  host::setHelperField(helper, "_textBannerView", banner);
  layOut();
  EXPECT_EQ(bar.frame(), (CGRect{{0, 0}, {93, 16}}));
}

TEST_F(CaptionBarTest, ABannerWithoutATextIsNone) {
  const UIView bar = makeCellWithBar();
  const auto banner = host::makeBanner({});
  host::setHelperField(helper, "_textBannerView", banner);
  layOut();
  EXPECT_EQ(bar.frame().origin.y, 77);
}

TEST_F(CaptionBarTest, ABannersTextMayBeAnything) {
  const UIView bar = makeCellWithBar();
  for (const Object said : {Object(text("")), Object(NSNumber::withInt(0)),
                            Object(makeNew<NSObject>().autorelease())}) {
    const auto banner = host::makeBanner(said);
    host::setHelperField(helper, "_textBannerView", banner);
    layOut();
    EXPECT_EQ(bar.frame().origin.y, 0);
    host::setHelperField(helper, "_textBannerView", {});
  }
}

TEST_F(CaptionBarTest, ABannerThatKnowsOfNoTextDoesNoHarm) {
  const UIView bar = makeCellWithBar();
  const auto banner = makeView<UIView>({});
  host::setHelperField(helper, "_textBannerView", banner);
  layOut();
  EXPECT_EQ(bar.frame().size.width, 93);
  host::setHelperField(helper, "_textBannerView", {});
}

TEST_F(CaptionBarTest, AHelperWithoutTheFieldHasNoBanner) {
  const UIView bar = makeCellWithBar();
  photo().helper = host::makeHelper(HelperFields::none);
  layOut();
  EXPECT_EQ(bar.frame().origin.y, 77);
}

TEST_F(CaptionBarTest, WithoutAHelperOrAPhotoNothingBreaks) {
  const UIView bar = makeCellWithBar();
  photo().helper.reset();
  layOut();
  EXPECT_EQ(bar.frame().origin.y, 77);
  stateOf(cell).photo.reset();
  layOut();
  EXPECT_EQ(bar.frame().size, (CGSize{0, 16}));
}

TEST_F(CaptionBarTest, TurnedOffItIsInvisibleAndStaysSo) {
  const UIView bar = makeCellWithBar();
  layOut();
  const CGRect before = bar.frame();
  settings.thumbnailInfoDisplay = 0;
  EXPECT_EQ((send<CGFloat, "alpha">(bar)), 1) << "until the next layout";
  stateOf(cell).photo->setFrame({{0, 0}, {50, 50}});
  layOut();
  EXPECT_EQ((send<CGFloat, "alpha">(bar)), 0);
  EXPECT_EQ(bar.frame(), before);
  settings.thumbnailInfoDisplay = 1;
  layOut();
  EXPECT_EQ((send<CGFloat, "alpha">(bar)), 0);
  EXPECT_EQ(bar.frame(), (CGRect{{0, 34}, {50, 16}}));
}

TEST_F(CaptionBarTest, WhereItIsTurnedOffNoneIsMade) {
  settings.thumbnailInfoDisplay = 0;
  EXPECT_FALSE(makeCellWithBar());
  layOut();
  EXPECT_EQ(cell->contentView().subviews().count(), 1U);
}

}  // namespace
}  // namespace lumifact
