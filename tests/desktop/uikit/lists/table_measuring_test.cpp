// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_measuring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/table_source.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Answers heights of rows and titles.
class HeightDelegate : public Bound<HeightDelegate, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<HeightDelegate>("HeightDelegate")
            .method<"tableView:heightForRowAtIndexPath:", &HeightDelegate::row>()
            .method<"tableView:heightForHeaderInSection:", &HeightDelegate::header>()
            .build();
    return made;
  }
  CGFloat headerHeight = 0;

 private:
  CGFloat row(UIView, NSIndexPath path) const {
    return path.row() == 0 ? -1 : static_cast<CGFloat>(10 * path.row());
  }
  CGFloat header(UIView, NSInteger) const { return headerHeight; }
};

template <typename T>
Owned<NSObject> make() {
  return Owned<NSObject>::adopt(send<NSObject, "init">(send<id, "alloc">(T::classObject())));
}

// Measures without a table: any scroll view has a delegate.
class TableMeasuringTest : public ApplicationTest {
 protected:
  TableMeasuringTest() { source.setObject(sourceObject); }

  TableSource& answers() { return TableSource::of(sourceObject.get()); }
  std::vector<TableSection> measure(bool isGrouped) const {
    return TableMeasuring{.source = source,
                          .delegate = delegate,
                          .heights = heights,
                          .isGrouped = isGrouped,
                          .hasHeaderView = hasHeaderView,
                          .width = 320}
        .sections();
  }
  std::vector<CGFloat> headers(bool isGrouped) const {
    std::vector<CGFloat> all;
    for (const TableSection& section : measure(isGrouped)) all.push_back(section.headerHeight);
    return all;
  }

  const Owned<UIScrollView> view = bridge::makeView<UIScrollView>({});
  const Owned<NSObject> sourceObject = make<TableSource>();
  TableDataSource source{view};
  const TableDelegate delegate{view};
  TableHeights heights;
  bool hasHeaderView = false;
};

TEST_F(TableMeasuringTest, WithoutASourceThereAreNoSections) {
  source.setObject({});
  EXPECT_THAT(measure(false), IsEmpty());
}

TEST_F(TableMeasuringTest, RowsHaveTheHeightThatIsSetOrThePlatforms) {
  answers().rowCount = 3;
  heights.row = 20;
  EXPECT_EQ(measure(false).at(0).rowHeight, 20);
  EXPECT_EQ(measure(false).at(0).rows, 3);
  heights.row = -1;
  EXPECT_EQ(measure(false).at(0).rowHeight, 44);
}

TEST_F(TableMeasuringTest, TheDelegateGivesRowsHeightsOfTheirOwn) {
  const auto heightDelegate = make<HeightDelegate>();
  send<void, "setDelegate:">(view, heightDelegate);
  answers().rowCount = 3;
  EXPECT_THAT(measure(false).at(0).ownRowHeights, ElementsAre(44, 10, 20));
}

TEST_F(TableMeasuringTest, AGroupStandsApartFromTheOneAbove) {
  answers().sectionCount = 2;
  EXPECT_THAT(headers(true), ElementsAre(35, 18));
  EXPECT_THAT(headers(false), ElementsAre(0, 0));
  hasHeaderView = true;
  EXPECT_THAT(headers(true), ElementsAre(18, 18));
  heights.header = 7;
  EXPECT_THAT(headers(true), ElementsAre(7, 7));
  answers().headerTitle = "Title";
  EXPECT_THAT(headers(true), ElementsAre(38, 38));
  EXPECT_THAT(headers(false), ElementsAre(28, 28));
}

TEST_F(TableMeasuringTest, TheDelegatesHeaderHeightCountsMost) {
  const auto heightDelegate = make<HeightDelegate>();
  send<void, "setDelegate:">(view, heightDelegate);
  answers().headerTitle = "Title";
  EXPECT_THAT(headers(false), ElementsAre(0));
  EXPECT_THAT(headers(true), ElementsAre(38 + 35 - 18));
  HeightDelegate::of(heightDelegate.get()).headerHeight = 12;
  EXPECT_THAT(headers(true), ElementsAre(12));
}

TEST_F(TableMeasuringTest, NoMoreRowsAreCountedThanATableHasRoomFor) {
  answers().sectionCount = 3;
  answers().rowCount = 6'000'000;
  std::vector<NSInteger> rows;
  for (const TableSection& section : measure(false)) rows.push_back(section.rows);
  EXPECT_THAT(rows, ElementsAre(6'000'000, 4'000'000, 0));
}

}  // namespace
}  // namespace desktop::uikit
