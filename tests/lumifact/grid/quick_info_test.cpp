// SPDX-License-Identifier: MIT
#include "lumifact/grid/quick_info.h"

#include <gmock/gmock.h>

#include <limits>

#include "desktop/uikit/views/ui_view.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/grid/grid_host_test.h"
#include "tests/lumifact/views/shown_views.h"
#include "tests/support/temporary_folder.h"

namespace lumifact {
namespace {

using host::AssetFacts;
using host::fileCalls;
using testing::HasSubstr;
using testing::StartsWith;

class QuickInfoTest : public GridHostTest {
 protected:
  QuickInfoTest() {
    settings.thumbnailQuickInfo = 1;
    fileCalls().sizeOfAll = 2'400'000;
    grid = host::makeGrid("PUPhotosGridViewController");
    window().setRootViewController(grid);
  }

  // The summary in the box.
  std::string summary(const AssetFacts& facts) const {
    show(facts);
    const UIView view = box();
    const std::string shown =
        UITextView(viewOf(view, UITextView::classObject()).get()).text().utf8();
    view.removeFromSuperview();
    return shown;
  }
  void show(const AssetFacts& facts) const { showQuickInfo(grid, host::makeAsset(facts)); }
  UIView box() const { return viewOf(grid->view(), LumifactPopUpViewController::classObject()); }
  UIAlertController alert() const {
    return send<UIAlertController, "presentedViewController">(grid);
  }

