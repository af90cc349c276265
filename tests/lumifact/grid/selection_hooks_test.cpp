// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>

#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using host::fileCalls;
using host::gridCalls;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char stock[] = "2 Photos Selected";

class SelectionTest : public GridHostTest {
 protected:
  SelectionTest() {
    settings.showSelectedSize = true;
    grid = host::makeGrid("PUPhotosGridViewController");
    fileCalls().sizeOfAll = 2'000'000;
    select(2);
    setEditing(true);
    gridCalls().clear();
  }
  ~SelectionTest() override {
    stateOf(grid).atWork = nullptr;
    setEditing(false);
  }

  // Selects so many assets, "0" and so on.
  void select(int count) const {
    const auto all = makeNew<NSMutableArray>();
    for (int index = 0; index < count; ++index) {
      const std::string name = std::to_string(index);
      all->add(host::makeAsset({.mainFile = "file:///photos/" + name, .uuid = name}));
    }
    stateOf(grid).selected = Owned<NSArray>::retain(all.get());
  }
  void setEditing(bool editing) const { send<void, "setEditing:animated:">(grid, editing, false); }
  void swipe(UIGestureRecognizer::State state) const {
    send<void, "_handleSwipeSelectionGesture:">(grid, host::gestureIn(state));
  }
  std::string title() const { return grid->localizedSelectionTitle().utf8(); }
  std::string shownTitle() const { return send<NSString, "title">(grid->navigationItem()).utf8(); }

  Owned<PUPhotosGridViewController> grid;
};

TEST_F(SelectionTest, TheSizeFollowsTheTitle) {
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
  EXPECT_THAT(fileCalls().attributes, ElementsAre("/photos/0", "/photos/1"));
}

TEST_F(SelectionTest, EachFileIsReadOnceAndNoOtherIsLookedFor) {
  for (int count = 0; count < 5; ++count) title();
  select(3);
  title();
  EXPECT_THAT(fileCalls().attributes, ElementsAre("/photos/0", "/photos/1", "/photos/2"));
  EXPECT_THAT(fileCalls().existence, IsEmpty());
}

TEST_F(SelectionTest, TheTitleIsTheHostsWhereNothingIsToBeAdded) {
  settings.showSelectedSize = false;
  EXPECT_EQ(title(), stock);
  settings.showSelectedSize = true;
  stateOf(grid).isAnySelected = false;
  EXPECT_EQ(title(), stock);
  stateOf(grid).isAnySelected = true;
  setEditing(false);
  EXPECT_EQ(title(), stock);
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
}

TEST_F(SelectionTest, AnUnchangedTitleIsTheHostsOwnObject) {
  stateOf(grid).isAnySelected = false;
  EXPECT_EQ(grid->localizedSelectionTitle(), stateOf(grid).stockTitle.get());
}

TEST_F(SelectionTest, ALargeFileCountsInFullOnceAndNegativelyFromTheCache) {
  select(1);
  fileCalls().sizeOfAll = 3'000'000'000;
  EXPECT_EQ(title(), "2 Photos Selected (3 GB) ");
  EXPECT_EQ(title(), "2 Photos Selected (-1.29 GB) ");
}

TEST_F(SelectionTest, AFileOf2To63BytesIsAddedAsItIs) {
  select(1);
  fileCalls().sizeOfAll = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(title(), "2 Photos Selected (9,223.37 PB) ");
  EXPECT_EQ(title(), "2 Photos Selected (-1 byte) ");
}

TEST_F(SelectionTest, ATotalOfNothingShowsTheHostsTitle) {
  fileCalls().sizeOfAll = 0;
  EXPECT_EQ(title(), stock) << "empty files";
  createFileSizeCache();
  fileCalls().sizeOfAll.reset();
  EXPECT_EQ(title(), stock) << "files that are gone";
  select(1);
  fileCalls().sizeOfAll = 4'294'967'296;
  EXPECT_EQ(title(), "2 Photos Selected (4.29 GB) ");
  EXPECT_EQ(title(), stock) << "4 GiB from the cache";
}

TEST_F(SelectionTest, AFileThatCannotBeReadAddsNothingAndIsReadAgain) {
  fileCalls().sizeOfAll.reset();
  title();
  fileCalls().sizeOfAll = 1'000'000;
  EXPECT_EQ(title(), "2 Photos Selected (2 MB) ");
}

