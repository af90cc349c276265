// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "bridge/class_builder.h"
#include "bridge/hook.h"
#include "bridge/runtime/fields.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/item_badge.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/selection_title.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/photos_ui/library_screen.h"
#include "tests/support/sample_photo.h"

namespace desktop::photos_ui {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using uikit::application;
using uikit::screen;
using uikit::touches;

// The items whose cells were asked for, by their paths, from the first grid on.
std::vector<uikit::ItemPath> askedPaths;

id cellForItem(id self, SEL command, id view, id path) {
  askedPaths.push_back(*uikit::itemPathOf(NSIndexPath(path)));
  return stock<&cellForItem>(self, command, view, path);
}

constinit const HookRow watchedCells[] = {
    replaced<"PUPhotosGridViewController", "collectionView:cellForItemAtIndexPath:", &cellForItem>,
};

void watchCells() {
  [[maybe_unused]] static const bool isWatching = [] {
    PUPhotosGridViewControllerState::classObject();
    applyHooks(watchedCells);
    return true;
  }();
  askedPaths.clear();
}

class GridTest : public LibraryScreenTest {
 protected:
  GridTest() { watchCells(); }

  // Photos "00.jpg" and so on, in an album.
  void openAlbumOf(int count, const std::string& album = "Album") {
    for (int index = 0; index < count; ++index) addPhoto(album, index);
    open();
    ASSERT_FALSE(openAlbum(album));
    settle();
  }
  void addPhoto(const std::string& album, int index) const {
    folder.photo(album + "/" + (index < 10 ? "0" : "") + std::to_string(index) + ".jpg",
                 index * aDay);
  }
  static void beginSelecting() {
    send<void, "setEditing:animated:">(top(), true, false);
    settle();
  }
  static CGRect frameOf(long item) {
    return grid().layout().frameOfItem(*grid().list()->pathOf(static_cast<std::size_t>(item)));
  }
};

TEST_F(GridTest, GroupsMomentsByDayWithTheNewestInSight) {
  for (int day = 0; day < 30; ++day) folder.photo(std::to_string(day) + ".jpg", day * aDay);
  open();
  EXPECT_EQ(title(), "Moments");
  EXPECT_EQ(grid().list()->sections().size(), 30U);
  EXPECT_THAT(texts(), Contains("Jan 30, 1970"));
  EXPECT_THAT(texts(), Not(Contains("Jan 1, 1970")));
}

TEST_F(GridTest, AsksOnceForTheCellsInSightAndForNoOthers) {
  for (const int count : {5, 30, 100}) {
    for (int index = 0; index < count; ++index) addPhoto("Album", index);
    watchCells();
    open();
    const auto asksForVisible = [] {
      return askedPaths.size() == send<NSArray, "visibleCells">(grid().collectionView()).count();
    };
    EXPECT_GE(askedPaths.size(), 5U);
    EXPECT_TRUE(asksForVisible()) << count;
    for (const char* album : {"Album", "All Photos"}) {
      watchCells();
      ASSERT_FALSE(openAlbum(album));
      settle();
      EXPECT_GE(askedPaths.size(), 5U);
      EXPECT_TRUE(asksForVisible()) << count << " " << album << " " << askedPaths.size();
    }
    uikit::resetApplication();
  }
}

TEST_F(GridTest, ShowsFourColumnsOneApart) {
  openAlbumOf(6);
  EXPECT_EQ(frameOf(0).size.width, 93);
  EXPECT_EQ(frameOf(1).origin.x, 94);
  EXPECT_EQ(frameOf(3).origin.x, 282);
  EXPECT_EQ(frameOf(4).origin.x, 0);
  EXPECT_EQ(frameOf(4).origin.y, 94);
}

TEST_F(GridTest, ShowsMoreColumnsInAWiderView) {
  openAlbumOf(10);
  application().resize({667, 375});
  settle();
  EXPECT_EQ(frameOf(6).origin.y, 0);
  EXPECT_EQ(uikit::right(frameOf(6)), 667) << "what is left over is shared out";
  EXPECT_EQ(frameOf(7).origin.y, frameOf(0).size.height + 1);
}

// What an extension puts in place of the layout's own size.
CGSize largerItems(id, SEL, NSInteger) {
  return {186.5, 186.5};
}

class LargerItems {
 public:
  LargerItems() : _stock(method_setImplementation(_method, reinterpret_cast<IMP>(&largerItems))) {}
  ~LargerItems() { method_setImplementation(_method, _stock); }
  LargerItems(const LargerItems&) = delete;
  LargerItems& operator=(const LargerItems&) = delete;

