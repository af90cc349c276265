// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_table_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/table_source.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A delegate that gives rows heights of their own.
class RowHeights : public Bound<RowHeights, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<RowHeights>("RowHeights")
            .method<"tableView:heightForRowAtIndexPath:", &RowHeights::height>()
            .build();
    return made;
  }
  std::vector<CGFloat> heights;  // repeated

 private:
  CGFloat height(UITableView, NSIndexPath path) const {
    return heights[static_cast<std::size_t>(path.row()) % heights.size()];
  }
};

template <typename T>
Owned<NSObject> make() {
  return Owned<NSObject>::adopt(send<NSObject, "init">(send<id, "alloc">(T::classObject())));
}

class UITableViewTest : public ApplicationTest {
 protected:
  UITableViewTest() : _source(make<TableSource>()), _watcher(make<TableWatcher>()) {}
  ~UITableViewTest() override {
    // The table goes before those it asks.
    if (_table) _table->removeFromSuperview();
    _table.reset();
  }

  TableSource& source() { return TableSource::of(_source.get()); }
  TableWatcher& watcher() { return TableWatcher::of(_watcher.get()); }

  // A table that fills the screen, below the window.
  UITableView show(NSInteger style = UITableViewState::plain) {
    _table = Owned<UITableView>::adopt(send<UITableView, "initWithFrame:style:">(
        send<id, "alloc">(UITableView::classObject()), rectOfSize(screen().size), style));
    send<void, "setDataSource:">(_table, _source);
    send<void, "setDelegate:">(_table, _watcher);
    window().addSubview(_table);
    application().prepareFrame();
    return _table;
  }

  UITableViewState& table() { return UITableViewState::of(_table.get()); }
  UIScrollViewState& scroll() { return UIScrollViewState::of(_table.get()); }
  UITableView object() { return _table; }

  void scrollTo(CGFloat y) {
    UIScrollView(_table.get().get()).setContentOffset({0, y});
    application().prepareFrame();
  }

  std::vector<std::string> texts() {
    std::vector<std::string> all;
    for (const auto& [path, cell] : table().cells()) all.push_back(cell->textLabel().text().utf8());
    return all;
  }

  UITableViewCellState& cell(ItemPath path) {
    return UITableViewCellState::of(table().cellForRow(indexPathOf(path)));
  }

  CGPoint middleOf(ItemPath path) {
    return apply(UIViewState::of(_table.get()).toScreen(),
                 middle(table().rectForRow(indexPathOf(path))));
  }

  void tap(CGPoint point) {
    touches().down(point);
    application().advance(0.05);
    touches().up(point);
    application().advance(0.02);
  }

  void hold(CGPoint point, Seconds time) {
    touches().down(point);
    application().advance(time);
  }

  Owned<NSObject> _source;
  Owned<NSObject> _watcher;
  Owned<UITableView> _table;
};

TEST_F(UITableViewTest, ExactlyTheRowsInSightHaveCells) {
  source().rowCount = 100;
  show();
  EXPECT_EQ(table().cells().size(), 16u);  // 667 / 44, the last in part
  EXPECT_EQ(table().cells().begin()->first, (ItemPath{0, 0}));
  EXPECT_EQ(table().cells().rbegin()->first, (ItemPath{0, 15}));
  scrollTo(440);
  EXPECT_EQ(table().cells().begin()->first, (ItemPath{0, 10}));
  EXPECT_EQ(table().cells().rbegin()->first, (ItemPath{0, 25}));
  EXPECT_EQ(texts().front(), "0.10");
  EXPECT_EQ(object().subviews().count(), 16u);
}

