// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "desktop/uikit/application/application.h"
#include "lumifact/views/lf_presenter.h"
#include "lumifact/views/lumifact_view_controller.h"
#include "tests/lumifact/assets/fake_asset.h"
#include "tests/lumifact/details/class_look_ups.h"
#include "tests/lumifact/details/fake_media.h"
#include "tests/lumifact/details/one_up_test.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using bridge::NSArray;
using bridge::NSObject;
using bridge::NSString;
using bridge::Object;
using bridge::Owned;
using bridge::send;
using bridge::UINavigationController;
using bridge::UIView;
using bridge::UIViewController;
using host::AssetFacts;
using host::fakeMedia;
using host::oneUpAnswers;
using model::Dictionary;

const std::string mainFile = "file:///var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG";
const AssetFacts photo = {.mainFile = mainFile, .pixelWidth = 4032, .pixelHeight = 3024};
const Dictionary properties = {{"Depth", 8}, {"Orientation", 6}};
const std::string header =
    "100APPLE/IMG_0001.JPG\nFile Date: (null)\nFile Size: Zero KB\nAsset Height: 3024\n"
    "Asset Width: 4032\n";

class ViewDetailsTest : public OneUpTest {
 protected:
  ViewDetailsTest() {
    fakeMedia() = {};
    openPhoto();
    host::makeTilingLayout();
    show(photo);
  }

  static void show(const AssetFacts& facts) {
    oneUpAnswers().asset = Owned<Object>::retain(host::makeAsset(facts));
  }
  // Asked for by a bar button item.
  void ask() {
    const auto button = bridge::makeNew<bridge::UIBarButtonItem>();
    askBy(button.get());
  }
  void askBy(NSObject sender) {
    host::viewDetails(controller, sender);
    desktop::uikit::application().advance(1);
  }

  Object presented() const { return send<Object, "presentedViewController">(controller); }
  // The page in what is presented.
  UIViewController page() const { return send<UIViewController, "topViewController">(presented()); }
  std::string alertText() const {
    if (!bridge::isKindOf(presented(), bridge::UIAlertController::classObject())) return "";
    return send<NSString, "title">(presented()).utf8() + "|" +
           send<NSString, "message">(presented()).utf8();
  }
  std::string shownText() const {
    const UIView view = viewOf(page().view(), bridge::UITextView::classObject());
    return bridge::UITextView(view.get()).text().utf8();
  }
  bool isTextPage() const { return bridge::isKindOf(page(), objc_getClass("LFPresenter")); }
  bool isTablePage() const {
    return bridge::isKindOf(page(), objc_getClass("LumifactViewController"));
  }
};

TEST_F(ViewDetailsTest, AStillIsShownAsHeaderAndReportInOneText) {
  fakeMedia().files[mainFile] = properties;
  ask();
  ASSERT_TRUE(isTextPage());
  EXPECT_EQ(shownText(), header + "\nDepth = 8\nOrientation = 90\xC2\xB0 CW - Portrait (6)");
}

TEST_F(ViewDetailsTest, TheButtonOnTheBarAsksForThem) {
  fakeMedia().files[mainFile] = properties;
  host::updateBars();
  settle();
  tap(oneUpState().detailsButton.get());
  EXPECT_TRUE(isTextPage());
}

TEST_F(ViewDetailsTest, ALongPressOnThePhotoAsksForThem) {
  fakeMedia().files[mainFile] = properties;
  const auto tiles = bridge::makeView<UIView>({{0, 100}, {375, 400}});
  controller->view().addSubview(tiles);
  host::setTilingView(controller, tiles);
  longPress(tiles.get());
  EXPECT_TRUE(isTextPage());
}

TEST_F(ViewDetailsTest, ThePagesLeaveNothingBehind) {
  fakeMedia().files[mainFile] = properties;
  for (const int viewType : {1, 2}) {
    const bridge::AutoreleasePool pool;
    settings.viewType = viewType;
    ask();
    tap(labelWith(UIViewController(presented().get()).view(), "Dismiss"));
    EXPECT_FALSE(presented());
  }
  EXPECT_EQ(LFPresenter::liveObjects(), 0);
  EXPECT_EQ(LumifactViewController::liveObjects(), 0);
}

