// SPDX-License-Identifier: MIT
#include "lumifact/grid/badge_place.h"

#include <gmock/gmock.h>

#include "bridge/corefoundation.h"
#include "lumifact/grid/visibility.h"
#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using host::HelperFields;

class BadgePlaceTest : public GridHostTest {
 protected:
  BadgePlaceTest() { use(HelperFields::both); }
  ~BadgePlaceTest() override {
    kCFCoreFoundationVersionNumber = version;
    leave("PUAlbumListViewController");
    leave("PUPhotosPanoramaViewController");
  }

  void use(HelperFields fields) {
    helper = host::makeHelper(fields);
    for (auto* badge : {&current, &former}) {
      *badge = makeView<UIView>({{3, 70}, {40, 20}});
      helper->contentView().addSubview(badge->get());
    }
    if (fields != HelperFields::oldTimes && fields != HelperFields::none)
      host::setHelperField(helper, "__badgeView", current);
    if (fields == HelperFields::oldTimes || fields == HelperFields::both)
      host::setHelperField(helper, "_badgeView", former);
  }
  void layOut() const { send<void, "layoutSubviewsOfContentView">(helper); }

  static void appear(const char* className) {
    const auto controller = makeNew<UIViewController>(objc_getClass(className));
    send<void, "viewWillAppear:">(controller, true);
  }
  static void leave(const char* className) {
    const auto controller = makeNew<UIViewController>(objc_getClass(className));
    send<void, "viewWillDisappear:">(controller, true);
  }

  static constexpr CGRect untouched = {{3, 70}, {40, 20}};
  static constexpr CGRect lifted = {{3, 57}, {40, 20}};  // 93 - 16 - 20

  const double version = kCFCoreFoundationVersionNumber;
  Owned<PUPhotoViewContentHelper> helper;
  Owned<UIView> current;
  Owned<UIView> former;
};

TEST_F(BadgePlaceTest, TheHostPlacesItFirst) {
  layOut();
  EXPECT_THAT(host::gridCalls(), testing::ElementsAre("layoutSubviewsOfContentView"));
}

TEST_F(BadgePlaceTest, ItStandsAboveTheCaption) {
  layOut();
  EXPECT_EQ(current->frame(), lifted);
  layOut();
  EXPECT_EQ(current->frame(), lifted) << "and stays there";
  infoLineHeight = 30;
  layOut();
  EXPECT_EQ(current->frame().origin.y, 43);
}

TEST_F(BadgePlaceTest, TheFieldIsThatOfTheSystemsVersion) {
  const struct {
    double version;
    bool isCurrent;
  } rows[] = {{1556, true}, {1348.0, true}, {1347.9, false}, {1280, false}, {0, false}};
  for (const auto& row : rows) {
    kCFCoreFoundationVersionNumber = row.version;
    use(HelperFields::both);
    layOut();
    EXPECT_EQ(current->frame(), row.isCurrent ? lifted : untouched) << row.version;
    EXPECT_EQ(former->frame(), row.isCurrent ? untouched : lifted) << row.version;
  }
}

TEST_F(BadgePlaceTest, AFieldThatIsMissingIsNoBadge) {
  use(HelperFields::oldTimes);
  layOut();
  EXPECT_EQ(former->frame(), untouched);
  kCFCoreFoundationVersionNumber = 1300;
  layOut();
  EXPECT_EQ(former->frame(), lifted);
  use(HelperFields::today);
  layOut();
  EXPECT_EQ(current->frame(), untouched);
  use(HelperFields::none);
  layOut();
  EXPECT_EQ(current->frame(), untouched);
}

TEST_F(BadgePlaceTest, AnEmptyFieldIsNoBadge) {
  host::setHelperField(helper, "__badgeView", {});
  layOut();
  EXPECT_EQ(former->frame(), untouched);
}

TEST_F(BadgePlaceTest, WithoutCaptionsItIsLeftAlone) {
  settings.thumbnailInfoDisplay = 0;
  layOut();
  EXPECT_EQ(current->frame(), untouched);
  settings.thumbnailInfoDisplay = 4;
  layOut();
  EXPECT_EQ(current->frame(), lifted);
}

TEST_F(BadgePlaceTest, BesideABannerItIsLeftAlone) {
  const auto banner = host::makeBanner(text("LIVE"));
  host::setHelperField(helper, "_textBannerView", banner);
  layOut();
  EXPECT_EQ(current->frame(), untouched);
  host::setHelperField(helper, "_textBannerView", host::makeBanner({}).autorelease());
  layOut();
  EXPECT_EQ(current->frame(), lifted);
}

TEST_F(BadgePlaceTest, InTheAlbumListItIsLeftAlone) {
  appear("PUAlbumListViewController");
  EXPECT_TRUE(isAlbumListVisible());
  layOut();
  EXPECT_EQ(current->frame(), untouched);
  leave("PUAlbumListViewController");
  EXPECT_FALSE(isAlbumListVisible());
  layOut();
  EXPECT_EQ(current->frame(), lifted);
}

TEST_F(BadgePlaceTest, InAPanoramaViewItIsQuarteredByEveryLayout) {
  appear("PUPhotosPanoramaViewController");
  EXPECT_TRUE(isPanoramaVisible());
  layOut();
  EXPECT_EQ(current->frame(), (CGRect{{3, 70}, {10, 20}}));
  layOut();
  EXPECT_EQ(current->frame(), (CGRect{{3, 70}, {2.5, 20}}));
  leave("PUPhotosPanoramaViewController");
  layOut();
  EXPECT_EQ(current->frame(), (CGRect{{3, 57}, {2.5, 20}}));
}

TEST_F(BadgePlaceTest, InAPanoramaViewItComesToTheFront) {
  const NSArray before = helper->contentView().subviews();
  EXPECT_EQ(before.at(before.count() - 1), former.get());
  appear("PUPhotosPanoramaViewController");
  layOut();
  const NSArray after = helper->contentView().subviews();
  EXPECT_EQ(after.at(after.count() - 1), current.get());
}

TEST_F(BadgePlaceTest, AListAboveAPanoramaViewDecides) {
  appear("PUPhotosPanoramaViewController");
  appear("PUAlbumListViewController");
  layOut();
  EXPECT_EQ(current->frame(), untouched);
}

TEST_F(BadgePlaceTest, AHelperWithoutAViewDoesNoHarm) {
  host::HostHelper::of(helper->get()).contentView.reset();
  layOut();
  EXPECT_EQ(current->frame().origin.y, -36);
}

}  // namespace
}  // namespace lumifact