  Owned<PUPhotosGridViewController> grid;
};

TEST_F(QuickInfoTest, TheBoxHasALabelForEveryLine) {
  AssetFacts placed = samplePhoto;
  placed.place = Owned<Object>::retain(text("Greenwich"));
  EXPECT_EQ(summary(placed),
            "/photos/IMG_0001.JPG\nFile Date: Sep 30, 2018 at 2:03:20 PM\nFile Size: 2.4 MB\n"
            "Width: 4032\nHeight: 3024\nOrientation: 90\xC2\xB0 CW - Portrait (6)\n"
            "Location: Greenwich");
}

TEST_F(QuickInfoTest, TheBoxCoversTheGridsViewAndZoomsIn) {
  constexpr CGRect bounds = {{0, 40}, {375, 600}};
  grid->view().setBounds(bounds);
  show(samplePhoto);
  EXPECT_EQ((send<Object, "superview">(box())), grid->view());
  EXPECT_EQ(box().frame(), bounds);
  EXPECT_EQ(desktop::uikit::UIViewState::of(box()).shown().alpha, 0);
  settle();
  EXPECT_EQ(desktop::uikit::UIViewState::of(box()).shown().alpha, 1);
}

TEST_F(QuickInfoTest, AnyOtherValueIsTheAlert) {
  AssetFacts placed = samplePhoto;
  placed.place = Owned<Object>::retain(text("Greenwich"));
  for (const int value : {2, 0, -1, 7}) {
    createFileSizeCache();
    settings.thumbnailQuickInfo = value;
    show(placed);
    EXPECT_EQ((send<NSString, "title">(alert()).utf8()), "");
    EXPECT_EQ((send<NSString, "message">(alert()).utf8()),
              "/photos/IMG_0001.JPG\nSep 30, 2018 at 2:03:20 PM\n2.4 MB\n4032 x 3024\n"
              "90\xC2\xB0 CW - Portrait (6)\nGreenwich")
        << value;
    EXPECT_EQ((send<NSInteger, "preferredStyle">(alert())), 1);
    alert().dismiss(UIViewController::immediately, {});
    settle();
    EXPECT_FALSE(alert());
  }
  EXPECT_FALSE(box());
}

TEST_F(QuickInfoTest, TheAlertHasOneOrdinaryButtonThatClosesIt) {
  settings.thumbnailQuickInfo = 2;
  show(samplePhoto);
  settle();
  const auto actions = send<NSArray, "actions">(alert());
  ASSERT_EQ(actions.count(), 1U);
  EXPECT_EQ((send<NSString, "title">(actions.at(0)).utf8()), "Ok");
  EXPECT_EQ((send<NSInteger, "style">(actions.at(0))), 0);
  tap(labelWith(alert().view(), "Ok"));
  EXPECT_FALSE(alert());
}

// What a grid is asked to present: how, and whether somebody waits until it has.
struct Presented {
  Class what = nullptr;
  bool isAnimated = true;
  bool isAwaited = true;
};
Presented presented;
void notePresented(id, SEL, id controller, BOOL animated, id completion) {
  presented = {object_getClass(controller), animated != 0, completion != nullptr};
}

TEST_F(QuickInfoTest, TheAlertIsThereAtOnceAndAwaitedByNobody) {
  settings.thumbnailQuickInfo = 2;
  const Class noting = victims::ClassMaker("NotingGrid", "PUPhotosGridViewController")
                           .method("presentViewController:animated:completion:", &notePresented)
                           .build();
  grid = makeNew<PUPhotosGridViewController>(noting);
  show(samplePhoto);
  EXPECT_EQ(presented.what, UIAlertController::classObject());
  EXPECT_FALSE(presented.isAnimated);
  EXPECT_FALSE(presented.isAwaited);
}

TEST_F(QuickInfoTest, AVideoHasADurationAndNoOrientation) {
  AssetFacts video = samplePhoto;
  video.isVideo = true;
  video.duration = 75.25;
  EXPECT_THAT(summary(video), testing::EndsWith("Height: 3024\nDuration: 00:01:15.250"));
}

TEST_F(QuickInfoTest, APixelSizeIsSigned) {
  AssetFacts facts = samplePhoto;
  facts.pixelWidth = std::numeric_limits<unsigned long>::max();
  EXPECT_THAT(summary(facts), HasSubstr("\nWidth: -1\nHeight: 3024\n"));
}

TEST_F(QuickInfoTest, SizesOfAllLengthsAreWorded) {
  const struct {
    std::uint64_t bytes;
    const char* first;
    const char* later;
  } rows[] = {
      {0, "Zero KB", "Zero KB"},
      {3'000'000'000, "3 GB", "-1.29 GB"},
      {16'000'000'000'000, "16 TB", "1.25 GB"},
      {std::numeric_limits<std::int64_t>::max(), "9,223.37 PB", "-1 byte"},
  };
  for (const auto& row : rows) {
    createFileSizeCache();
    fileCalls().sizeOfAll = row.bytes;
    for (const char* size : {row.first, row.later})
      EXPECT_THAT(summary(samplePhoto), HasSubstr("File Size: " + std::string(size) + "\n"));
  }
}

TEST_F(QuickInfoTest, TheSizeMayBeThatOfAPreviewAndThePathIsNot) {
  const support::TemporaryFolder files;
  files.write("IMG_0001full.JPG", std::string(7'000, 'x'));
  fileCalls().sizeOfAll.reset();
  AssetFacts facts = samplePhoto;
  facts.mainFile = "file://" + files.file("IMG_0001.JPG");
  facts.fullsizeImage = "file://" + files.file("IMG_0001full.JPG");
  const std::string said = summary(facts);
  EXPECT_THAT(said, StartsWith(files.file("IMG_0001.JPG") + "\n"));
  EXPECT_THAT(said, HasSubstr("File Size: 7 KB\n"));
}

TEST_F(QuickInfoTest, APathIsShownAsItsLinkHasIt) {
  const struct {
    const char* link;
    const char* shown;
  } rows[] = {
      {"file:///photos/a%20b.jpg", "/photos/a%20b.jpg\n"},
      {"file:///var/mobile/Media/DCIM/x.jpg", "x.jpg\n"},
      {"http://example.org/x.jpg", "http://example.org/x.jpg\n"},
      {"/var/mobile/Media/DCIM/x.jpg", "x.jpg\n"},
      {"", "(null)\n"},
  };
  for (const auto& row : rows) {
    AssetFacts facts = samplePhoto;
    facts.mainFile = row.link;
    EXPECT_THAT(summary(facts), StartsWith(row.shown)) << row.link;
  }
}

TEST_F(QuickInfoTest, PlacesAreShownAsTheyAre) {
  const std::string strange = "A\x01\x02\n\tB \xE2\x80\x8F\xD7\xA9\xE2\x80\xAE end";
  AssetFacts facts = samplePhoto;
  facts.place = Owned<Object>::retain(text(strange));
  EXPECT_THAT(summary(facts), testing::EndsWith("\nLocation: " + strange));
  facts.place = Owned<Object>::retain(text(""));
  EXPECT_THAT(summary(facts), testing::EndsWith("\nLocation: "));
  facts.place = Owned<Object>::retain(NSNumber::withInt(5));
  EXPECT_THAT(summary(facts), testing::EndsWith("Portrait (6)"));
}

TEST_F(QuickInfoTest, APlaceOfAMegabyteIsShownWhole) {
  settings.thumbnailQuickInfo = 2;
  AssetFacts facts = samplePhoto;
  facts.place = Owned<Object>::retain(text(std::string(1'000'000, 'p')));
  show(facts);
  EXPECT_GT((send<NSString, "message">(alert()).length()), 1'000'000U);
}

TEST_F(QuickInfoTest, AnAssetThatKnowsNothingIsAnswered) {
  EXPECT_EQ(summary({}),
            "(null)\nFile Date: (null)\nFile Size: Zero KB\nWidth: 0\nHeight: 0\n"
            "Orientation: 0\xC2\xB0 - Landscape (1)");
}

}  // namespace
}  // namespace lumifact
