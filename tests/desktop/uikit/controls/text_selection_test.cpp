// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/text_selection.h"

#include <gtest/gtest.h>

namespace desktop::uikit {
namespace {

using Range = std::optional<NSRange>;

constexpr std::size_t textLength = 20;

TEST(TextSelection, NothingIsSelectedAtFirst) {
  const TextSelection selection;
  EXPECT_EQ(selection.range(), std::nullopt);
  EXPECT_EQ(selection.units(), (NSRange{0, 0}));
  EXPECT_FALSE(selection.hasText());
}

TEST(TextSelection, IsCutToTheText) {
  struct Row {
    NSRange wanted;
    NSRange selected;
  };
  for (const auto& [wanted, selected] :
       {Row{{3, 4}, {3, 4}}, Row{{18, 100}, {18, 2}}, Row{{100, 5}, {20, 0}},
        Row{{1, ~NSUInteger{0}}, {1, 19}}}) {
    TextSelection selection;
    EXPECT_TRUE(selection.set(wanted, textLength));
    EXPECT_EQ(selection.range(), Range(selected));
    EXPECT_EQ(selection.hasText(), selected.length > 0);
    EXPECT_EQ(selection.start(), selected.location);
    EXPECT_EQ(selection.end(), selected.location + selected.length);
  }
}

TEST(TextSelection, SaysWhetherItIsAnotherOne) {
  TextSelection selection;
  EXPECT_FALSE(selection.set(std::nullopt, textLength));
  EXPECT_TRUE(selection.set(NSRange{0, 0}, textLength));  // a caret
  EXPECT_FALSE(selection.set(NSRange{0, 0}, textLength));
  EXPECT_TRUE(selection.set(NSRange{18, 2}, textLength));
  EXPECT_FALSE(selection.set(NSRange{18, 7}, textLength));
  EXPECT_TRUE(selection.set(std::nullopt, textLength));
}

TEST(TextSelection, APressReachesFromItsWordToAnother) {
  TextSelection selection;
  selection.press({6, 4});
  EXPECT_EQ(selection.pressedTo({6, 4}), (NSRange{6, 4}));
  EXPECT_EQ(selection.pressedTo({12, 3}), (NSRange{6, 9}));
  EXPECT_EQ(selection.pressedTo({1, 2}), (NSRange{1, 9}));
}

TEST(TextSelection, TheEndThatIsNotHeldStays) {
  TextSelection selection;
  selection.set(NSRange{5, 5}, textLength);
  selection.hold(true);
  EXPECT_EQ(selection.draggedTo(2), Range({2, 8}));
  EXPECT_EQ(selection.draggedTo(14), Range({10, 4}));
  selection.hold(false);
  EXPECT_EQ(selection.draggedTo(14), Range({5, 9}));
  EXPECT_EQ(selection.draggedTo(2), Range({2, 3}));
}

TEST(TextSelection, TheFixedEndStaysWhileTheSelectionFollows) {
  TextSelection selection;
  selection.set(NSRange{5, 5}, textLength);
  selection.hold(true);
  selection.set(selection.draggedTo(14), textLength);
  EXPECT_EQ(selection.draggedTo(2), Range({2, 8}));
}

TEST(TextSelection, AtLeastOneUnitStaysSelected) {
  TextSelection selection;
  selection.set(NSRange{5, 5}, textLength);
  selection.hold(true);
  EXPECT_EQ(selection.draggedTo(10), std::nullopt);
  selection.hold(false);
  EXPECT_EQ(selection.draggedTo(5), std::nullopt);
}

}  // namespace
}  // namespace desktop::uikit
