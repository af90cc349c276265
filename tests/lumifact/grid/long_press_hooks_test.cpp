// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "bridge/class_builder.h"
#include "bridge/hook.h"
#include "bridge/uikit/gesture_actions.h"
#include "desktop/runtime/debug_log.h"
#include "desktop/runtime/method_hooks.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "tests/bridge/victims.h"
#include "tests/lumifact/grid/grid_host_test.h"

namespace lumifact {
namespace {

using desktop::runtime::DebugLogLine;
using host::gridCalls;
using testing::ElementsAre;
using testing::IsEmpty;

// A view that hands out the very list that it keeps.
class LiveView : public Bound<LiveView, UIView> {
 public:
  explicit LiveView(id self) : Bound(self), recognizers(makeNew<NSMutableArray>()) {}
  static Class classObject() {
    static const Class made = ClassBuilder<LiveView>("LiveView")
                                  .method<"gestureRecognizers", &LiveView::list>()
                                  .method<"addGestureRecognizer:", &LiveView::add>()
                                  .method<"removeGestureRecognizer:", &LiveView::remove>()
                                  .build();
    return made;
  }

  NSArray list() const { return recognizers; }
  void add(Object recognizer) { recognizers->add(recognizer); }
  void remove(Object recognizer) {
    removed.push_back(recognizer.get());
    send<void, "removeObject:">(recognizers, recognizer);
  }

  Owned<NSMutableArray> recognizers;
  std::vector<id> removed;
};

class LongPressTest : public GridHostTest {
 protected:
  LongPressTest() {
    settings.thumbnailQuickInfo = 1;
    desktop::runtime::setDebugLogSink([this](const DebugLogLine& line) { lines.push_back(line); });
    setUp("PUPhotosGridViewController");
  }
  ~LongPressTest() override { desktop::runtime::setDebugLogSink({}); }

  void setUp(const char* className) {
    grid = host::makeGrid(className);
    giveAsset(grid, samplePhoto);
    window().setRootViewController(grid);
    gridCalls().clear();
  }
  void load() const { send<void, "viewDidLoad">(grid); }
  void press(UIGestureRecognizer::State state = UIGestureRecognizer::began) const {
    send<void, "lumifactLongPress:">(grid, host::gestureIn(state, collection()));
  }
  void pressItem(NSInteger row) const {
    host::HostCollection::of(collection()).pathAtPoint =
        Owned<NSIndexPath>::retain(host::pathOf(0, row));
    press();
  }
  UICollectionView collection() const { return grid->collectionView(); }

  NSUInteger longPresses() const {
    NSUInteger count = 0;
    const NSArray all = collection().gestureRecognizers();
    for (NSUInteger index = 0; index < all.count(); ++index)
      count += sendsAction(all.at(index), selector<"lumifactLongPress:">()) ? 1 : 0;
    return count;
  }
  // How many summaries are on screen in the pop-up box.
  NSUInteger boxes() const {
    NSUInteger count = 0;
    const NSArray views = grid->view().subviews();
    for (NSUInteger index = 0; index < views.count(); ++index)
      count += isKindOf(views.at(index), LumifactPopUpViewController::classObject()) ? 1 : 0;
    return count;
  }
  Object alert() const { return send<Object, "presentedViewController">(grid); }

