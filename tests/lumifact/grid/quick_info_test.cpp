// SPDX-License-Identifier: MIT
#include "lumifact/grid/quick_info.h"

#include <gmock/gmock.h>

#include "desktop/uikit/application/application.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "tests/lumifact/grid/grid_host_test.h"
#include "tests/lumifact/views/shown_views.h"
#include "tests/support/temporary_folder.h"

namespace lumifact {
namespace {

using host::AssetFacts;
using host::fileCalls;
using testing::ElementsAre;
using testing::IsEmpty;

const AssetFacts photo = {.mainFile = "file:///var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG",
                          .pixelWidth = 4032,
                          .pixelHeight = 3024,
                          .uuid = "A",
                          .exifOrientation = 6,
                          .creationDate = 1538309000};

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
  AssetFacts placed = photo;
  placed.place = Owned<Object>::retain(text("Greenwich"));
  EXPECT_EQ(summary(placed),
            "100APPLE/IMG_0001.JPG\nFile Date: Sep 30, 2018 at 2:03:20 PM\nFile Size: 2.4 MB\n"
            "Width: 4032\nHeight: 3024\nOrientation: 90\xC2\xB0 CW - Portrait (6)\n"
            "Location: Greenwich");
}

TEST_F(QuickInfoTest, TheBoxCoversTheGridsView) {
  show(photo);
  EXPECT_EQ(box().frame(), grid->view().bounds());
  EXPECT_EQ((send<Object, "superview">(box())), grid->view());
}

TEST_F(QuickInfoTest, AnyOtherValueIsTheAlert) {
  AssetFacts placed = photo;
  placed.place = Owned<Object>::retain(text("Greenwich"));
  for (const int value : {2, 0, -1, 7}) {
    createFileSizeCache();
    settings.thumbnailQuickInfo = value;
    show(placed);
    EXPECT_EQ((send<NSString, "title">(alert()).utf8()), "");
    EXPECT_EQ((send<NSString, "message">(alert()).utf8()),
              "100APPLE/IMG_0001.JPG\nSep 30, 2018 at 2:03:20 PM\n2.4 MB\n4032 x 3024\n"
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
  show(photo);
  settle();
  const auto actions = send<NSArray, "actions">(alert());
  ASSERT_EQ(actions.count(), 1U);
  EXPECT_EQ((send<NSString, "title">(actions.at(0)).utf8()), "Ok");
  EXPECT_EQ((send<NSInteger, "style">(actions.at(0))), 0);
  tap(labelWith(alert().view(), "Ok"));
  EXPECT_FALSE(alert());
}

TEST_F(QuickInfoTest, AVideoHasADurationAndNoOrientation) {
  AssetFacts video = photo;
  video.isVideo = true;
  video.duration = 75.25;
  EXPECT_THAT(summary(video), testing::EndsWith("Height: 3024\nDuration: 00:01:15.250"));
}

TEST_F(QuickInfoTest, TheMainFileIsReadOnceWithoutLookingFurther) {
  summary(photo);
  summary(photo);
  EXPECT_EQ(fileCalls().existence.size(), 1U);
  EXPECT_EQ(fileCalls().attributes.size(), 1U);
}

TEST_F(QuickInfoTest, ALargeFileIsTrueOnceAndNegativeFromTheCache) {
  fileCalls().sizeOfAll = 3'000'000'000;
  EXPECT_THAT(summary(photo), testing::HasSubstr("File Size: 3 GB\n"));
  EXPECT_THAT(summary(photo), testing::HasSubstr("File Size: -1.29 GB\n"));
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
    AssetFacts facts = photo;
    facts.mainFile = row.link;
    EXPECT_THAT(summary(facts), testing::StartsWith(row.shown)) << row.link;
  }
}

TEST_F(QuickInfoTest, PlacesAreShownAsTheyAre) {
  const std::string strange = "A\x01\x02\n\tB \xE2\x80\x8F\xD7\xA9\xE2\x80\xAE end";
  AssetFacts facts = photo;
  facts.place = Owned<Object>::retain(text(strange));
  EXPECT_THAT(summary(facts), testing::EndsWith("\nLocation: " + strange));
  facts.place = Owned<Object>::retain(text(""));
  EXPECT_THAT(summary(facts), testing::EndsWith("\nLocation: "));
  facts.place = Owned<Object>::retain(NSNumber::withInt(5));
  EXPECT_THAT(summary(facts), testing::EndsWith("Portrait (6)"));
}

TEST_F(QuickInfoTest, APlaceOfAMegabyteIsShownWhole) {
  settings.thumbnailQuickInfo = 2;
  AssetFacts facts = photo;
  facts.place = Owned<Object>::retain(text(std::string(1'000'000, 'p')));
  show(facts);
  EXPECT_GT((send<NSString, "message">(alert()).length()), 1'000'000U);
}

TEST_F(QuickInfoTest, AnAssetThatKnowsNothingIsAnswered) {
  EXPECT_EQ(summary({}),
            "(null)\nFile Date: (null)\nFile Size: Zero KB\nWidth: 0\nHeight: 0\n"
            "Orientation: 0\xC2\xB0 - Landscape (1)");
}

TEST_F(QuickInfoTest, AThousandSummariesLeaveNothingBehind) {
  const auto round = [&](int value) {
    const AutoreleasePool pool;
    settings.thumbnailQuickInfo = value;
    show(photo);
    if (value == 1) {
      send<void, "touchesEnded:withEvent:">(box(), Object(), Object());
    } else {
      alert().dismiss(UIViewController::immediately, {});
    }
    settle();
  };
  round(1);
  round(2);
  const long before = liveBoundObjects();
  for (int count = 0; count < 500; ++count)
    for (const int value : {1, 2}) round(value);
  EXPECT_EQ(liveBoundObjects(), before);
  EXPECT_FALSE(box());
}

// Files on disk, in every place where one is looked for.
class QuickInfoFilesTest : public QuickInfoTest {
 protected:
  QuickInfoFilesTest() { fileCalls().sizeOfAll.reset(); }

  AssetFacts facts() const {
    const std::string folder = "file://" + files.path() + "/";
    return {.mainFile = folder + "IMG_0001.JPG",
            .fullsizeImage = folder + "IMG_0001full.JPG",
            .largePreview = folder + "IMG_0001large.JPG",
            .mediumPreview = folder + "IMG_0001medium.jpg",
            .uuid = "A"};
  }

  const support::TemporaryFolder files;
};

TEST_F(QuickInfoFilesTest, TheFirstFileThatIsThereHasTheSize) {
  const char* order[] = {"IMG_0001large.jpg", "IMG_0001medium.jpg", "IMG_0001large.JPG",
                         "IMG_0001full.JPG", "IMG_0001.JPG"};
  std::size_t tries = std::size(order);
  for (const char* name : order) {
    fileCalls() = {};
    createFileSizeCache();
    files.write(name, std::string(tries * 1'000, 'x'));
    EXPECT_THAT(summary(facts()),
                testing::HasSubstr("File Size: " + std::to_string(tries) + " KB\n"));
    EXPECT_EQ(fileCalls().existence.size(), tries) << name;
    EXPECT_THAT(fileCalls().attributes, ElementsAre(files.file(name)));
    EXPECT_THAT(summary(facts()), testing::HasSubstr("IMG_0001.JPG\n"));
    EXPECT_EQ(fileCalls().attributes.size(), 1U) << "once read, never again";
    --tries;
  }
}

TEST_F(QuickInfoFilesTest, WithoutAnyFileTheSizeIsNoneAndLookedForAgain) {
  EXPECT_THAT(summary(facts()), testing::HasSubstr("File Size: Zero KB\n"));
  EXPECT_EQ(fileCalls().existence.size(), 5U);
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
  files.write("IMG_0001.JPG", std::string(7'000, 'x'));
  EXPECT_THAT(summary(facts()), testing::HasSubstr("File Size: 7 KB\n"));
}

TEST_F(QuickInfoFilesTest, AVideoHasItsMainFileOnly) {
  AssetFacts video = facts();
  video.isVideo = true;
  files.write("IMG_0001full.JPG", std::string(7'000, 'x'));
  EXPECT_THAT(summary(video), testing::HasSubstr("File Size: Zero KB\n"));
  EXPECT_THAT(fileCalls().existence, ElementsAre(files.file("IMG_0001.JPG")));
  files.write("IMG_0001.JPG", std::string(3'000, 'x'));
  EXPECT_THAT(summary(video), testing::HasSubstr("File Size: 3 KB\n")) << "nothing was cached";
}

}  // namespace
}  // namespace lumifact