TEST_F(UITableViewTest, CellsAreUsedAgain) {
  source().rowCount = 100'000;
  show();
  for (CGFloat y = 0; y < 44 * 1000; y += 30) scrollTo(y);
  EXPECT_LE(source().cellsMade, 17);
  scrollTo(44 * 99'000);
  EXPECT_LE(source().cellsMade, 18);
  EXPECT_EQ(texts().front(), "0.99000");
  EXPECT_EQ(object().subviews().count(), table().cells().size());
}

TEST_F(UITableViewTest, CellsWithoutIdentifierAreMadeAnew) {
  source().usesIdentifier = false;
  source().rowCount = 100;
  show();
  const long alive = UITableViewCellState::liveObjects();
  scrollTo(44 * 50);
  EXPECT_EQ(source().cellsMade, 32);
  EXPECT_EQ(UITableViewCellState::liveObjects(), alive);
}

TEST_F(UITableViewTest, CellsThatTheSourceDoesNotShowGo) {
  source().wastesCells = true;
  source().rowCount = 100;
  show();
  for (CGFloat y = 0; y < 2000; y += 100) scrollTo(y);
  EXPECT_EQ(object().subviews().count(), table().cells().size());
}

TEST_F(UITableViewTest, ARegisteredClassMakesCells) {
  source().answer = TableSource::Answer::nothing;
  show();
  const auto identifier = NSString::make("registered");
  EXPECT_FALSE(object().dequeueCell(identifier));
  send<void, "registerClass:forCellReuseIdentifier:">(object(), UITableViewCellState::classObject(),
                                                      identifier);
  const auto made = object().dequeueCell(identifier);
  EXPECT_TRUE(UITableViewCellState::of(made).reuseIdentifier().isEqualToString(identifier));
}

TEST_F(UITableViewTest, RowsLieBelowEachOther) {
  source().sectionCount = 2;
  source().rowCount = 3;
  show();
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 2})), (CGRect{{0, 88}, {375, 44}}));
  EXPECT_EQ(table().rectForRow(indexPathOf({1, 0})), (CGRect{{0, 132}, {375, 44}}));
  EXPECT_EQ(cell({1, 0}).self().frame(), (CGRect{{0, 132}, {375, 44}}));
  EXPECT_EQ(scroll().contentSize(), (CGSize{375, 264}));
  EXPECT_EQ(table().rectForRow(indexPathOf({2, 0})), CGRect{});
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 3})), CGRect{});
  EXPECT_EQ(table().rectForRow({}), CGRect{});
}

TEST_F(UITableViewTest, APointIsInTheRowAroundIt) {
  source().sectionCount = 2;
  source().rowCount = 3;
  show();
  EXPECT_EQ(itemPathOf(table().indexPathForRowAt({10, 43.9})), (ItemPath{0, 0}));
  EXPECT_EQ(itemPathOf(table().indexPathForRowAt({10, 44})), (ItemPath{0, 1}));
  EXPECT_EQ(itemPathOf(table().indexPathForRowAt({10, 140})), (ItemPath{1, 0}));
  for (const CGPoint outside :
       {CGPoint{10, -1}, CGPoint{10, 264}, CGPoint{-1, 10}, CGPoint{375, 10}, CGPoint{NAN, NAN}})
    EXPECT_FALSE(table().indexPathForRowAt(outside)) << outside.x << ", " << outside.y;
}

TEST_F(UITableViewTest, AGroupedTableLeavesAGapUnlessItHasAHeader) {
  source().rowCount = 2;
  show(UITableViewState::grouped);
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 0})).origin.y, 35);
  const auto header = bridge::makeView<UIView>({{0, 0}, {0, std::numeric_limits<double>::min()}});
  object().setTableHeaderView(header);
  application().prepareFrame();
  EXPECT_LT(table().rectForRow(indexPathOf({0, 0})).origin.y, 20);
  EXPECT_EQ(UIViewState::of(object()).backgroundColor(), colors::groupedBackground);
}

TEST_F(UITableViewTest, HeadersAndFootersStandAroundTheirRows) {
  source().rowCount = 2;
  source().headerTitle = "Head";
  source().footerTitle = "Foot";
  show(UITableViewState::grouped);
  const CGRect first = table().rectForRow(indexPathOf({0, 0}));
  EXPECT_EQ(first.origin.y, 55);
  ASSERT_EQ(object().subviews().count(), 4u);
  std::vector<std::string> titles;
  for (const auto& view : UIViewState::of(object()).subviews())
    if (isKindOf(view, UITableViewHeaderFooterView::classObject()))
      titles.push_back(UITableViewHeaderFooterView::of(view.get()).textLabel().text().utf8());
  EXPECT_THAT(titles, ElementsAre("HEAD", "Foot"));
}