TEST_F(ViewDetailsTest, AnyOtherViewTypeIsTheTables) {
  for (const int viewType : {0, 2, -1}) {
    settings.viewType = viewType;
    fakeMedia().files[mainFile] = properties;
    openPhoto();
    ask();
    EXPECT_TRUE(isTablePage()) << viewType;
  }
  EXPECT_EQ((send<NSString, "title">(page().navigationItem())).utf8(), "IMG_0001.JPG");
}

TEST_F(ViewDetailsTest, TheTableHasTheRewrittenPropertiesBelowTheFileSummary) {
  settings.viewType = 2;
  fakeMedia().files[mainFile] = properties;
  ask();
  ASSERT_TRUE(isTablePage());
  const UIView table = viewOf(page().view(), bridge::UITableView::classObject());
  std::string rows;
  for (NSInteger row = 0; row < 7; ++row) {
    const auto path = send<bridge::NSIndexPath, "indexPathForRow:inSection:">(
        bridge::NSIndexPath::classObject(), row, NSInteger{0});
    const auto cell = send<bridge::UITableViewCell, "cellForRowAtIndexPath:">(table, path);
    rows += cell.textLabel().text().utf8() + " = " + cell.detailTextLabel().text().utf8() + "\n";
  }
  EXPECT_EQ(rows,
            "FilePath = 100APPLE/IMG_0001.JPG\nFileDate = (null)\nFileSize = Zero KB\n"
            "AssetHeight = 3024\nAssetWidth = 4032\nDepth = 8\n"
            "Orientation = 90\xC2\xB0 CW - Portrait (6)\n");
}

TEST_F(ViewDetailsTest, AVideoIsAlwaysText) {
  settings.viewType = 2;
  AssetFacts video = photo;
  video.isVideo = true;
  show(video);
  fakeMedia().files[mainFile] = std::nullopt;
  fakeMedia().videoMetadata = {{"make", "Maker"}};
  ask();
  ASSERT_TRUE(isTextPage());
  EXPECT_EQ(shownText(), header + "make = Maker\n");
}

TEST_F(ViewDetailsTest, WhatOpensAndIsNoImageAndNoVideoShowsNothing) {
  fakeMedia().files[mainFile] = std::nullopt;
  ask();
  EXPECT_FALSE(presented());
}

TEST_F(ViewDetailsTest, ThePageLooksLikeTheViewItCameFrom) {
  fakeMedia().files[mainFile] = properties;
  navigation->navigationBar().setBarStyle(1);
  navigation->navigationBar().setTintColor(bridge::UIColor::greenColor());
  ask();
  const auto bar = UINavigationController(presented().get()).navigationBar();
  EXPECT_EQ(bar.barStyle(), 1);
  EXPECT_TRUE(bar.tintColor().isEqual(bridge::UIColor::greenColor()));
}

// How many items the page's bar has on its right: one without a map.
struct MapCase {
  const char* what;
  Dictionary properties;
  std::optional<model::Location> location;
  NSUInteger items;
};

TEST_F(ViewDetailsTest, AMapIsOfferedWhereAPlaceIsKnown) {
  const Dictionary gps = {
      {"{GPS}",
       Dictionary{
           {"Latitude", 1.0}, {"LatitudeRef", "N"}, {"Longitude", 2.0}, {"LongitudeRef", "E"}}}};
  const MapCase cases[] = {
      {"nothing", properties, {}, 1},
      {"report", gps, {}, 3},
      {"asset", properties, model::Location{1, 2}, 3},
      {"both", gps, model::Location{3, 4}, 3},
  };
  for (const MapCase& row : cases) {
    for (const int viewType : {1, 2}) {
      settings.viewType = viewType;
      openPhoto();
      AssetFacts facts = photo;
      facts.location = row.location;
      show(facts);
      fakeMedia().files[mainFile] = row.properties;
      ask();
      EXPECT_EQ(page().navigationItem().rightBarButtonItems().count(), row.items) << row.what;
    }
  }
}

TEST_F(ViewDetailsTest, TheFontSizeIsTheSettings) {
  settings.fontSize = 20;
  fakeMedia().files[mainFile] = properties;
  ask();
  const UIView view = viewOf(page().view(), bridge::UITextView::classObject());
  EXPECT_EQ((send<double, "pointSize">(send<Object, "font">(view))), 20.0);
}

