// SPDX-License-Identifier: MIT
//
// The framework headers over a host that has none of their classes, and over small stand-ins.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "bridge/avfoundation.h"
#include "bridge/photos.h"
#include "tests/bridge/victims.h"

namespace bridge {
namespace {

TEST(Frameworks, AHostWithoutTheirClassesAnswersNilAndZero) {
  const AutoreleasePool pool;
  EXPECT_FALSE(UIFont::systemFont(12));
  EXPECT_FALSE(UIColor::white(0, 1).withAlpha(0.45));
  EXPECT_FALSE(makeView<UILabel>({{0, 0}, {10, 20}}));
  EXPECT_FALSE(UIBarButtonItem::withTitle(NSString::make("Done"), UIBarButtonItem::done, {},
                                          selector<"touched:">()));
  EXPECT_EQ(UIScreen::mainScreen().bounds(), CGRect());
  EXPECT_FALSE(AVURLAsset::withURL(NSURL::withString(NSString::make("file:///a.mov"))));
  EXPECT_FALSE(as<PHAsset>(NSString::make("no asset")));
  EXPECT_EQ(PHAsset().location().coordinate().latitude, 0.0);
}

TEST(Frameworks, RectanglesContainTheirUpperLeftEdgesOnly) {
  const CGRect rect = {{10, 20}, {30, 40}};
  EXPECT_TRUE(contains(rect, {10, 20}));
  EXPECT_TRUE(contains(rect, {39.5, 59.5}));
  EXPECT_FALSE(contains(rect, {40, 30}));
  EXPECT_FALSE(contains(rect, {20, 60}));
  EXPECT_FALSE(contains({}, {0, 0}));
}

TEST(Frameworks, StructuresHaveThePlatformsEncodings) {
  EXPECT_EQ((encodingOf<CGRect(id, SEL, CGSize)>), "{CGRect={CGPoint=dd}{CGSize=dd}}@:{CGSize=dd}");
  EXPECT_EQ((encodingOf<void(id, SEL, NSRange)>), "v@:{_NSRange=QQ}");
  EXPECT_EQ(encodingOf<CGAffineTransform>, "{CGAffineTransform=dddddd}");
  EXPECT_EQ(encodingOf<CMTimeRange>, "{?={?=qiIq}{?=qiIq}}");
}

TEST(Frameworks, HandlesReachTheMethodsOfTheHostsObjects) {
  static std::vector<std::string> calls;
  static const Class controller =
      victims::ClassMaker("StandInController")
          .method(
              "presentViewController:animated:completion:",
              +[](id, SEL, id, BOOL animated, const BlockHeader* completion) {
                calls.push_back(animated ? "animated" : "at once");
                Block<void()>::retain(completion)();
              })
          .method(
              "numberOfItemsInSection:", +[](id, SEL, NSInteger section) { return section + 3; })
          .method(
              "interItemSpacing",
              +[](id, SEL) {
                return CGSize{1.5, 2};
              })
          .method(
              "exifOrientation", +[](id, SEL) -> short { return -6; })
          .build();
  const auto object = victims::make(controller);
  UIViewController(object.get().get())
      .present(UIViewController(), UIViewController::animated,
               Block<void()>([] { calls.push_back("done"); }));
  EXPECT_EQ(calls, (std::vector<std::string>{"animated", "done"}));
  EXPECT_EQ(UICollectionView(object.get().get()).numberOfItemsInSection(4), 7);
  EXPECT_EQ(PUSectionedGridLayout(object.get().get()).interItemSpacing(), 1.5)
      << "read right whether the host answers one number or a size";
  EXPECT_EQ(PHAsset(object.get().get()).exifOrientation(), -6);
  EXPECT_FALSE(UIViewController(object.get().get()).popoverPresentationController());
}

}  // namespace
}  // namespace bridge
