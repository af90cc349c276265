// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>

#include "lumifact/grid/grid_hooks.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using host::AssetFacts;
using host::fileCalls;
using testing::ElementsAre;
using testing::IsEmpty;

class CaptionHooksTest : public GridHostTest {
 protected:
  CaptionHooksTest() { setUp("PUPhotosGridViewController"); }

  void setUp(const char* gridClass) {
    grid = host::makeGrid(gridClass);
    cell = host::makeCell({{0, 0}, {93, 93}});
    stateOf(grid).use(cell);
    giveAsset(grid, samplePhoto);
    host::gridCalls().clear();
  }
  // Asks the grid for the cell of an item, as a collection view does.
  Object ask(NSInteger row = 0) const {
    return send<Object, "collectionView:cellForItemAtIndexPath:">(grid, stateOf(grid).collection,
                                                                  host::pathOf(0, row));
  }
  // The caption that an asset gets.
  std::string captionOf(const AssetFacts& facts) {
    giveAsset(grid, facts);
    ask();
    return caption();
  }
  std::string caption() const { return send<UILabel, "sizeLabel">(cell).text().utf8(); }
  CGFloat barAlpha() const { return send<CGFloat, "alpha">(send<UIView, "sizeLabelView">(cell)); }

  Owned<PUPhotosGridViewController> grid;
  Owned<PUPhotosGridCell> cell;
};

TEST_F(CaptionHooksTest, TheHostMakesItsCellAndLaysItOutAsBefore) {
  const auto made = host::makeCell({{1, 2}, {50, 60}});
  send<void, "layoutSubviews">(made);
  EXPECT_EQ(made->frame(), (CGRect{{1, 2}, {50, 60}}));
  EXPECT_THAT(host::gridCalls(), ElementsAre("initWithFrame:", "layoutSubviews"));
  EXPECT_EQ(ask(), cell.get());
}

TEST_F(CaptionHooksTest, PixelSizeAndTypeNeedNoFile) {
  settings.thumbnailInfoDisplay = 1;
  EXPECT_EQ(captionOf(samplePhoto), "4032x3024, jpg");
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
  EXPECT_THAT(fileCalls().existence, IsEmpty());
}

TEST_F(CaptionHooksTest, AnUnnamedTypeIsLeftEmpty) {
  AssetFacts heif = samplePhoto;
  heif.uniformTypeIdentifier = "public.heic";
  EXPECT_EQ(captionOf(heif), "4032x3024, ");
}

TEST_F(CaptionHooksTest, APixelSizeIsSigned) {
  AssetFacts strange = samplePhoto;
  strange.pixelWidth = std::numeric_limits<unsigned long>::max();
  strange.pixelHeight = std::numeric_limits<long>::max();
  EXPECT_EQ(captionOf(strange), "-1x9223372036854775807, jpg");
}

TEST_F(CaptionHooksTest, FileSizeStandsBeforeTheTypeOrBehindThePixelSize) {
  fileCalls().sizeOfAll = 2'400'000;
  settings.thumbnailInfoDisplay = 2;
  EXPECT_EQ(captionOf(samplePhoto), "2.4 MB, jpg");
  settings.thumbnailInfoDisplay = 3;
  EXPECT_EQ(captionOf(samplePhoto), "4032x3024, 2.4 MB");
}

TEST_F(CaptionHooksTest, TheFileIsReadOnceAndNoOtherIsLookedFor) {
  fileCalls().sizeOfAll = 2'400'000;
  settings.thumbnailInfoDisplay = 3;
  AssetFacts withPreviews = samplePhoto;
  withPreviews.mediumPreview = "file:///photos/IMG_0001medium.JPG";
  for (int count = 0; count < 3; ++count) captionOf(withPreviews);
  EXPECT_THAT(fileCalls().attributes, ElementsAre("/photos/IMG_0001.JPG"));
  EXPECT_THAT(fileCalls().existence, IsEmpty());
  EXPECT_EQ(fileCalls().reasons, 0);
}

TEST_F(CaptionHooksTest, ALargeFileIsTrueOnceAndNegativeFromTheCache) {
  fileCalls().sizeOfAll = 3'000'000'000;
  settings.thumbnailInfoDisplay = 3;
  EXPECT_EQ(captionOf(samplePhoto), "4032x3024, 3 GB");
  EXPECT_EQ(captionOf(samplePhoto), "4032x3024, -1.29 GB");
}