TEST_F(SelectionTest, SizesOnAScreenOfCaptionsAreShared) {
  title();
  fileCalls().sizeOfAll = 9'000'000;
  settings.thumbnailInfoDisplay = 2;
  const auto cell = host::makeCell({{0, 0}, {93, 93}});
  stateOf(grid).use(cell);
  stateOf(grid).asset = Owned<Object>::retain(stateOf(grid).selected->at(0));
  send<Object, "collectionView:cellForItemAtIndexPath:">(grid, Object(), host::pathOf(0, 0));
  EXPECT_EQ((send<UILabel, "sizeLabel">(cell).text().utf8()), "2 MB, ");
}

TEST_F(SelectionTest, TheModeIsFollowedWhereTheSettingIsOff) {
  setEditing(false);
  EXPECT_THAT(gridCalls(), ElementsAre("setEditing:animated: off"));
  settings.showSelectedSize = false;
  setEditing(true);
  settings.showSelectedSize = true;
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

TEST_F(SelectionTest, TheModeIsKnownWhileTheHostChangesIt) {
  std::vector<std::string> titles;
  stateOf(grid).atWork = [&] { titles.push_back(title()); };
  setEditing(false);
  setEditing(true);
  swipe(UIGestureRecognizer::began);
  titles.clear();
  setEditing(true);
  EXPECT_THAT(titles, ElementsAre("2 Photos Selected (4 MB) ")) << "no swipe outlives a change";
  setEditing(false);
  EXPECT_EQ(titles.back(), stock);
}

TEST_F(SelectionTest, TheHostFollowsASwipeBeforeTheTitleDoes) {
  std::vector<std::string> titles;
  stateOf(grid).atWork = [&] { titles.push_back(title()); };
  for (const auto state : {UIGestureRecognizer::began, UIGestureRecognizer::ended}) swipe(state);
  EXPECT_THAT(titles, ElementsAre("2 Photos Selected (4 MB) ", stock));
}

TEST_F(SelectionTest, TheModeIsThatOfTheGridThatChangedLast) {
  const auto other = host::makeGrid("PUPhotosGridViewController");
  send<void, "setEditing:animated:">(other, false, false);
  EXPECT_EQ(title(), stock);
}

TEST_F(SelectionTest, NoFileIsReadDuringASwipe) {
  swipe(UIGestureRecognizer::began);
  for (int touched = 0; touched < 3; ++touched) {
    EXPECT_EQ(title(), stock);
    swipe(UIGestureRecognizer::changed);
  }
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
  EXPECT_EQ(shownTitle(), "");
  swipe(UIGestureRecognizer::ended);
  EXPECT_EQ(shownTitle(), "2 Photos Selected (4 MB) ");
  EXPECT_EQ(std::ranges::count(gridCalls(), "_handleSwipeSelectionGesture:"), 5);
}

TEST_F(SelectionTest, AnInterruptedSwipeGoesOnUntilTheNextOneEnds) {
  swipe(UIGestureRecognizer::began);
  for (const auto state : {UIGestureRecognizer::cancelled, UIGestureRecognizer::failed}) {
    swipe(state);
    EXPECT_EQ(title(), stock);
    EXPECT_EQ(shownTitle(), "");
  }
  swipe(UIGestureRecognizer::ended);
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

TEST_F(SelectionTest, AChangeOfModeEndsAnInterruptedSwipe) {
  swipe(UIGestureRecognizer::began);
  swipe(UIGestureRecognizer::cancelled);
  setEditing(true);
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

TEST_F(SelectionTest, SwipesAreNotFollowedOutsideSelectModeOrWhereTheSettingIsOff) {
  setEditing(false);
  swipe(UIGestureRecognizer::began);
  swipe(UIGestureRecognizer::ended);
  EXPECT_EQ(shownTitle(), "");
  setEditing(true);
  settings.showSelectedSize = false;
  swipe(UIGestureRecognizer::began);
  settings.showSelectedSize = true;
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

TEST_F(SelectionTest, WhatIsMissingIsNothing) {
  stateOf(grid).selected.reset();
  EXPECT_EQ(title(), stock);
  select(2);
  stateOf(grid).stockTitle.reset();
  EXPECT_EQ(title(), "(null) (4 MB) ");
  stateOf(grid).isAnySelected = false;
  EXPECT_FALSE(grid->localizedSelectionTitle());
  send<void, "_handleSwipeSelectionGesture:">(grid, Object());
}

TEST_F(SelectionTest, AssetsWithoutUuidOrFileAddNothingOrThemselves) {
  const auto all = makeNew<NSMutableArray>();
  all->add(host::makeAsset({}));
  all->add(host::makeAsset({.mainFile = "file:///photos/nameless"}));
  all->add(host::makeAsset({.mainFile = "file:///photos/nameless"}));
  stateOf(grid).selected = Owned<NSArray>::retain(all.get());
  EXPECT_EQ(title(), "2 Photos Selected (4 MB) ");
}

}  // namespace
}  // namespace lumifact