TEST_F(UITableViewTest, APlainHeaderStaysInSightWithItsSection) {
  source().sectionCount = 2;
  source().rowCount = 20;
  source().headerTitle = "Head";
  show();
  scrollTo(300);
  const auto header = [this] {
    CGRect least = {{0, std::numeric_limits<double>::max()}, {}};
    for (const auto& view : UIViewState::of(object()).subviews())
      if (isKindOf(view, UITableViewHeaderFooterView::classObject()) &&
          view->frame().origin.y < least.origin.y)
        least = view->frame();
    return least;
  };
  EXPECT_EQ(header(), (CGRect{{0, 300}, {375, 28}}));
  const CGFloat end = 28 + 20 * 44;  // of the first section
  scrollTo(end - 10);
  EXPECT_EQ(header(), (CGRect{{0, end - 28}, {375, 28}}));
}

TEST_F(UITableViewTest, RowsCanHaveHeightsOfTheirOwn) {
  source().rowCount = 1000;
  const auto heights = make<RowHeights>();
  RowHeights::of(heights.get()).heights = {10, 0, 90, -1, NAN};
  show();
  send<void, "setDelegate:">(object(), heights);
  application().prepareFrame();
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 2})), (CGRect{{0, 10}, {375, 90}}));
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 3})).size.height, 44);  // negative: the standard one
  EXPECT_EQ(table().rectForRow(indexPathOf({0, 4})).size.height, 0);
  EXPECT_FALSE(table().cellForRow(indexPathOf({0, 1})));  // nobody can see it
  EXPECT_EQ(itemPathOf(table().indexPathForRowAt({10, 10})), (ItemPath{0, 2}));
  scrollTo(144 * 150);
  EXPECT_EQ(texts().front(), "0.750");
  send<void, "setDelegate:">(object(), NSObject());
}

TEST_F(UITableViewTest, WithoutRowsThereIsNothing) {
  show();
  EXPECT_TRUE(table().cells().empty());
  EXPECT_EQ(scroll().contentSize(), (CGSize{375, 0}));
  source().sectionCount = 0;
  table().reloadData();
  application().prepareFrame();
  EXPECT_EQ(table().numberOfSections(), 0);
  EXPECT_EQ(table().numberOfRows(0), 0);
  tap({100, 100});
  EXPECT_THAT(watcher().events, IsEmpty());
}

TEST_F(UITableViewTest, ReloadingWhileScrolledShowsWhatIsThereNow) {
  source().rowCount = 1000;
  show();
  scrollTo(44 * 500);
  const int made = source().cellsMade;
  table().reloadData();
  application().prepareFrame();
  EXPECT_EQ(texts().front(), "0.500");
  EXPECT_EQ(source().cellsMade, made);
  source().rowCount = 20;
  table().reloadData();
  application().prepareFrame();
  EXPECT_EQ(scroll().contentOffset(), (CGPoint{0, 20 * 44 - 667}));
  EXPECT_EQ(texts().back(), "0.19");
}

TEST_F(UITableViewTest, CountsAreAskedForOnceUntilReloaded) {
  source().rowCount = 50;
  show();
  const int asked = source().countsAsked;
  scrollTo(100);
  table().numberOfRows(0);
  EXPECT_EQ(source().countsAsked, asked);
  table().reloadData();
  EXPECT_EQ(table().numberOfRows(0), 50);
  EXPECT_EQ(source().countsAsked, asked + 1);
}

