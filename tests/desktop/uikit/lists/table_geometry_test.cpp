// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TableGeometry twoSections() {
  return TableGeometry({{.headerHeight = 10, .rows = 2, .rowHeight = 20, .footerHeight = 5},
                        {.headerHeight = 0, .rows = 3, .rowHeight = 30, .footerHeight = 0}},
                       100);
}

TEST(TableGeometry, SectionsFollowEachOther) {
  const TableGeometry table = twoSections();
  EXPECT_EQ(table.header(0), (Band{100, 10}));
  EXPECT_EQ(table.row({0, 1}), (Band{130, 20}));
  EXPECT_EQ(table.footer(0), (Band{150, 5}));
  EXPECT_EQ(table.section(1), (Band{155, 90}));
  EXPECT_EQ(table.row({1, 2}), (Band{215, 30}));
  EXPECT_EQ(table.bottom(), 245);
}

TEST(TableGeometry, WhatIsNotThereIsEmpty) {
  const TableGeometry table = twoSections();
  for (const ItemPath path : {ItemPath{-1, 0}, ItemPath{0, -1}, ItemPath{0, 2}, ItemPath{2, 0}})
    EXPECT_EQ(table.row(path), Band{}) << path.section << ", " << path.item;
  EXPECT_EQ(table.header(2), Band{});
  EXPECT_EQ(table.footer(-1), Band{});
  EXPECT_EQ(table.rows(7), 0);
}

TEST(TableGeometry, AHeightIsInTheRowAroundItOrInNone) {
  const TableGeometry table = twoSections();
  struct Place {
    CGFloat y;
    std::optional<ItemPath> row;
  };
  for (const auto& [y, row] :
       {Place{99, {}}, Place{105, {}}, Place{110, ItemPath{0, 0}}, Place{149, ItemPath{0, 1}},
        Place{150, {}}, Place{155, ItemPath{1, 0}}, Place{244.9, ItemPath{1, 2}}, Place{245, {}},
        Place{double{NAN}, {}}})
    EXPECT_EQ(table.rowAt(y), row) << y;
}

TEST(TableGeometry, RowsInSightAreThoseThatTouchIt) {
  const TableGeometry table = twoSections();
  EXPECT_THAT(table.rowsIn({140, 20}), ElementsAre(ItemPath{0, 1}, ItemPath{1, 0}));
  EXPECT_THAT(table.rowsIn({130, 20}), ElementsAre(ItemPath{0, 1}));
  EXPECT_THAT(table.rowsIn({0, 100}), IsEmpty());
  EXPECT_THAT(table.rowsIn({245, 100}), IsEmpty());
  EXPECT_THAT(table.rowsIn({110, 0}), IsEmpty());
}

TEST(TableGeometry, HeightsThatAreNoneCountAsZero) {
  const TableGeometry table({{.headerHeight = NAN,
                              .rows = 3,
                              .rowHeight = -5,
                              .ownRowHeights = {INFINITY, 7},
                              .footerHeight = -1}},
                            0);
  EXPECT_EQ(table.row({0, 1}), (Band{0, 7}));
  EXPECT_EQ(table.bottom(), 7);
  EXPECT_THAT(table.rowsIn({0, 100}), ElementsAre(ItemPath{0, 1}));
}

// Random tables, row by row beside a plain list of them all.
TEST(TableGeometry, AgreesWithAListOfAllRows) {
  constexpr unsigned seed = 20'240'611;
  std::mt19937 random(seed);
  const auto upTo = [&](int most) { return static_cast<int>(random() % unsigned(most + 1)); };
  for (int round = 0; round < 200; ++round) {
    std::vector<TableSection> sections(static_cast<std::size_t>(upTo(5)));
    for (TableSection& section : sections) {
      section = {.headerHeight = double(upTo(3)), .rows = upTo(8), .rowHeight = double(upTo(4))};
      section.footerHeight = upTo(3);
      for (int own = upTo(9); own > 0; --own) section.ownRowHeights.push_back(upTo(5));
    }
    const TableGeometry table(sections, 2);
    const Band sight = {double(upTo(60)), double(upTo(40))};
    std::vector<ItemPath> inSight;
    CGFloat y = 2;
    for (std::size_t index = 0; index < sections.size(); ++index) {
      const TableSection& section = sections[index];
      y += section.headerHeight;
      for (NSInteger row = 0; row < section.rows; ++row) {
        const auto at = static_cast<std::size_t>(row);
        const CGFloat height =
            at < section.ownRowHeights.size() ? section.ownRowHeights[at] : section.rowHeight;
        const ItemPath path = {static_cast<NSInteger>(index), row};
        ASSERT_EQ(table.row(path), (Band{y, height})) << "seed " << seed << ", round " << round;
        if (height > 0) {
          ASSERT_EQ(table.rowAt(y), path) << "seed " << seed << ", round " << round;
        }
        if (height > 0 && y < sight.bottom() && y + height > sight.top) inSight.push_back(path);
        y += height;
      }
      y += section.footerHeight;
    }
    ASSERT_EQ(table.bottom(), y);
    ASSERT_EQ(table.rowsIn(sight), inSight) << "seed " << seed << ", round " << round;
  }
}

}  // namespace
}  // namespace desktop::uikit