  Owned<PUPhotosGridViewController> grid;
  std::vector<DebugLogLine> lines;
};

TEST_F(LongPressTest, AGridThatLoadsGetsOne) {
  load();
  EXPECT_THAT(gridCalls(), ElementsAre("viewDidLoad"));
  ASSERT_EQ(collection().gestureRecognizers().count(), 1U);
  const UIGestureRecognizer recognizer(collection().gestureRecognizers().at(0).get());
  EXPECT_TRUE(isKindOf(recognizer, UILongPressGestureRecognizer::classObject()));
  EXPECT_TRUE(sendsAction(recognizer, selector<"lumifactLongPress:">()));
  EXPECT_EQ((send<Object, "delegate">(recognizer)), grid.get());
  EXPECT_FALSE((send<bool, "delaysTouchesBegan">(recognizer)));
  EXPECT_EQ((send<double, "minimumPressDuration">(recognizer)), 0.5);
}

// What long presses are told about delays: whether touches shall wait, each time.
std::vector<bool> delays;
Stock<void(id, SEL, BOOL)> stockSetDelays;
void noteDelay(id self, SEL command, BOOL delaysTouches) {
  delays.push_back(delaysTouches != 0);
  stockSetDelays(self, command, delaysTouches);
}

TEST_F(LongPressTest, TouchesAreNotToWaitForIt) {
  desktop::runtime::replaceMethod(UILongPressGestureRecognizer::classObject(),
                                  selector<"setDelaysTouchesBegan:">(),
                                  reinterpret_cast<IMP>(&noteDelay), stockSetDelays.slot());
  load();
  EXPECT_THAT(delays, ElementsAre(false));
}

TEST_F(LongPressTest, AGridThatLoadsAgainHasOneStill) {
  for (int count = 0; count < 3; ++count) load();
  EXPECT_EQ(longPresses(), 1U);
}

TEST_F(LongPressTest, RecognizersOfOthersAreLeftAlone) {
  const auto others =
      UILongPressGestureRecognizer::make(grid.get(), selector<"somebodyElsesPress:">());
  collection().addGestureRecognizer(others);
  for (int count = 0; count < 2; ++count) load();
  EXPECT_EQ(collection().gestureRecognizers().count(), 2U);
  EXPECT_EQ(collection().gestureRecognizers().at(0), others.get());
}

TEST_F(LongPressTest, AListThatChangesUnderTheWalkLosesAllOfThem) {
  const auto live = makeView<UIView>({}, LiveView::classObject());
  stateOf(grid).collection = live;
  std::vector<Owned<UILongPressGestureRecognizer>> own;
  const auto add = [&](SEL action) {
    auto made = UILongPressGestureRecognizer::make(grid.get(), action);
    collection().addGestureRecognizer(made);
    return made;
  };
  for (int count = 0; count < 3; ++count) own.push_back(add(selector<"lumifactLongPress:">()));
  add(selector<"somebodyElsesPress:">());
  own.push_back(add(selector<"lumifactLongPress:">()));
  load();
  EXPECT_EQ(longPresses(), 1U);
  EXPECT_EQ(collection().gestureRecognizers().count(), 2U);
  EXPECT_THAT(LiveView::of(live.get()).removed,
              ElementsAre(own[0]->get(), own[1]->get(), own[2]->get(), own[3]->get()));
}

TEST_F(LongPressTest, RecognizersWithoutTheFieldsArePassedOver) {
  const auto live = makeView<UIView>({}, LiveView::classObject());
  stateOf(grid).collection = live;
  LiveView::of(live.get()).add(host::gestureIn(UIGestureRecognizer::possible));
  const auto strange =
      victims::make(victims::ClassMaker("StrangeRecognizer").field("_targets", "@").build());
  const auto number = NSNumber::withInt(4);
  victims::setField(strange, "_targets", number.get());
  LiveView::of(live.get()).add(strange);
  const NSArray records = NSArray::of(number);
  const auto fieldless =
      victims::make(victims::ClassMaker("FieldlessRecords").field("_targets", "@").build());
  victims::setField(fieldless, "_targets", records.get());
  LiveView::of(live.get()).add(fieldless);
  load();
  EXPECT_EQ(collection().gestureRecognizers().count(), 4U);
}

TEST_F(LongPressTest, AGridThatLoadsWhileItIsOffHasNone) {
  settings.thumbnailQuickInfo = 0;
  setUp("PUPhotosGridViewController");
  load();
  settings.thumbnailQuickInfo = 1;
  EXPECT_EQ(collection().gestureRecognizers().count(), 0U);
}

TEST_F(LongPressTest, AZoomableGridHasOneAtItsNearestLevelOnly) {
  setUp("PUZoomableGridViewController");
  for (const Object info : {Object(), Object(makeNew<NSObject>().autorelease())}) {
    host::HostZoomableGrid::of(grid.get()).info = Owned<Object>::retain(info);
    load();
    EXPECT_EQ(longPresses(), 0U);
  }
  host::HostZoomableGrid::of(grid.get()).info =
      victims::make(objc_getClass("PUFullMomentsZoomLevelInfo"));
  load();
  EXPECT_EQ(longPresses(), 1U);
}

TEST_F(LongPressTest, AGridWithoutAViewOfItemsDoesNoHarm) {
  stateOf(grid).collection.reset();
  load();
  press();
  EXPECT_EQ(boxes(), 0U);
}

TEST_F(LongPressTest, OnePressIsOneSummary) {
  for (const auto state :
       {UIGestureRecognizer::possible, UIGestureRecognizer::began, UIGestureRecognizer::changed,
        UIGestureRecognizer::ended, UIGestureRecognizer::cancelled, UIGestureRecognizer::failed})
    press(state);
  EXPECT_EQ(boxes(), 1U);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LongPressTest, TheItemIsLookedForWhereTheFingerIsInTheView) {
  press();
  EXPECT_EQ(host::HostCollection::of(collection()).askedAt, (CGPoint{5, 700}));
}

TEST_F(LongPressTest, APressThatFindsNothingIsLogged) {
  host::HostCollection::of(collection()).pathAtPoint.reset();
  press(UIGestureRecognizer::changed);
  EXPECT_THAT(lines, IsEmpty());
  press();
  EXPECT_THAT(lines, ElementsAre(DebugLogLine{"[%{public}s:%{public}d] %{public}@", "Tweak", 1373,
                                              "couldn't find index path"}));
  EXPECT_EQ(boxes(), 0U);
}

TEST_F(LongPressTest, TheLastCellOfASharedAlbumDoesNotAnswer) {
  setUp("PUCloudSharedAlbumViewController");
  for (const NSInteger row : {2, 3}) {
    pressItem(row);
    EXPECT_EQ(boxes(), 0U) << row;
  }
  pressItem(1);
  EXPECT_EQ(boxes(), 1U);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LongPressTest, AnEmptySectionOfASharedAlbumDoesNotAnswer) {
  setUp("PUCloudSharedAlbumViewController");
  host::HostCollection::of(collection()).items = 0;
  pressItem(0);
  EXPECT_EQ(boxes(), 0U);
}

TEST_F(LongPressTest, TheLastCellOfAnotherGridAnswers) {
  setUp("PUPhotosAlbumViewController");
  pressItem(2);
  EXPECT_EQ(boxes(), 1U);
}

TEST_F(LongPressTest, WithoutAnAssetNothingIsSaid) {
  stateOf(grid).asset.reset();
  press();
  EXPECT_EQ(boxes(), 0U);
  EXPECT_FALSE(alert());
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LongPressTest, TheFormIsThatOfTheMoment) {
  load();
  press();
  EXPECT_EQ(boxes(), 1U);
  EXPECT_FALSE(alert());
  settings.thumbnailQuickInfo = 2;
  press();
  EXPECT_EQ(boxes(), 1U);
  EXPECT_TRUE(isKindOf(alert(), UIAlertController::classObject()));
}

TEST_F(LongPressTest, TurnedOffALoadedGridAnswersInTheAlert) {
  load();
  settings.thumbnailQuickInfo = 0;
  press();
  EXPECT_TRUE(isKindOf(alert(), UIAlertController::classObject()));
}

TEST_F(LongPressTest, WithoutARecognizerNothingIsSaid) {
  send<void, "lumifactLongPress:">(grid, Object());
  EXPECT_EQ(boxes(), 0U);
  EXPECT_THAT(lines, IsEmpty());
}

}  // namespace
}  // namespace lumifact
