// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/section_titles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr auto header = UITableViewHeaderFooterView::Place::header;
constexpr auto footer = UITableViewHeaderFooterView::Place::footer;

// Sections of 100 points, the second without a footer.
TableGeometry threeSections() {
  return TableGeometry({{.headerHeight = 20, .rows = 7, .rowHeight = 10, .footerHeight = 10},
                        {.headerHeight = 20, .rows = 8, .rowHeight = 10},
                        {.headerHeight = 20, .rows = 7, .rowHeight = 10, .footerHeight = 10}},
                       0);
}

TEST(TitlesIn, AreThoseOfTheSectionsInSightThatHaveHeight) {
  EXPECT_THAT(titlesIn(threeSections(), {50, 100}, 50, true),
              ElementsAre(Pair(TitlePlace{0, header}, Band{0, 20}),
                          Pair(TitlePlace{0, footer}, Band{90, 10}),
                          Pair(TitlePlace{1, header}, Band{100, 20})));
}

TEST(TitlesIn, APlainHeaderStaysInSightAsLongAsItsSection) {
  const TableGeometry table = threeSections();
  const auto firstHeader = [&](CGFloat sightTop) {
    return titlesIn(table, {sightTop, 100}, sightTop, false).at({0, header});
  };
  EXPECT_EQ(firstHeader(-30), (Band{0, 20}));
  EXPECT_EQ(firstHeader(50), (Band{50, 20}));
  EXPECT_EQ(firstHeader(95), (Band{80, 20}));
}

class SectionTitlesTest : public ApplicationTest {
 protected:
  void follow(const std::map<TitlePlace, CGRect>& wanted) {
    titles.follow(wanted, Inquiry::Pass(inquiry), table, [this](TitlePlace) -> UIView {
      ++made;
      if (changesMeanwhile) inquiry.outdate();
      if (hasNone) return {};
      return UITableViewHeaderFooterView::make(NSString::make("Title"), header, false);
    });
  }

  const Owned<UIView> table = bridge::makeView<UIView>({});
  Inquiry inquiry;
  SectionTitles titles;
  int made = 0;
  bool changesMeanwhile = false;
  bool hasNone = false;
};

TEST_F(SectionTitlesTest, StayWhileTheyAreInSight) {
  follow({{{0, header}, {{0, 0}, {100, 20}}}, {{0, footer}, {{0, 90}, {100, 10}}}});
  ASSERT_EQ(table->subviews().count(), 2u);
  const UIView first = as<UIView>(table->subviews().at(0));
  follow({{{0, header}, {{0, 5}, {100, 20}}}});
  EXPECT_EQ(made, 2);
  ASSERT_EQ(table->subviews().count(), 1u);
  EXPECT_EQ(table->subviews().at(0), first);
  EXPECT_EQ(first.frame(), (CGRect{{0, 5}, {100, 20}}));
  titles.removeAll();
  EXPECT_EQ(table->subviews().count(), 0u);
}

TEST_F(SectionTitlesTest, WithoutATitleNothingIsShown) {
  hasNone = true;
  follow({{{0, header}, {{0, 0}, {100, 20}}}});
  EXPECT_EQ(table->subviews().count(), 0u);
}

TEST_F(SectionTitlesTest, WhatBecameOldWhileItWasMadeIsNotShown) {
  changesMeanwhile = true;
  follow({{{0, header}, {{0, 0}, {100, 20}}}, {{0, footer}, {{0, 90}, {100, 10}}}});
  EXPECT_EQ(made, 1);
  EXPECT_EQ(table->subviews().count(), 0u);
}

}  // namespace
}  // namespace desktop::uikit