 private:
  Method _method = class_getInstanceMethod(PUSectionedGridLayoutState::classObject(),
                                           selector<"layoutItemSizeForColumn:">());
  IMP _stock;
};

TEST_F(GridTest, ShowsAsManyColumnsAsTheSizesLeaveRoomFor) {
  openAlbumOf(5);
  const AutoreleasePool pool;
  const PUPhotosAlbumViewController album(top().get());
  {
    const LargerItems larger;
    album.mainGridLayout().invalidateLayout();
    album.updateLayoutMetrics();
    settle();
    EXPECT_EQ(frameOf(1).origin.x, 187.5);
    EXPECT_EQ(frameOf(2).origin.y, 187.5);
    EXPECT_EQ(album.mainGridLayout().columnsPerRow(), 4);
  }
  album.mainGridLayout().invalidateLayout();
  settle();
  EXPECT_EQ(frameOf(4).origin.y, 94);
}

TEST_F(GridTest, KeepsItsPlaceWhenItsMetricsAreUpdated) {
  openAlbumOf(90);
  const auto& scroll = uikit::UIScrollViewState::of(grid().collectionView());
  send<void, "setContentOffset:">(grid().collectionView(), CGPoint{0, 500});
  settle();
  const CGFloat before = frameOf(24).origin.y - scroll.contentOffset().y;
  const AutoreleasePool pool;
  const PUPhotosAlbumViewController album(top().get());
  const LargerItems larger;
  album.mainGridLayout().invalidateLayout();
  album.updateLayoutMetrics();
  settle();
  EXPECT_EQ(frameOf(24).origin.y - scroll.contentOffset().y, before);
}

TEST_F(GridTest, StaysAtTheEndWhenItsMetricsAreUpdated) {
  for (int index = 0; index < 90; ++index) addPhoto("Album", index);
  open();
  ASSERT_FALSE(openAlbum("All Photos"));
  settle();
  const AutoreleasePool pool;
  const PUPhotosAlbumViewController album(top().get());
  const LargerItems larger;
  album.mainGridLayout().invalidateLayout();
  album.updateLayoutMetrics();
  settle();
  const auto& scroll = uikit::UIScrollViewState::of(grid().collectionView());
  EXPECT_EQ(scroll.contentOffset().y, scroll.clamped({0, 1e9}).y);
  EXPECT_GT(scroll.contentOffset().y, 5'000);
}

// What an extension puts on a cell's layout: a count of the passes, by the width they found.
std::map<CGFloat, int> passes;
IMP stockLayout = nullptr;
void countingLayout(id self, SEL command) {
  reinterpret_cast<void (*)(id, SEL)>(stockLayout)(self, command);
  ++passes[UIView(self).bounds().size.width];
}

TEST_F(GridTest, LaysCellsOfAnotherSizeOutTwiceBeforeTheyAreSeen) {
  openAlbumOf(1);
  const Method method =
      class_getInstanceMethod(PUPhotosGridCellState::classObject(), selector<"layoutSubviews">());
  stockLayout = method_setImplementation(method, reinterpret_cast<IMP>(&countingLayout));
  passes.clear();
  application().resize({350, 667});
  application().prepareFrame();
  EXPECT_THAT(passes, ElementsAre(testing::Pair(87, 2)));
  application().resize({375, 667});
  application().prepareFrame();
  EXPECT_THAT(passes, ElementsAre(testing::Pair(87, 2), testing::Pair(93, 2)));
  application().prepareFrame();
  EXPECT_EQ(passes[93], 2) << "one size, one time";
  method_setImplementation(method, stockLayout);
}

TEST_F(GridTest, MakesCellsAsLargeAsTheyWillBe) {
  openAlbumOf(2);
  const auto& views = uikit::UICollectionViewState::of(grid().collectionView()).views();
  const auto cell = views.at({{}, {0, 1}});
  EXPECT_EQ(cell->bounds().size.width, 93);
}

TEST_F(GridTest, CountsThePhotosOfAnAlbumBelowThem) {
  openAlbumOf(3);
  EXPECT_THAT(texts(), Contains("3 Photos"));
}

TEST_F(GridTest, OpensAPhotoByATap) {
  openAlbumOf(3);
  tap(placeOf(1));
  EXPECT_TRUE(oneUpOnShow());
}

// Somebody who waits for long presses on a grid.
class LongPresses : public Bound<LongPresses, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<LongPresses>("GridTestLongPresses")
                                  .method<"pressed:", &LongPresses::pressed>()
                                  .build();
    return made;
  }
  int begun = 0;