TEST_F(ViewDetailsTest, ALongPressIsIgnoredWhereTheSettingIsOff) {
  fakeMedia().files[mainFile] = properties;
  settings.useLongPressPhoto = false;
  const auto longPress = bridge::UILongPressGestureRecognizer::make(
      controller.get(), bridge::selector<"LXViewExifData:">());
  askBy(longPress.get());
  EXPECT_FALSE(presented());
  ask();
  EXPECT_TRUE(isTextPage());
}

TEST_F(ViewDetailsTest, ALongPressShowsTheDetailsWhateverItsState) {
  fakeMedia().files[mainFile] = properties;
  const auto longPress = bridge::UILongPressGestureRecognizer::make(
      controller.get(), bridge::selector<"LXViewExifData:">());
  askBy(longPress.get());
  EXPECT_TRUE(isTextPage());
}

TEST_F(ViewDetailsTest, NobodysRequestIsTaken) {
  fakeMedia().files[mainFile] = properties;
  askBy({});
  EXPECT_TRUE(isTextPage());
}

TEST_F(ViewDetailsTest, NothingHappensWithoutATilingLayout) {
  oneUpState().tilingLayout.reset();
  ask();
  EXPECT_FALSE(presented());
}

TEST_F(ViewDetailsTest, AnItemThatIsNotShownIsAnError) {
  oneUpAnswers().hasIndexPath = false;
  ask();
  EXPECT_EQ(alertText(), "Erorr:|Could not find indexPath");
}

TEST_F(ViewDetailsTest, TheClassOfAssetsIsLookedUpOnceAndKept) {
  ask();
  const int lookUps = host::lookUpsOf("PHAsset");
  EXPECT_GT(lookUps, 0);
  openPhoto();
  ask();
  EXPECT_EQ(host::lookUpsOf("PHAsset"), lookUps);
}

TEST_F(ViewDetailsTest, AnItemWithoutAReferenceIsAnError) {
  oneUpAnswers().hasReference = false;
  ask();
  EXPECT_EQ(alertText(), "Erorr:|Could not find assetRef\n(null)");
}

TEST_F(ViewDetailsTest, AReferenceToNoAssetOfTheLibraryIsAnError) {
  oneUpAnswers().asset = Owned<Object>::retain(text("no asset"));
  ask();
  EXPECT_EQ(alertText(), "Erorr:|Could not find assetRef\na reference");
}

TEST_F(ViewDetailsTest, AReferenceToNothingIsAnError) {
  oneUpAnswers().asset = {};
  ask();
  EXPECT_EQ(alertText(), "Erorr:|Could not find assetRef\na reference");
}

TEST_F(ViewDetailsTest, AMissingFileIsAnErrorThatNamesTheMainFile) {
  const std::string lines =
      "Erorr:|Error loading Asset!\nThe full size image/video is missing from your device\n\n";
  ask();
  EXPECT_EQ(alertText(), lines + mainFile);
  openPhoto();
  show({});
  ask();
  EXPECT_EQ(alertText(), lines + "(null)");
}

TEST_F(ViewDetailsTest, AnAlertHasOneButtonThatClosesIt) {
  ask();
  const auto actions = send<NSArray, "actions">(presented());
  ASSERT_EQ(actions.count(), 1U);
  EXPECT_EQ((send<NSString, "title">(actions.at(0))).utf8(), "Ok");
  EXPECT_EQ((send<NSInteger, "style">(actions.at(0))), 1);
  EXPECT_EQ((send<NSInteger, "preferredStyle">(presented())), 1);
  tap(labelWith(window(), "Ok"));
  EXPECT_FALSE(presented());
}

TEST_F(ViewDetailsTest, ThePathShownIsThatOfTheFileThatOpened) {
  AssetFacts facts = photo;
  facts.mediumPreview = "file:///previews/IMG_0001medium.JPG";
  show(facts);
  fakeMedia().files["file:///previews/IMG_0001large.JPG"] = properties;
  ask();
  EXPECT_TRUE(shownText().starts_with("/previews/IMG_0001large.JPG\n")) << shownText();
}

}  // namespace
}  // namespace lumifact