TEST_F(UITableViewTest, AbsurdCountsAreLimited) {
  constexpr NSInteger most = std::numeric_limits<NSInteger>::max();
  constexpr NSInteger least = std::numeric_limits<NSInteger>::min();
  for (const auto& [sections, rows] : std::vector<std::pair<NSInteger, NSInteger>>{
           {-1, 5}, {least, 5}, {1, -1}, {1, least}, {1, most}, {3, most}, {most, most}}) {
    source().sectionCount = sections;
    source().rowCount = rows;
    show();
    EXPECT_LE(table().cells().size(), 16u) << sections << " sections of " << rows;
    EXPECT_TRUE(std::isfinite(scroll().contentSize().height));
    scrollTo(1e300);
    scrollTo(-1e300);
    scrollTo(0);
    _table->removeFromSuperview();
  }
}

TEST_F(UITableViewTest, WhatIsNoCellIsShownAsAnEmptyRow) {
  source().rowCount = 5;
  for (const auto answer : {TableSource::Answer::nothing, TableSource::Answer::text}) {
    source().answer = answer;
    show();
    EXPECT_EQ(table().cells().size(), 5u);
    scrollTo(10);
    _table->removeFromSuperview();
  }
}

TEST_F(UITableViewTest, OneCellForAllRowsIsShownOnce) {
  source().rowCount = 100;
  source().answer = TableSource::Answer::always;
  show();
  scrollTo(100);
  EXPECT_EQ(table().cells().size(), 1u);
  EXPECT_EQ(object().subviews().count(), 1u);
  _table->removeFromSuperview();
}

TEST_F(UITableViewTest, ASourceThatAlwaysReloadsDoesNotHang) {
  source().rowCount = 100;
  source().reloadsMeanwhile = true;
  show();
  application().advance(0.1);
  EXPECT_TRUE(table().cells().empty());
  source().reloadsMeanwhile = false;
  table().reloadData();
  application().prepareFrame();
  EXPECT_EQ(table().cells().size(), 16u);
}

TEST_F(UITableViewTest, LowRowsDoNotFillTheMemory) {
  source().rowCount = 1'000'000;
  show();
  send<void, "setRowHeight:">(object(), 1e-9);
  application().prepareFrame();
  EXPECT_LE(table().cells().size(), TableGeometry::maximalRowsInSight);
  for (const CGFloat height : {double{NAN}, double{INFINITY}, -double{INFINITY}, 1e308}) {
    send<void, "setRowHeight:">(object(), height);
    application().prepareFrame();
    EXPECT_LE(table().cells().size(), 16u) << height;
  }
}

TEST_F(UITableViewTest, AFrameOfAnotherWidthWidensRows) {
  source().rowCount = 5;
  show();
  object().setFrame({{0, 0}, {500, 300}});
  application().prepareFrame();
  EXPECT_EQ(cell({0, 1}).self().frame(), (CGRect{{0, 44}, {500, 44}}));
  EXPECT_EQ(scroll().contentSize().width, 500);
  object().setFrame({});
  application().prepareFrame();
  EXPECT_TRUE(table().cells().empty());
}

TEST_F(UITableViewTest, ATapSelectsTheRow) {
  source().rowCount = 100;
  show();
  scrollTo(440);
  hold(middleOf({0, 12}), 0.2);
  EXPECT_TRUE(cell({0, 12}).isHighlighted());
  EXPECT_TRUE(cell({0, 12}).looksSelected());
  touches().up(middleOf({0, 12}));
  EXPECT_FALSE(cell({0, 12}).isHighlighted());
  EXPECT_TRUE(cell({0, 12}).isSelected());
  tap(middleOf({0, 13}));
  EXPECT_FALSE(cell({0, 12}).isSelected());
  EXPECT_THAT(watcher().events, ElementsAre("select 0.12", "deselect 0.12", "select 0.13"));
  EXPECT_EQ(table().selectedRow(), (ItemPath{0, 13}));
}

TEST_F(UITableViewTest, TheDelegateCanRefuseASelection) {
  source().rowCount = 10;
  watcher().allowsSelection = false;
  show();
  tap(middleOf({0, 3}));
  EXPECT_FALSE(table().selectedRow());
  EXPECT_THAT(watcher().events, IsEmpty());
  send<void, "setAllowsSelection:">(object(), false);
  hold(middleOf({0, 3}), 0.2);
  EXPECT_FALSE(cell({0, 3}).isHighlighted());
}