 private:
  void pressed(UIGestureRecognizer recognizer) {
    begun += recognizer.state() == UIGestureRecognizer::began ? 1 : 0;
  }
};

TEST_F(GridTest, LeavesALongPressToWhoeverWaitsForOne) {
  openAlbumOf(3);
  const auto waiting = makeNew<NSObject>(LongPresses::classObject());
  const auto recognizer = UILongPressGestureRecognizer::make(waiting.get(), selector<"pressed:">());
  grid().collectionView().addGestureRecognizer(recognizer.get());
  const CGPoint place = placeOf(1);
  touches().down(place);
  settle(0.6);
  touches().up(place);
  settle();
  EXPECT_EQ(LongPresses::of(waiting.get()).begun, 1);
  EXPECT_FALSE(oneUpOnShow());
  tap(place);
  EXPECT_TRUE(oneUpOnShow()) << "a short touch opens the photo as ever";
}

TEST_F(GridTest, AnswersTheAssetOfAPlace) {
  openAlbumOf(2);
  const AutoreleasePool pool;
  const PUPhotosGridViewController controller(top().get());
  EXPECT_EQ(controller.assetAt(uikit::indexPathOf({0, 1})).uuid().utf8(),
            grid().list()->at(1)->uuid);
  EXPECT_FALSE(controller.assetAt(uikit::indexPathOf({0, 2})));
  EXPECT_FALSE(controller.assetAt({}));
}

