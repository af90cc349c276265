// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_selection.h"

#include <gmock/gmock.h>

#include "tests/desktop/photos_ui/grid_owner.h"

namespace desktop::photos_ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridSelectionTest : public GridPartTest {
 protected:
  void select(NSInteger item) const {
    send<void, "selectItemAtIndexPath:animated:scrollPosition:">(
        grid().view(), uikit::indexPathOf({0, item}), false, NSUInteger{0});
  }
  std::vector<std::string> selected() const {
    std::vector<std::string> names;
    for (const auto& item : selection().items()) names.emplace_back(item->name());
    return names;
  }
};

TEST_F(GridSelectionTest, ListsItemsInTheirOrder) {
  show(sampleList(8));
  selection().setOn(true);
  EXPECT_TRUE(selection().isEmpty());
  select(5);
  select(2);
  EXPECT_THAT(selected(), ElementsAre("2", "5"));
  EXPECT_FALSE(selection().isEmpty());
}

TEST_F(GridSelectionTest, CountsOnlyInSelectMode) {
  show(sampleList(8));
  select(3);
  EXPECT_THAT(selected(), IsEmpty()) << "a tap that opens";
  selection().setOn(true);
  EXPECT_THAT(selected(), IsEmpty()) << "select mode begins with none";
  select(4);
  selection().setOn(false);
  selection().setOn(true);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(GridSelectionTest, SelectsTheSameFilesInAnotherList) {
  show(sampleList(8));
  selection().setOn(true);
  for (const NSInteger each : {1, 4, 6}) select(each);
  const auto before = selection().items();
  show(sampleList(8, {0, 4}));
  EXPECT_THAT(selected(), IsEmpty());
  selection().selectAgain(before);
  EXPECT_THAT(selected(), ElementsAre("1", "6"));
}

}  // namespace
}  // namespace desktop::photos_ui
