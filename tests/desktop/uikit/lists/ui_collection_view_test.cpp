// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/lists/ui_collection_view_cell.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/collection_source.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <typename T>
Owned<NSObject> make() {
  return Owned<NSObject>::adopt(send<NSObject, "init">(send<id, "alloc">(T::classObject())));
}

class UICollectionViewTest : public ApplicationTest {
 protected:
  UICollectionViewTest() : _source(make<CollectionSource>()), _layout(make<GridLayout>()) {}
  ~UICollectionViewTest() override { close(); }

  CollectionSource& source() { return CollectionSource::of(_source.get()); }
  GridLayout& layout() { return GridLayout::of(_layout.get()); }

  void show() {
    close();
    _view = Owned<UICollectionView>::adopt(
        send<UICollectionView, "initWithFrame:collectionViewLayout:">(
            send<id, "alloc">(UICollectionView::classObject()), rectOfSize(screen().size),
            _layout));
    send<void, "setDataSource:">(_view, _source);
    send<void, "setDelegate:">(_view, _source);
    send<void, "registerClass:forCellWithReuseIdentifier:">(_view, TestCell::classObject(),
                                                            NSString::make("cell"));
    window().addSubview(_view);
    application().prepareFrame();
  }

  void close() {
    if (_view) _view->removeFromSuperview();
    _view.reset();
  }

  UICollectionViewState& view() { return UICollectionViewState::of(_view.get()); }
  UIScrollViewState& scroll() { return UIScrollViewState::of(_view.get()); }

  void scrollTo(CGFloat y) {
    UIScrollView(_view.get().get()).setContentOffset({0, y});
    application().prepareFrame();
  }

  // The items in sight, in order, as their cells know them.
  std::vector<NSInteger> tags() {
    std::vector<NSInteger> all;
    for (const auto& [element, shown] : view().views())
      if (element.kind.empty()) all.push_back(UIViewState::of(shown.get()).tag());
    return all;
  }

  UICollectionViewCellState& cell(NSInteger item) {
    return UICollectionViewCellState::of(view().cellForItem(indexPathOf({0, item})));
  }

  void tap(NSInteger item) {
    const CGPoint point =
        apply(UIViewState::of(_view.get()).toScreen(), middle(layout().frameOf({0, item})));
    touches().down(point);
    application().advance(0.2);
    touches().up(point);
    application().advance(0.02);
  }

  void allowMultipleSelection() { send<void, "setAllowsMultipleSelection:">(_view, true); }

  Owned<NSObject> _source;
  Owned<NSObject> _layout;
  Owned<UICollectionView> _view;
};

TEST_F(UICollectionViewTest, ExactlyTheItemsInSightHaveCells) {
  source().itemCount = 1000;
  show();
  EXPECT_EQ(tags().size(), 32u);  // 8 rows of 94 points, the last in part
  scrollTo(94 * 50);
  EXPECT_EQ(tags().front(), 200);
  EXPECT_EQ(tags().back(), 231);
  EXPECT_EQ(_view->subviews().count(), 32u);
  EXPECT_EQ(cell(201).self().frame(), (CGRect{{94, 4700}, {93, 93}}));
}