TEST_F(GridTest, SelectsByTapsAndCountsInTheTitle) {
  openAlbumOf(4);
  beginSelecting();
  EXPECT_EQ(title(), "Select Items");
  tap(placeOf(2));
  EXPECT_EQ(title(), "1 Photo Selected");
  tap(placeOf(0));
  EXPECT_THAT(selected(), ElementsAre("Album/00.jpg", "Album/02.jpg"));
  tap(placeOf(2));
  EXPECT_EQ(title(), "1 Photo Selected");
  send<void, "setEditing:animated:">(top(), false, false);
  EXPECT_EQ(title(), "Album");
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(GridTest, SelectsWhatAFingerSwipesOver) {
  openAlbumOf(12);
  beginSelecting();
  touches().down(placeOf(1));
  for (const long over : {2, 3, 7, 6}) {
    touches().move(placeOf(over));
    settle(0.02);
  }
  EXPECT_EQ(title(), "6 Photos Selected") << "while the finger is down";
  touches().up(placeOf(6));
  settle();
  EXPECT_THAT(selected(), ElementsAre("Album/01.jpg", "Album/02.jpg", "Album/03.jpg",
                                      "Album/04.jpg", "Album/05.jpg", "Album/06.jpg"));
}

TEST_F(GridTest, DeselectsWhatASwipeThatBeginsOnASelectedItemGoesOver) {
  openAlbumOf(4);
  beginSelecting();
  for (const long each : {0, 1, 2}) tap(placeOf(each));
  touches().down(placeOf(1));
  touches().move(placeOf(3));
  settle(0.02);
  touches().up(placeOf(3));
  settle();
  EXPECT_THAT(selected(), ElementsAre("Album/00.jpg"));
}

TEST_F(GridTest, ScrollsWhereASwipeStaysAtAnEdge) {
  openAlbumOf(90);
  beginSelecting();
  const auto& scroll = uikit::UIScrollViewState::of(grid().collectionView());
  const CGPoint start = placeOf(0);
  touches().down(start);
  touches().move({start.x + 100, start.y});
  settle(0.02);
  touches().move({start.x + 100, 610});
  settle(1);
  const CGFloat halfWay = scroll.contentOffset().y;
  EXPECT_GT(halfWay, 200) << "the finger rests above the bar at the bottom";
  const std::size_t selectedHalfWay = selected().size();
  EXPECT_GT(selectedHalfWay, 30U);
  EXPECT_THAT(title(), HasSubstr(std::to_string(selectedHalfWay)));
  settle(5);
  EXPECT_EQ(scroll.contentOffset().y, scroll.clamped({0, 1e9}).y) << "no further than to the end";
  touches().move({start.x + 100, 300});
  settle(0.02);
  const std::size_t selectedThen = selected().size();
  const CGFloat offset = scroll.contentOffset().y;
  settle(1);
  EXPECT_EQ(scroll.contentOffset().y, offset);
  touches().up({start.x + 100, 300});
  settle();
  EXPECT_EQ(selected().size(), selectedThen);
  EXPECT_EQ(scroll.contentOffset().y, offset);
}

TEST_F(GridTest, ScrollsNoMoreOnceASwipeIsTakenBack) {
  openAlbumOf(90);
  beginSelecting();
  const CGPoint start = placeOf(0);
  touches().down(start);
  touches().move({start.x + 100, start.y});
  settle(0.02);
  touches().move({start.x + 100, 610});
  settle(0.5);
  touches().cancel();
  const CGFloat offset = uikit::UIScrollViewState::of(grid().collectionView()).contentOffset().y;
  settle(1);
  EXPECT_EQ(uikit::UIScrollViewState::of(grid().collectionView()).contentOffset().y, offset);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(GridTest, UndoesASwipeThatIsCancelled) {
  openAlbumOf(8);
  beginSelecting();
  tap(placeOf(2));
  touches().down(placeOf(0));
  touches().move(placeOf(3));
  settle(0.02);
  touches().cancel();
  settle();
  EXPECT_THAT(selected(), ElementsAre("Album/02.jpg"));
  EXPECT_EQ(title(), "1 Photo Selected");
}

TEST_F(GridTest, DoesNotSwipeOutsideSelectMode) {
  openAlbumOf(4);
  touches().down(placeOf(0));
  settle(0.3);
  touches().move(placeOf(3));
  settle(0.02);
  touches().up(placeOf(3));
  settle();
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_EQ(title(), "Album");
}

TEST_F(GridTest, KeepsTheSelectionWhenFilesComeAndGo) {
  openAlbumOf(6);
  beginSelecting();
  tap(placeOf(1));
  tap(placeOf(4));
  std::remove((folder.path() + "/Album/01.jpg").c_str());
  folder.photo("Album/new.jpg", 0.5 * aDay);
  deliver();
  EXPECT_THAT(selected(), ElementsAre("Album/04.jpg"));
  EXPECT_EQ(title(), "1 Photo Selected");
}

TEST_F(GridTest, KeepsItsPlaceWhenFilesComeAbove) {
  openAlbumOf(90);
  const auto& scroll = uikit::UIScrollViewState::of(grid().collectionView());
  send<void, "setContentOffset:">(grid().collectionView(), CGPoint{0, 500});
  settle();
  const CGFloat before = frameOf(40).origin.y - scroll.contentOffset().y;
  for (int index = 0; index < 8; ++index)
    folder.photo("Album/new" + std::to_string(index) + ".jpg", -aDay);
  deliver();
  EXPECT_EQ(frameOf(48).origin.y - scroll.contentOffset().y, before);
}

TEST_F(GridTest, FollowsTheNewestWhereTheyAreInSight) {
  for (int day = 0; day < 30; ++day) folder.photo(std::to_string(day) + ".jpg", day * aDay);
  open();
  folder.photo("new.jpg", 40 * aDay);
  deliver();
  EXPECT_THAT(texts(), Contains("Feb 10, 1970"));
}

TEST_F(GridTest, EmptiesAnAlbumThatIsGone) {
  openAlbumOf(1);
  std::remove((folder.path() + "/Album/00.jpg").c_str());
  deliver();
  EXPECT_TRUE(grid().list()->isEmpty());
  EXPECT_THAT(texts(), Contains("No Photos or Videos"));
}

TEST_F(GridTest, SaysThatALibraryIsEmpty) {
  open();
  EXPECT_THAT(texts(), Contains("No Photos or Videos"));
  EXPECT_THAT(texts(), Contains(HasSubstr(folder.path())));
}

TEST_F(GridTest, SaysWhyALibraryIsNotOpen) {
  const AutoreleasePool pool;
  host().libraryProblem = "/nowhere: No such file or directory";
  const auto window = bridge::makeView<UIWindow>(uikit::rectOfSize(screen().size));
  window->setRootViewController(makeRootController().get());
  window->makeKeyAndVisible();
  settle();
  EXPECT_THAT(texts(), Contains("Cannot Open Library"));
  EXPECT_THAT(texts(), Contains("/nowhere: No such file or directory"));
}

TEST_F(GridTest, EndsEachSharedAlbumWithACellForAdding) {
  folder.write("Trip/.shared", "");
  openAlbumOf(2, "Trip");
  const AutoreleasePool pool;
  const auto view = grid().collectionView();
  EXPECT_EQ(view.numberOfItemsInSection(0), 3);
  EXPECT_FALSE(PUPhotosGridViewController(top().get()).assetAt(uikit::indexPathOf({0, 2})));
  const CGPoint last = placeOf(1);
  tap({last.x + 94, last.y});
  EXPECT_FALSE(oneUpOnShow());
  EXPECT_THAT(texts(), Contains("Add to This Album"));
}

TEST_F(GridTest, MarksVideosAndLeavesTheMarkWhereOthersPutIt) {
  folder.write("Album/clip.mov", "x");
  open();
  ASSERT_FALSE(openAlbum("Album"));
  settle();
  const AutoreleasePool pool;
  const auto& views = uikit::UICollectionViewState::of(grid().collectionView()).views();
  const auto& cell = PUPhotosGridCellState::of(views.at({{}, {0, 0}}).get());
  const auto helper = cell.photoContentView().contentHelper();
  const UIView badge(objectField(helper, "__badgeView").get());
  ASSERT_TRUE(badge);
  EXPECT_EQ(badge.frame().origin.y, 93 - ItemBadge::height);
  EXPECT_FALSE(objectField(helper, "_badgeView"));
  badge.setFrame({{0, 10}, {20, 20}});
  send<void, "layoutSubviewsOfContentView">(helper);
  EXPECT_EQ(badge.frame().origin.y, 10);
}

TEST_F(GridTest, MarksFavouritesAsSoonAsTheyAre) {
  openAlbumOf(2);
  const auto badge = [](NSInteger item) {
    const auto& views = uikit::UICollectionViewState::of(grid().collectionView()).views();
    const auto& cell = PUPhotosGridCellState::of(views.at({{}, {0, item}}).get());
    return UIView(objectField(cell.photoContentView().contentHelper(), "__badgeView").get());
  };
  const AutoreleasePool pool;
  EXPECT_FALSE(badge(1));
  EXPECT_TRUE(library->setFavourite(*grid().list()->at(1), true));
  deliver();
  EXPECT_FALSE(badge(0));
  EXPECT_TRUE(badge(1));
  EXPECT_TRUE(library->setFavourite(*grid().list()->at(1), false));
  deliver();
  EXPECT_FALSE(badge(1));
}

TEST(MarksOf, AreWhatTheLibraryKnowsOfAnItem) {
  const support::TemporaryFolder root;
  const library::LibraryFolder folder;
  const auto wide = media::facts::sampleJpeg({.width = 400, .height = 100});
  folder.write("a wide.jpg", std::span(wide));
  folder.photo("plain.jpg");
  folder.broken("video.mov");
  auto opened = library::PhotoLibrary::open(folder.path(), foundation::DeviceRoot(root.path()));
  ASSERT_TRUE(opened);
  library::PhotoLibrary& photos = **opened;
  photos.findPanoramas();
  photos.waitAndDeliver();
  EXPECT_FALSE(marksOf(photos, nullptr).areAny());
  for (const auto& item : photos.items()) {
    const ItemMarks marks = marksOf(photos, item);
    EXPECT_EQ(marks.isPanorama, item->name() == "a wide.jpg");
    EXPECT_EQ(marks.isVideo, item->name() == "video.mov");
    EXPECT_EQ(marks.areAny(), item->name() != "plain.jpg");
    library::LibraryItem live = *item;
    live.film = item;
    EXPECT_TRUE(marksOf(photos, std::make_shared<library::LibraryItem>(live)).isLivePhoto);
  }
}

TEST_F(GridTest, NamesSharedAlbumsInABannerOfTheirKeyPhotos) {
  folder.photo("Trip/a.jpg");
  folder.write("Trip/.shared", "");
  folder.photo("City/a.jpg");
  open();
  ASSERT_FALSE(openAlbums());
  settle();
  const auto count = [] { return std::ranges::count(texts(), "Shared"); };
  EXPECT_EQ(count(), 1);
  std::remove((folder.path() + "/City/a.jpg").c_str());
  deliver();
  EXPECT_EQ(count(), 1) << "also where rows have changed places";
  std::remove((folder.path() + "/Trip/.shared").c_str());
  deliver();
  EXPECT_EQ(count(), 0);
}

TEST_F(GridTest, NamesRawPhotosInABanner) {
  folder.photo("Album/shot.dng");
  open();
  ASSERT_FALSE(openAlbum("Album"));
  settle();
  EXPECT_THAT(texts(), Contains("RAW"));
}

TEST(DurationText, CountsWholeSecondsAndHours) {
  const std::pair<double, const char*> texts[] = {
      {0, "0:01"},    {0.4, "0:01"},     {9.2, "0:09"},        {59.6, "1:00"},
      {754, "12:34"}, {3723, "1:02:03"}, {1e300, "100:00:00"},
  };
  for (const auto& [seconds, text] : texts) EXPECT_EQ(durationText(seconds), text) << seconds;
}

TEST(SelectionTitle, TellsPhotosFromVideos) {
  using media::facts::MediaKind;
  const auto make = [](MediaKind kind) {
    return std::make_shared<library::LibraryItem>(library::LibraryItem{.kind = kind});
  };
  const auto photo = make(MediaKind::image);
  const auto video = make(MediaKind::video);
  const std::vector<library::ItemPointer> none;
  const std::vector<library::ItemPointer> both = {photo, video};
  const std::vector<library::ItemPointer> videos = {video, video};
  const std::vector<library::ItemPointer> many(1234, photo);
  EXPECT_EQ(selectionTitle(none), "Select Items");
  EXPECT_EQ(selectionTitle(both), "2 Items Selected");
  EXPECT_EQ(selectionTitle(videos), "2 Videos Selected");
  EXPECT_EQ(countText(none), "");
  EXPECT_EQ(countText(both), "1 Photo, 1 Video");
  EXPECT_EQ(countText(many), "1,234 Photos");
}

}  // namespace
}  // namespace desktop::photos_ui
