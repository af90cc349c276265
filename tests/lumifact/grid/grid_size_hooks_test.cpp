// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ca_layer.h"
#include "lumifact/grid/grid_size_button.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/grid/grid_host_test.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using host::gridCalls;
using host::HostLayout;
using testing::ElementsAre;

// Of all albums but those that a test colours otherwise.
UIColor ownTint() {
  return UIColor::white(0.25, 1);
}

class GridSizeTest : public GridHostTest {
 protected:
  GridSizeTest() {
    settings.useGridSizeButton = true;
    album = makeAlbum("PUPhotosAlbumViewController");
    gridCalls().clear();
  }
  ~GridSizeTest() override {
    if (isReduced()) press();
    for (const auto& each : _albums) forget(each);
  }

  // With a layout, and with an item of the host's on its bar.
  Owned<PUPhotosAlbumViewController> makeAlbum(const char* className) {
    auto made = makeNew<PUPhotosAlbumViewController>(objc_getClass(className));
    const auto layout = makeNew<NSObject>(HostLayout::classObject());
    HostLayout::of(layout.get()).owner = made;
    host::HostAlbum::of(made.get()).layout = layout;
    const auto select =
        UIBarButtonItem::withTitle(text("Select"), UIBarButtonItem::plain, {}, nullptr);
    made->navigationItem().setRightBarButtonItems(NSArray::of(select.get()));
    send<void, "setTintColor:">(made->view(), ownTint());
    _albums.push_back(made);
    return made;
  }
  HostLayout& layout() const { return HostLayout::of(album->mainGridLayout()); }
  CGSize sizeForColumn(NSInteger column) const {
    return send<CGSize, "layoutItemSizeForColumn:">(album->mainGridLayout(), column);
  }
  // What the layout is given in the end where it is given 93 by 93.
  CGSize sizeThatIsSet() const {
    send<void, "setItemSize:">(album->mainGridLayout(), CGSize{93, 93});
    return layout().sizes.back();
  }
  bool isReduced() const { return sizeThatIsSet() != CGSize{93, 93}; }
  void press() const { send<void, "LFChangeGridsize:">(album, Object()); }
  void updateFooter() const { send<void, "updateGlobalFooter">(album); }
  NSArray items() const { return album->navigationItem().rightBarButtonItems(); }

  Owned<PUPhotosAlbumViewController> album;

 private:
  // The button is kept for good, its targets are not.
  static void forget(NSObject target) {
    if (const auto button = send<UIButton, "customView">(gridSizeItem()))
      send<void, "removeTarget:action:forControlEvents:">(
          button, target, selector<"LFChangeGridsize:">(), NSUInteger{touchUpInside});
  }

  std::vector<Owned<PUPhotosAlbumViewController>> _albums;
};

TEST_F(GridSizeTest, TheButtonStandsLeftOfTheHostsItems) {
  updateFooter();
  ASSERT_EQ(items().count(), 3U);
  EXPECT_EQ((send<NSString, "title">(items().at(0)).utf8()), "Select");
  EXPECT_EQ((send<NSInteger, "tag">(items().at(2))), 95433);
  EXPECT_EQ(items().at(2), gridSizeItem());
  EXPECT_THAT(gridCalls(), ElementsAre("updateGlobalFooter"));
}

TEST_F(GridSizeTest, ASpaceOfAFixedWidthStandsBetween) {
  updateFooter();
  const auto& spacer = desktop::uikit::UIBarButtonItemState::of(items().at(1).get());
  EXPECT_EQ(spacer.systemItem(), 6);
  EXPECT_EQ(spacer.width(), 10);
  EXPECT_FALSE(spacer.target());
  EXPECT_FALSE(spacer.action());
}

TEST_F(GridSizeTest, TheButtonIsASmallCircleWithALetter) {
  updateFooter();
  const auto button = send<UIButton, "customView">(items().at(2));
  EXPECT_EQ((send<NSInteger, "buttonType">(button)), 0);
  EXPECT_EQ(button.frame().size, (CGSize{20, 20}));
  for (const NSUInteger state : {0UL, 1UL})
    EXPECT_EQ((send<NSString, "titleForState:">(button, state)).utf8(), "G");
  EXPECT_TRUE((send<NSObject, "titleColorForState:">(button, NSUInteger{0})).isEqual(ownTint()));
  EXPECT_TRUE(
      (send<NSObject, "titleColorForState:">(button, NSUInteger{1})).isEqual(UIColor::grayColor()));
  EXPECT_EQ((send<NSInteger, "numberOfLines">(button.titleLabel())), 1);
  EXPECT_TRUE((send<bool, "adjustsFontSizeToFitWidth">(button.titleLabel())));
  EXPECT_EQ((send<NSInteger, "lineBreakMode">(button.titleLabel())), 2);
  EXPECT_EQ(desktop::uikit::UIColorState::valueOf(send<Object, "backgroundColor">(button)).alpha,
            0);
  const auto& style = desktop::uikit::CALayerState::of(button.layer()).style();
  EXPECT_EQ(style.cornerRadius, 10);
  EXPECT_TRUE(style.masksToBounds);
  EXPECT_EQ(style.borderWidth, 1);
  EXPECT_TRUE(NSObject(style.borderColor->get())
                  .isEqual(send<Object, "titleColorForState:">(button, NSUInteger{0})));
}