TEST_F(UICollectionViewTest, CellsAreUsedAgain) {
  source().itemCount = 100'000;
  show();
  const long before = TestCell::liveObjects();
  TestCell::reused = 0;
  for (int step = 0; step < 500; ++step) scrollTo(step * 31.0);
  EXPECT_LE(TestCell::liveObjects(), before + 4);
  EXPECT_GT(TestCell::reused, 500);
  scrollTo(94 * 24'990);
  EXPECT_LE(TestCell::liveObjects(), before + 4);
  EXPECT_EQ(tags().back(), 99'991);
  EXPECT_EQ(source().displayed - source().ended, static_cast<long>(tags().size()));
}

TEST_F(UICollectionViewTest, OnlyWhatIsInSightIsAskedOfTheLayout) {
  source().itemCount = 100'000;
  show();
  layout().attributesMade = 0;
  scrollTo(94 * 10'000);
  EXPECT_EQ(layout().attributesMade, 32);
  EXPECT_EQ(layout().prepared, 1);
}

TEST_F(UICollectionViewTest, AnyCountOfItemsIsShown) {
  struct Count {
    NSInteger items;
    std::size_t cells;
  };
  for (const auto& [items, cells] : {Count{0, 0}, Count{1, 1}, Count{5, 5}, Count{100'000, 32}}) {
    source().itemCount = items;
    show();
    EXPECT_EQ(tags().size(), cells) << items;
    EXPECT_EQ(view().numberOfItems(0), items);
  }
}

TEST_F(UICollectionViewTest, AbsurdCountsAreLimited) {
  constexpr NSInteger most = std::numeric_limits<NSInteger>::max();
  constexpr NSInteger least = std::numeric_limits<NSInteger>::min();
  for (const auto& [sections, items] : std::vector<std::pair<NSInteger, NSInteger>>{
           {-1, 5}, {least, 5}, {1, -1}, {1, least}, {1, most}, {most, 1}, {most, most}}) {
    source().sectionCount = sections;
    source().itemCount = items;
    show();
    EXPECT_LE(tags().size(), 40u) << sections << " sections of " << items;
    scrollTo(1e300);
    scrollTo(-1e300);
  }
}

TEST_F(UICollectionViewTest, ALayoutThatLiesShowsWhatThereIs) {
  source().itemCount = 10;
  for (const auto answer :
       {GridLayout::Answer::nothing, GridLayout::Answer::text, GridLayout::Answer::absurd}) {
    layout().answer = answer;
    show();
    EXPECT_LE(tags().size(), 10u);
    scrollTo(5);
  }
  EXPECT_EQ(tags().size(), 10u);  // the absurd ones are left out
}

TEST_F(UICollectionViewTest, WithoutALayoutThereIsNothing) {
  source().itemCount = 10;
  show();
  send<void, "setCollectionViewLayout:">(_view, UICollectionViewLayout());
  application().prepareFrame();
  EXPECT_THAT(tags(), IsEmpty());
  EXPECT_FALSE(view().indexPathForItemAt({10, 10}));
  send<void, "setCollectionViewLayout:animated:">(_view, _layout, true);
  application().prepareFrame();
  EXPECT_EQ(tags().size(), 10u);
}

TEST_F(UICollectionViewTest, WhatIsNoCellIsShownAsAnEmptyItem) {
  source().itemCount = 10;
  for (const auto answer : {CollectionSource::Answer::nothing, CollectionSource::Answer::text}) {
    source().answer = answer;
    show();
    EXPECT_EQ(tags().size(), 10u);
    scrollTo(5);
  }
}

TEST_F(UICollectionViewTest, ASourceThatAlwaysReloadsDoesNotHang) {
  source().itemCount = 10;
  source().reloadsMeanwhile = true;
  show();
  application().advance(0.1);
  EXPECT_THAT(tags(), IsEmpty());
}

TEST_F(UICollectionViewTest, APointIsInTheItemAroundIt) {
  source().itemCount = 10;
  show();
  EXPECT_EQ(itemPathOf(view().indexPathForItemAt({92.9, 0})), (ItemPath{0, 0}));
  EXPECT_EQ(itemPathOf(view().indexPathForItemAt({94, 94})), (ItemPath{0, 5}));
  EXPECT_EQ(itemPathOf(view().indexPathForItemAt({94.5, 280})), (ItemPath{0, 9}));
  for (const CGPoint outside : {CGPoint{93.5, 10}, CGPoint{300, 200}, CGPoint{-1, 0},
                                CGPoint{double{NAN}, 0}, CGPoint{0, double{INFINITY}}})
    EXPECT_FALSE(view().indexPathForItemAt(outside)) << outside.x << ", " << outside.y;
}

TEST_F(UICollectionViewTest, ACellKnowsItsItem) {
  source().itemCount = 10;
  show();
  EXPECT_EQ(itemPathOf(view().indexPathForCell(cell(7).self())), (ItemPath{0, 7}));
  EXPECT_FALSE(view().indexPathForCell({}));
  EXPECT_FALSE(view().cellForItem(indexPathOf({0, 10})));
  const auto attributes =
      send<UICollectionViewLayoutAttributes, "layoutAttributesForItemAtIndexPath:">(
          _view, indexPathOf({0, 7}));
  EXPECT_EQ(attributes.frame(), cell(7).self().frame());
  EXPECT_FALSE((send<id, "layoutAttributesForItemAtIndexPath:">(_view, indexPathOf({0, 10}))));
}

TEST_F(UICollectionViewTest, HeadersStandAboveTheirItems) {
  source().sectionCount = 3;
  source().itemCount = 8;
  layout().headerHeight = 40;
  show();
  const auto kind = NSString::make("UICollectionElementKindSectionHeader");
  const auto header = send<UIView, "supplementaryViewForElementKind:atIndexPath:">(
      _view, kind, indexPathOf({1, 0}));
  EXPECT_EQ(header.frame(), (CGRect{{0, 228}, {375, 40}}));
  EXPECT_EQ((send<NSArray, "visibleSupplementaryViewsOfKind:">(_view, kind).count()), 3u);
  EXPECT_EQ(_view->subviews().count(), 27u);
  EXPECT_TRUE(isKindOf(_view->subviews().at(0), TestCell::classObject()));
  EXPECT_FALSE(isKindOf(_view->subviews().at(26), TestCell::classObject()));
  scrollTo(300);
  EXPECT_EQ((send<NSArray, "visibleSupplementaryViewsOfKind:">(_view, kind).count()), 1u);
}

TEST_F(UICollectionViewTest, AnInvalidLayoutIsPreparedAgain) {
  source().itemCount = 100;
  show();
  layout().columns = 2;
  layout().side = 187;
  application().prepareFrame();
  EXPECT_EQ(tags().size(), 32u);  // nobody has said so yet
  UICollectionViewLayout(_layout.get().get()).invalidateLayout();
  application().prepareFrame();
  EXPECT_EQ(tags().size(), 8u);
  EXPECT_EQ(cell(1).self().frame(), (CGRect{{188, 0}, {187, 187}}));
  EXPECT_EQ(scroll().contentSize(), (CGSize{375, 50 * 188}));
}

TEST_F(UICollectionViewTest, ALayoutDecidesWhetherScrollingInvalidatesIt) {
  source().itemCount = 100;
  show();
  scrollTo(10);
  EXPECT_EQ(layout().prepared, 1);
  layout().invalidatesAlways = true;
  scrollTo(20);
  scrollTo(30);
  EXPECT_EQ(layout().prepared, 3);
}

TEST_F(UICollectionViewTest, AnotherSizeInvalidatesTheLayout) {
  source().itemCount = 100;
  show();
  _view->setFrame({{0, 0}, {667, 375}});
  application().prepareFrame();
  EXPECT_EQ(layout().prepared, 2);
  EXPECT_EQ(tags().size(), 16u);
}

TEST_F(UICollectionViewTest, ATapSelectsTheItem) {
  source().itemCount = 100;
  show();
  scrollTo(94);
  tap(9);
  EXPECT_TRUE(cell(9).isSelected());
  tap(10);
  EXPECT_FALSE(cell(9).isSelected());
  EXPECT_THAT(source().events, ElementsAre("select 0.9", "deselect 0.9", "select 0.10"));
  EXPECT_THAT(view().selectedItems(), ElementsAre(ItemPath{0, 10}));
}

TEST_F(UICollectionViewTest, SeveralItemsCanBeSelected) {
  source().itemCount = 100;
  show();
  allowMultipleSelection();
  for (const NSInteger item : {3, 5, 3, 6}) tap(item);
  EXPECT_THAT(source().events,
              ElementsAre("select 0.3", "select 0.5", "deselect 0.3", "select 0.6"));
  const auto paths = send<NSArray, "indexPathsForSelectedItems">(_view);
  EXPECT_EQ(paths.count(), 2u);
  send<void, "setAllowsMultipleSelection:">(_view, false);
  EXPECT_THAT(view().selectedItems(), IsEmpty());
  EXPECT_FALSE(cell(5).isSelected());
}

TEST_F(UICollectionViewTest, TheDelegateCanRefuse) {
  source().itemCount = 100;
  source().allowsChanges = false;
  show();
  tap(3);
  EXPECT_THAT(source().events, IsEmpty());
  send<void, "setAllowsSelection:">(_view, false);
  source().allowsChanges = true;
  tap(3);
  EXPECT_THAT(source().events, IsEmpty());
}

TEST_F(UICollectionViewTest, AFingerThatScrollsSelectsNothing) {
  source().itemCount = 100;
  show();
  const CGPoint from = middle(layout().frameOf({0, 20}));
  touches().down(from);
  application().advance(0.2);
  EXPECT_TRUE(cell(20).isHighlighted());
  for (CGFloat y = 0; y <= 200; y += 20) {
    touches().move({from.x, from.y - y});
    application().advance(0.02);
  }
  EXPECT_FALSE(cell(20).isHighlighted());
  touches().up({from.x, from.y - 200});
  application().advance(3);
  EXPECT_GT(scroll().contentOffset().y, 100);
  EXPECT_THAT(source().events, IsEmpty());
}

TEST_F(UICollectionViewTest, AQuickFlickToAnotherItemSelectsNeither) {
  source().itemCount = 100;
  show();
  touches().down(middle(layout().frameOf({0, 20})));
  application().advance(0.02);
  const CGPoint end = middle(layout().frameOf({0, 22}));
  touches().move(end);
  application().advance(0.02);
  touches().up(end);
  application().advance(1);
  EXPECT_THAT(source().events, IsEmpty());
}

TEST_F(UICollectionViewTest, SelectionByCodeTellsNobody) {
  source().itemCount = 1000;
  show();
  send<void, "selectItemAtIndexPath:animated:scrollPosition:">(
      _view, indexPathOf({0, 400}), false, NSUInteger{UICollectionViewState::centeredVertically});
  application().prepareFrame();
  EXPECT_TRUE(cell(400).isSelected());
  EXPECT_EQ(scroll().contentOffset().y, 9400 - (667 - 93) / 2.0);
  send<void, "deselectItemAtIndexPath:animated:">(_view, indexPathOf({0, 400}), false);
  EXPECT_FALSE(cell(400).isSelected());
  EXPECT_THAT(source().events, IsEmpty());
}

TEST_F(UICollectionViewTest, ASelectedItemIsStillSelectedWhenItComesBack) {
  source().itemCount = 1000;
  show();
  tap(3);
  scrollTo(5000);
  for (const auto& [element, shown] : view().views())
    EXPECT_FALSE(UICollectionViewCellState::of(shown.get()).isSelected()) << element.path.item;
  scrollTo(0);
  EXPECT_TRUE(cell(3).isSelected());
}

TEST_F(UICollectionViewTest, ItemsComeAndGoWhileScrolled) {
  source().itemCount = 1000;
  show();
  allowMultipleSelection();
  scrollTo(94 * 100);
  for (const NSInteger item : {405, 408, 410}) tap(item);
  source().itemCount = 998;
  send<void, "deleteItemsAtIndexPaths:">(_view,
                                         NSArray::of(indexPathOf({0, 2}), indexPathOf({0, 408})));
  application().prepareFrame();
  EXPECT_THAT(view().selectedItems(), ElementsAre(ItemPath{0, 404}, ItemPath{0, 408}));
  EXPECT_EQ(tags().front(), 400);
  EXPECT_TRUE(cell(404).isSelected());
  source().itemCount = 999;
  send<void, "insertItemsAtIndexPaths:">(_view, NSArray::of(indexPathOf({0, 0})));
  EXPECT_EQ(view().numberOfItems(0), 999);
  EXPECT_THAT(view().selectedItems(), ElementsAre(ItemPath{0, 405}, ItemPath{0, 409}));
  source().itemCount = 10;
  view().reloadData();
  application().prepareFrame();
  EXPECT_EQ(scroll().contentOffset().y, 0);
  EXPECT_EQ(tags().size(), 10u);
  EXPECT_THAT(view().selectedItems(), IsEmpty());
}

TEST_F(UICollectionViewTest, UpdatesInABatchAreCountedOnce) {
  source().itemCount = 10;
  show();
  bool isDone = false;
  send<void, "performBatchUpdates:completion:">(
      _view, Block<void()>([this] {
        source().itemCount = 12;
        send<void, "insertItemsAtIndexPaths:">(
            _view, NSArray::of(indexPathOf({0, 10}), indexPathOf({0, 11})));
      }),
      Block<void(bool)>([&isDone](bool finished) { isDone = finished; }));
  application().prepareFrame();
  EXPECT_TRUE(isDone);
  EXPECT_EQ(tags().size(), 12u);
}

TEST_F(UICollectionViewTest, ScrollingToAnItemShowsItWhereItWasAsked) {
  source().itemCount = 1000;
  show();
  struct Item {
    NSUInteger position;
    CGFloat offset;
  };
  for (const auto& [position, expected] :
       {Item{UICollectionViewState::top, 9400}, Item{UICollectionViewState::bottom, 9493 - 667},
        Item{UICollectionViewState::none, 9493 - 667}}) {
    scrollTo(0);
    send<void, "scrollToItemAtIndexPath:atScrollPosition:animated:">(_view, indexPathOf({0, 401}),
                                                                     position, false);
    EXPECT_EQ(scroll().contentOffset(), (CGPoint{0, expected})) << position;
  }
}

TEST_F(UICollectionViewTest, NothingStaysBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    source().itemCount = 1000;
    layout().headerHeight = 30;
    show();
    allowMultipleSelection();
    for (CGFloat y = 0; y < 5000; y += 300) scrollTo(y);
    scrollTo(0);
    tap(2);
    view().reloadData();
    scrollTo(500);
    close();
    application().advance(1);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

TEST_F(UICollectionViewTest, ALayoutMayOutliveItsView) {
  source().itemCount = 10;
  show();
  close();
  EXPECT_FALSE((send<id, "collectionView">(_layout)));
  UICollectionViewLayout(_layout.get().get()).invalidateLayout();
}

}  // namespace
}  // namespace desktop::uikit