TEST_F(UITableViewTest, AFingerThatScrollsSelectsNothing) {
  source().rowCount = 100;
  show();
  hold(middleOf({0, 10}), 0.2);
  EXPECT_TRUE(cell({0, 10}).isHighlighted());
  const CGPoint from = middleOf({0, 10});
  for (CGFloat y = 0; y <= 200; y += 20) {
    touches().move({from.x, from.y - y});
    application().advance(0.02);
  }
  EXPECT_GT(scroll().contentOffset().y, 100);
  EXPECT_FALSE(cell({0, 10}).isHighlighted());
  touches().up({from.x, from.y - 200});
  application().advance(3);
  EXPECT_THAT(watcher().events, IsEmpty());
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
}

TEST_F(UITableViewTest, AFingerThatMovesAwaySelectsNothing) {
  source().rowCount = 8;
  show();
  hold(middleOf({0, 3}), 0.2);
  EXPECT_TRUE(cell({0, 3}).isHighlighted());
  touches().move(middleOf({0, 5}));
  application().advance(0.02);
  EXPECT_FALSE(cell({0, 3}).isHighlighted());
  touches().up(middleOf({0, 5}));
  hold(middleOf({0, 6}), 0.2);
  EXPECT_TRUE(cell({0, 6}).isHighlighted());
  touches().cancel();
  application().advance(1);
  EXPECT_THAT(watcher().events, IsEmpty());
}

TEST_F(UITableViewTest, ARowOfNoSelectionStyleIsSelectedUnseen) {
  source().rowCount = 10;
  show();
  cell({0, 2}).setSelectionStyle(UITableViewCellState::noSelection);
  tap(middleOf({0, 2}));
  EXPECT_THAT(watcher().events, ElementsAre("select 0.2"));
  EXPECT_TRUE(cell({0, 2}).isSelected());
  EXPECT_FALSE(cell({0, 2}).looksSelected());
}

TEST_F(UITableViewTest, SelectionByCodeTellsNobody) {
  source().rowCount = 100;
  show();
  send<void, "selectRowAtIndexPath:animated:scrollPosition:">(object(), indexPathOf({0, 50}), false,
                                                              NSInteger{UITableViewState::middle});
  application().prepareFrame();
  EXPECT_TRUE(cell({0, 50}).isSelected());
  EXPECT_EQ(scroll().contentOffset().y, 50 * 44 - (667 - 44) / 2.0);
  const auto selected = send<NSIndexPath, "indexPathForSelectedRow">(object());
  EXPECT_EQ(itemPathOf(selected), (ItemPath{0, 50}));
  object().deselectRow(selected, UIViewController::animated);
  EXPECT_FALSE(cell({0, 50}).isSelected());
  EXPECT_FALSE((send<NSIndexPath, "indexPathForSelectedRow">(object())));
  EXPECT_THAT(watcher().events, IsEmpty());
}

TEST_F(UITableViewTest, ASelectedRowIsStillSelectedWhenItComesBack) {
  source().rowCount = 100;
  show();
  tap(middleOf({0, 2}));
  scrollTo(44 * 50);
  for (const auto& [path, shown] : table().cells())
    EXPECT_FALSE(UITableViewCellState::of(shown.get()).isSelected()) << textOf(path);
  scrollTo(0);
  EXPECT_TRUE(cell({0, 2}).isSelected());
}

TEST_F(UITableViewTest, ADelegateMayReloadOnSelection) {
  source().rowCount = 10;
  watcher().reloadsOnSelection = true;
  show();
  tap(middleOf({0, 2}));
  EXPECT_FALSE(table().selectedRow());
  EXPECT_EQ(table().cells().size(), 10u);
}