TEST_F(CaptionHooksTest, SizesOfAllLengthsAreWorded) {
  const struct {
    std::uint64_t bytes;
    const char* first;
    const char* later;
  } rows[] = {
      {0, "Zero KB, jpg", "Zero KB, jpg"},
      {4'294'967'296, "4.29 GB, jpg", "Zero KB, jpg"},
      {16'000'000'000'000, "16 TB, jpg", "1.25 GB, jpg"},
      {std::numeric_limits<std::int64_t>::max(), "9,223.37 PB, jpg", "-1 byte, jpg"},
  };
  settings.thumbnailInfoDisplay = 2;
  for (const auto& row : rows) {
    createFileSizeCache();
    fileCalls().sizeOfAll = row.bytes;
    EXPECT_EQ(captionOf(samplePhoto), row.first) << row.bytes;
    EXPECT_EQ(captionOf(samplePhoto), row.later) << row.bytes;
  }
}

TEST_F(CaptionHooksTest, AFileThatCannotBeReadCountsNoBytesAndIsReadAgain) {
  settings.thumbnailInfoDisplay = 2;
  EXPECT_EQ(captionOf(samplePhoto), "Zero KB, jpg");
  fileCalls().sizeOfAll = 5'000;
  EXPECT_EQ(captionOf(samplePhoto), "5 KB, jpg");
}

TEST_F(CaptionHooksTest, AnyOtherValueLeavesTheTextAsItWas) {
  captionOf(samplePhoto);
  for (const int value : {4, -1, 1000}) {
    settings.thumbnailInfoDisplay = value;
    EXPECT_EQ(captionOf({}), "4032x3024, jpg") << value;
  }
  const auto fresh = host::makeCell({{0, 0}, {93, 93}});
  stateOf(grid).use(fresh);
  ask();
  EXPECT_FALSE((send<UILabel, "sizeLabel">(fresh).text()));
  EXPECT_TRUE((send<Object, "sizeLabelView">(fresh)));
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
}

TEST_F(CaptionHooksTest, TheTypeIsAskedForWhateverTheTextShows) {
  for (const int value : {1, 2, 3, 4}) {
    settings.thumbnailInfoDisplay = value;
    const int before = host::questionsForType();
    ask();
    EXPECT_EQ(host::questionsForType(), before + 1) << value;
  }
  settings.thumbnailInfoDisplay = 0;
  const int before = host::questionsForType();
  ask();
  EXPECT_EQ(host::questionsForType(), before);
}

TEST_F(CaptionHooksTest, TurnedOffItLeavesTheTextAsItWas) {
  captionOf(samplePhoto);
  settings.thumbnailInfoDisplay = 0;
  EXPECT_EQ(captionOf({}), "4032x3024, jpg");
}

TEST_F(CaptionHooksTest, ACellMadeWithoutACaptionNeverGetsOne) {
  settings.thumbnailInfoDisplay = 0;
  const auto bare = host::makeCell({{0, 0}, {93, 93}});
  settings.thumbnailInfoDisplay = 1;
  stateOf(grid).use(bare);
  for (int count = 0; count < 3; ++count) {
    EXPECT_EQ(ask(), bare.get());
    send<void, "layoutSubviews">(bare);
  }
  EXPECT_FALSE((send<Object, "sizeLabelView">(bare)));
  EXPECT_FALSE((send<Object, "sizeLabel">(bare)));
  EXPECT_EQ(bare->contentView().subviews().count(), 1U);
}

TEST_F(CaptionHooksTest, TheLastCellOfASharedAlbumHasNoneAndNeverShowsItAgain) {
  setUp("PUCloudSharedAlbumViewController");
  ask(1);
  EXPECT_EQ(barAlpha(), 1);
  for (const NSInteger last : {2, 3}) {
    setUp("PUCloudSharedAlbumViewController");
    ask(last);
    EXPECT_EQ(barAlpha(), 0) << last;
    EXPECT_EQ(caption(), "") << last;
  }
  ask(0);
  send<void, "layoutSubviews">(cell);
  EXPECT_EQ(barAlpha(), 0) << "used again for another item";
  EXPECT_EQ(caption(), "4032x3024, jpg");
}

TEST_F(CaptionHooksTest, OfTheLastCellOfASharedAlbumNothingIsAsked) {
  setUp("PUCloudSharedAlbumViewController");
  const int before = host::questionsForType();
  ask(2);
  EXPECT_EQ(host::questionsForType(), before);
}

TEST_F(CaptionHooksTest, TheLastCellOfASharedAlbumHasNoneWhateverIsShownElsewhere) {
  for (const auto& [value, alpha] : {std::pair(4, 0), std::pair(0, 1)}) {
    setUp("PUCloudSharedAlbumViewController");
    settings.thumbnailInfoDisplay = value;
    ask(2);
    EXPECT_EQ(barAlpha(), alpha) << value;
    settings = {};
  }
}

TEST_F(CaptionHooksTest, TheLastCellOfAnotherAlbumHasOne) {
  setUp("PUPhotosAlbumViewController");
  ask(2);
  EXPECT_EQ(barAlpha(), 1);
  EXPECT_EQ(caption(), "4032x3024, jpg");
}

TEST_F(CaptionHooksTest, AnEmptySectionOfASharedAlbumHasOnlyLastCells) {
  setUp("PUCloudSharedAlbumViewController");
  host::HostCollection::of(stateOf(grid).collection->get()).items = 0;
  ask(0);
  EXPECT_EQ(barAlpha(), 0);
}

TEST_F(CaptionHooksTest, WhatIsMissingIsNothing) {
  for (const int value : {1, 2, 3}) {
    settings.thumbnailInfoDisplay = value;
    EXPECT_NE(captionOf({}), "") << "an asset that knows nothing";
    stateOf(grid).asset.reset();
    EXPECT_EQ(ask(), cell.get());
  }
  stateOf(grid).use({});
  EXPECT_FALSE(ask());
  const auto other = makeView<UIView>({});
  stateOf(grid).use(other);
  EXPECT_EQ(ask(), other.get()) << "a cell of another class";
}

TEST_F(CaptionHooksTest, ACellMayBeAskedForWithoutItsPlace) {
  for (const char* className : {"PUPhotosGridViewController", "PUCloudSharedAlbumViewController"}) {
    setUp(className);
    EXPECT_EQ((send<Object, "collectionView:cellForItemAtIndexPath:">(grid, Object(), Object())),
              cell.get());
    EXPECT_EQ(caption(), "4032x3024, jpg") << className;
  }
}

TEST_F(CaptionHooksTest, ACellThatTheHostDoesNotMakeHasNone) {
  EXPECT_FALSE(host::makeCell({{0, 0}, {-1, 93}}));
}

TEST_F(CaptionHooksTest, WhereThereIsNoAssetTheTextIsThatOfNothing) {
  stateOf(grid).asset.reset();
  ask();
  EXPECT_EQ(caption(), "0x0, ");
  settings.thumbnailInfoDisplay = 3;
  ask();
  EXPECT_EQ(caption(), "0x0, Zero KB");
}

TEST_F(CaptionHooksTest, WhatTheHostRaisesMeanwhileStaysInside) {
  stateOf(grid).asset = victims::make(victims::mortalClass());
  EXPECT_EQ(ask(), cell.get());
  EXPECT_EQ(caption(), "");
}

TEST_F(CaptionHooksTest, TheAddedPropertiesKeepWhatTheyAreGiven) {
  {
    const AutoreleasePool inner;
    const auto bar = makeView<UIView>({});
    const auto label = makeView<UILabel>({});
    send<void, "setSizeLabelView:">(cell, bar);
    send<void, "setSizeLabel:">(cell, label);
    EXPECT_EQ((send<Object, "sizeLabelView">(cell)), bar.get());
    EXPECT_EQ((send<Object, "sizeLabel">(cell)), label.get());
  }
  EXPECT_EQ((send<NSInteger, "tag">(send<UIView, "sizeLabelView">(cell))), 0);
  send<void, "setSizeLabel:">(cell, Object());
  EXPECT_FALSE((send<Object, "sizeLabel">(cell)));
  EXPECT_TRUE((send<Object, "sizeLabelView">(cell)));
}

TEST_F(CaptionHooksTest, ACellTakesItsCaptionWithIt) {
  const long before = liveBoundObjects();
  for (int count = 0; count < 100; ++count) {
    const AutoreleasePool inner;
    const auto mortal = host::makeCell({{0, 0}, {93, 93}});
    send<void, "layoutSubviews">(mortal);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace lumifact