TEST_F(GridSizeTest, TheButtonKeepsTheTintOfTheAlbumItWasMadeIn) {
  updateFooter();
  const auto button = send<UIButton, "customView">(items().at(2));
  const auto other = makeAlbum("PUPhotosAlbumViewController");
  send<void, "setTintColor:">(other->view(), UIColor::greenColor());
  send<void, "addGridSizeButton">(other);
  const NSArray otherItems = other->navigationItem().rightBarButtonItems();
  EXPECT_EQ(otherItems.at(2), items().at(2)) << "one button for all";
  EXPECT_EQ(otherItems.at(1), items().at(1));
  EXPECT_TRUE((send<NSObject, "titleColorForState:">(button, NSUInteger{0})).isEqual(ownTint()));
}

TEST_F(GridSizeTest, TheButtonIsAddedOnce) {
  for (int count = 0; count < 2; ++count) send<void, "addGridSizeButton">(album);
  updateFooter();
  EXPECT_EQ(items().count(), 3U);
}

TEST_F(GridSizeTest, TheHostsOwnListOfItemsIsNotChanged) {
  const NSArray before = items();
  updateFooter();
  EXPECT_EQ(before.count(), 1U);
}

TEST_F(GridSizeTest, ABarWithoutItemsGetsNoButton) {
  album->navigationItem().setRightBarButtonItems({});
  updateFooter();
  EXPECT_EQ(items().count(), 0U);
}

TEST_F(GridSizeTest, TheFooterAsksTheAlbumForItsButtonByMessage) {
  static int asked = 0;
  const Class busy = victims::ClassMaker("BusyAlbum", "PUPhotosAlbumViewController")
                         .method(
                             "addGridSizeButton", +[](id, SEL) { ++asked; })
                         .build();
  send<void, "updateGlobalFooter">(makeNew<PUPhotosAlbumViewController>(busy));
  EXPECT_EQ(asked, 1);
}

TEST_F(GridSizeTest, WhereTheSettingIsOffThereIsNoButton) {
  settings.useGridSizeButton = false;
  updateFooter();
  EXPECT_EQ(items().count(), 1U);
}

TEST_F(GridSizeTest, ThePressMeasuresTheGridAnew) {
  press();
  EXPECT_THAT(gridCalls(), ElementsAre("invalidateLayout", "updateLayoutMetrics"));
  EXPECT_EQ(sizeThatIsSet(), (CGSize{185.5, 185.5}));
  for (const NSInteger column : {0, 1, 3, 100})
    EXPECT_EQ(sizeForColumn(column), (CGSize{186.5, 186.5})) << column;
  press();
  EXPECT_EQ(sizeForColumn(0), (CGSize{93, 93}));
  EXPECT_EQ(sizeThatIsSet(), (CGSize{93, 93}));
  press();
  EXPECT_TRUE(isReduced());
}

TEST_F(GridSizeTest, ATapOnTheButtonIsAPress) {
  updateFooter();
  const auto button = send<UIButton, "customView">(gridSizeItem());
  send<void, "sendActionsForControlEvents:">(button, ~NSUInteger{touchUpInside});
  EXPECT_FALSE(isReduced());
  send<void, "sendActionsForControlEvents:">(button, NSUInteger{touchUpInside});
  EXPECT_TRUE(isReduced());
}

TEST_F(GridSizeTest, EveryAlbumFollows) {
  press();
  const auto other = makeAlbum("PUCloudSharedAlbumViewController");
  EXPECT_EQ((send<CGSize, "layoutItemSizeForColumn:">(other->mainGridLayout(), NSInteger{0})),
            (CGSize{186.5, 186.5}));
}

TEST_F(GridSizeTest, WhatWasChosenStaysWhenTheSettingIsTurnedOff) {
  press();
  settings.useGridSizeButton = false;
  EXPECT_EQ(sizeForColumn(0), (CGSize{186.5, 186.5}));
  EXPECT_TRUE(isReduced());
}

TEST_F(GridSizeTest, OtherGridsKeepTheirSize) {
  press();
  const auto other = host::makeGrid("PUPhotosGridViewController");
  for (const NSObject owner :
       {NSObject(other.get()), NSObject(), NSObject(makeNew<NSObject>().autorelease())}) {
    layout().owner = owner;
    EXPECT_EQ(sizeForColumn(0), (CGSize{93, 93}));
    EXPECT_EQ(sizeThatIsSet(), (CGSize{93, 93}));
  }
  layout().owner = album;
}

TEST_F(GridSizeTest, ALayoutWithFewColumnsKeepsItsSizePerColumn) {
  press();
  for (const NSInteger columns : {2, 1, 0, -3}) {
    layout().columns = columns;
    EXPECT_EQ(sizeForColumn(0), (CGSize{93, 93})) << columns;
    EXPECT_EQ(sizeThatIsSet(), (CGSize{185.5, 185.5})) << columns;
  }
  layout().columns = 4;
}

TEST_F(GridSizeTest, ManyColumnsAndWideSpacesFollowTheSameFormula) {
  press();
  layout().columns = 20;
  EXPECT_FLOAT_EQ(static_cast<float>(sizeForColumn(0).width), 375.0F / 18 - 17);
  layout().columns = 8;
  layout().spacing = 2;
  EXPECT_EQ(sizeForColumn(0), (CGSize{52.5, 52.5}));
  EXPECT_EQ(sizeThatIsSet(), (CGSize{183.5, 183.5}));
}

TEST_F(GridSizeTest, AnAlbumWithoutALayoutIsPressedWithoutHarm) {
  const Owned<NSObject> kept = host::HostAlbum::of(album.get()).layout;
  host::HostAlbum::of(album.get()).layout.reset();
  press();
  EXPECT_THAT(gridCalls(), ElementsAre("updateLayoutMetrics"));
  host::HostAlbum::of(album.get()).layout = kept;
}

}  // namespace
}  // namespace lumifact