TEST_F(UITableViewTest, ALongPressShowsTheEditMenu) {
  source().rowCount = 10;
  show();
  hold(middleOf({0, 3}), 0.45);
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
  application().advance(0.1);
  EXPECT_TRUE(UIMenuControllerState::shared().isVisible());
  EXPECT_THAT(UIMenuControllerState::shared().titles(), ElementsAre("Copy"));
  touches().up(middleOf({0, 3}));
  UIMenuControllerState::shared().run(0);
  EXPECT_THAT(watcher().events, ElementsAre("menu 0.3", "copy: 0.3"));
  EXPECT_EQ(watcher().sender, UIMenuControllerState::sharedMenuController());
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
}

TEST_F(UITableViewTest, TheMenuHasTheCommandsThatTheDelegateKnows) {
  source().rowCount = 10;
  watcher().allowedActions = "paste: cut: copy:";
  show();
  hold(middleOf({0, 1}), 0.6);
  EXPECT_THAT(UIMenuControllerState::shared().titles(), ElementsAre("Cut", "Copy", "Paste"));
  _table->removeFromSuperview();
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
}

TEST_F(UITableViewTest, WithoutAMenuALongPressEndsAsATap) {
  source().rowCount = 10;
  watcher().showsMenu = false;
  show();
  hold(middleOf({0, 3}), 1);
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
  touches().up(middleOf({0, 3}));
  EXPECT_THAT(watcher().events, ElementsAre("menu 0.3", "select 0.3"));
}

TEST_F(UITableViewTest, ATableThatGoesTakesItsMenuAlong) {
  source().rowCount = 10;
  show();
  hold(middleOf({0, 3}), 0.6);
  ASSERT_TRUE(UIMenuControllerState::shared().isVisible());
  _table->removeFromSuperview();
  _table.reset();
  application().advance(1);
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
}

TEST_F(UITableViewTest, ScrollingToARowShowsItWhereItWasAsked) {
  source().rowCount = 100;
  show();
  struct Row {
    NSInteger position;
    CGFloat from;
    CGFloat offset;
  };
  for (const auto& [position, from, expected] :
       {Row{UITableViewState::top, 0, 2200}, Row{UITableViewState::bottom, 0, 2244 - 667},
        Row{UITableViewState::none, 0, 2244 - 667}, Row{UITableViewState::none, 2000, 2000},
        Row{UITableViewState::none, 3000, 2200}}) {
    scrollTo(from);
    send<void, "scrollToRowAtIndexPath:atScrollPosition:animated:">(object(), indexPathOf({0, 50}),
                                                                    position, false);
    EXPECT_EQ(scroll().contentOffset().y, expected) << position << " from " << from;
  }
  send<void, "scrollToRowAtIndexPath:atScrollPosition:animated:">(
      object(), indexPathOf({0, 100}), NSInteger{UITableViewState::top}, false);
  EXPECT_EQ(scroll().contentOffset().y, 2200);
}

TEST_F(UITableViewTest, GroupedRowsHaveHairlinesAroundAndBetween) {
  source().rowCount = 3;
  show(UITableViewState::grouped);
  EXPECT_TRUE(cell({0, 0}).separators().above);
  EXPECT_EQ(cell({0, 0}).separators().insetBelow, 16);
  EXPECT_FALSE(cell({0, 1}).separators().above);
  EXPECT_EQ(cell({0, 2}).separators().insetBelow, 0);
  send<void, "setSeparatorStyle:">(object(), NSInteger{UITableViewState::noSeparators});
  EXPECT_FALSE(cell({0, 1}).separators().below);
}

TEST_F(UITableViewTest, NothingStaysBehind) {
  touches().abandon();
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    source().rowCount = 1000;
    source().headerTitle = "Head";
    show(UITableViewState::grouped);
    for (CGFloat y = 0; y < 5000; y += 300) scrollTo(y);
    tap(middleOf({0, 105}));
    hold(middleOf({0, 106}), 0.6);
    touches().up(middleOf({0, 106}));
    table().reloadData();
    scrollTo(0);
    _table->removeFromSuperview();
    _table.reset();
    application().advance(1);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
