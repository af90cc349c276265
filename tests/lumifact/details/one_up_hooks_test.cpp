// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/lumifact/details/one_up_test.h"

namespace lumifact {
namespace {

using bridge::NSArray;
using bridge::Object;
using bridge::selector;
using bridge::send;
using bridge::UIBarButtonItem;
using bridge::UIView;
using host::oneUpAnswers;
using testing::ElementsAre;

class OneUpHooksTest : public OneUpTest {
 protected:
  // How many of the view's recognisers send an action to the controller.
  NSUInteger recognizersWith(UIView view, SEL action) const {
    NSUInteger found = 0;
    const NSArray recognizers = view.gestureRecognizers();
    for (NSUInteger index = 0; index < recognizers.count(); ++index)
      if (sendsTo(recognizers.at(index), action)) ++found;
    return found;
  }
  static bool sendsTo(Object recognizer, SEL action) {
    const NSArray targets(bridge::objectField(recognizer, "_targets").get());
    for (NSUInteger index = 0; index < targets.count(); ++index)
      if (bridge::sameSelector(bridge::selectorField(targets.at(index), "_action"), action))
        return true;
    return false;
  }
};

TEST_F(OneUpHooksTest, EachHookCallsTheHostOnce) {
  openPhoto();
  host::makeTilingLayout();
  host::updateBars();
  host::setTilingView(controller, bridge::makeView<UIView>({}));
  send<void, "viewWillDisappear:">(controller, true);
  EXPECT_THAT(oneUpAnswers().calls, ElementsAre("viewDidLoad", "init", "updateBars",
                                                "_setTilingView:", "viewWillDisappear:"));
}

TEST_F(OneUpHooksTest, TheLastTilingLayoutIsKept) {
  host::makeTilingLayout();
  const Object first = oneUpState().tilingLayout.get();
  host::makeTilingLayout();
  EXPECT_TRUE(first);
  EXPECT_TRUE(oneUpState().tilingLayout);
  EXPECT_NE(oneUpState().tilingLayout.get(), first);
}

TEST_F(OneUpHooksTest, TheDetailsStandBehindTheHostsItemsOnce) {
  openPhoto();
  const auto own = UIBarButtonItem::withTitle(text("Edit"), UIBarButtonItem::plain, {}, nullptr);
  const NSArray hosts = NSArray::of(own.get());
  controller->navigationItem().setRightBarButtonItems(hosts);
  for (int count = 0; count < 3; ++count) host::updateBars();
  ASSERT_EQ(rightItems().count(), 3U);
  EXPECT_EQ(rightItems().at(0), own.get());
  EXPECT_EQ(rightItems().at(1), oneUpState().spacer.get());
  EXPECT_EQ(rightItems().at(2), oneUpState().detailsItem.get());
  EXPECT_EQ(hosts.count(), 1U);
  EXPECT_EQ((send<double, "width">(oneUpState().spacer)), 20.0);
  EXPECT_EQ((send<NSInteger, "buttonType">(oneUpState().detailsButton)), 3);
  EXPECT_EQ((send<Object, "customView">(oneUpState().detailsItem)),
            oneUpState().detailsButton.get());
}

TEST_F(OneUpHooksTest, ABarWithoutItemsGetsThem) {
  openPhoto();
  EXPECT_EQ(rightItems().count(), 0U);
  host::updateBars();
  EXPECT_EQ(rightItems().count(), 2U);
}

TEST_F(OneUpHooksTest, ABarThatTheHostMadeAnewGetsThemAgain) {
  openPhoto();
  host::updateBars();
  controller->navigationItem().setRightBarButtonItems({});
  host::updateBars();
  EXPECT_EQ(rightItems().count(), 2U);
}

TEST_F(OneUpHooksTest, AViewThatIsLoadedAgainGetsANewDetailsItem) {
  openPhoto();
  host::updateBars();
  const Object before = oneUpState().detailsItem.get();
  send<void, "viewDidLoad">(controller);
  host::updateBars();
  host::updateBars();
  EXPECT_NE(oneUpState().detailsItem.get(), before);
  ASSERT_EQ(rightItems().count(), 4U);
  EXPECT_EQ(rightItems().at(3), oneUpState().detailsItem.get());
}

TEST_F(OneUpHooksTest, NothingIsAddedWhereTheSettingIsOff) {
  settings.useNavigationButton = false;
  openPhoto();
  host::updateBars();
  EXPECT_EQ(rightItems().count(), 0U);
}

TEST_F(OneUpHooksTest, NothingIsAddedToAPreview) {
  oneUpAnswers().isPreview = true;
  openPhoto();
  host::updateBars();
  EXPECT_EQ(rightItems().count(), 0U);
  EXPECT_FALSE(oneUpState().controller);
}

TEST_F(OneUpHooksTest, APreviewTakesThePlaceOfThePhotoBefore) {
  openPhoto();
  oneUpAnswers().isPreview = true;
  const auto preview = host::makeOneUpViewController();
  preview->view();
  EXPECT_FALSE(oneUpState().controller);
}

TEST_F(OneUpHooksTest, NothingIsAddedOnceTheViewWentAway) {
  openPhoto();
  send<void, "viewWillDisappear:">(controller, false);
  host::updateBars();
  EXPECT_EQ(rightItems().count(), 0U);
}

TEST_F(OneUpHooksTest, APhotoHasOneLongPressHoweverOftenItIsSet) {
  openPhoto();
  const auto tiles = bridge::makeView<UIView>({});
  for (int count = 0; count < 3; ++count) host::setTilingView(controller, tiles);
  EXPECT_EQ(recognizersWith(tiles, selector<"LXViewExifData:">()), 1U);
  EXPECT_EQ(tiles->gestureRecognizers().count(), 1U);
}

TEST_F(OneUpHooksTest, EveryTilingViewHasItsOwnLongPress) {
  openPhoto();
  for (int count = 0; count < 2; ++count) {
    const auto tiles = bridge::makeView<UIView>({});
    host::setTilingView(controller, tiles);
    EXPECT_EQ(recognizersWith(tiles, selector<"LXViewExifData:">()), 1U);
  }
}

TEST_F(OneUpHooksTest, ARecogniserWithAnotherActionIsLeftAlone) {
  openPhoto();
  const auto tiles = bridge::makeView<UIView>({});
  const auto other =
      bridge::UILongPressGestureRecognizer::make(controller.get(), selector<"otherAction:">());
  tiles->addGestureRecognizer(other.get());
  host::setTilingView(controller, tiles);
  EXPECT_EQ(tiles->gestureRecognizers().count(), 2U);
  EXPECT_EQ(recognizersWith(tiles, selector<"otherAction:">()), 1U);
  EXPECT_EQ(recognizersWith(tiles, selector<"LXViewExifData:">()), 1U);
}

TEST_F(OneUpHooksTest, NoLongPressIsAddedWhereTheSettingIsOffOrNothingIsThere) {
  openPhoto();
  host::setTilingView(controller, {});
  settings.useLongPressPhoto = false;
  const auto tiles = bridge::makeView<UIView>({});
  host::setTilingView(controller, tiles);
  EXPECT_EQ(tiles->gestureRecognizers().count(), 0U);
}

TEST_F(OneUpHooksTest, TheLongPressNeedsNoButton) {
  settings.useNavigationButton = false;
  openPhoto();
  const auto tiles = bridge::makeView<UIView>({});
  host::setTilingView(controller, tiles);
  EXPECT_EQ(tiles->gestureRecognizers().count(), 1U);
}

}  // namespace
}  // namespace lumifact
