// SPDX-License-Identifier: MIT
//
// Where the rows, headers and footers of a table lie from top to bottom, in points. Rows of one
// height cost nothing each, others a number each; whatever is asked is found by halving.
#pragma once

#include <utility>
#include <vector>

#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

// Part of a table from top to bottom, over its whole width.
struct Band {
  CGFloat top = 0;
  CGFloat height = 0;
  CGFloat bottom() const { return top + height; }
  bool operator==(const Band&) const = default;
};

// What a section is made of. Heights that are negative or not finite count as 0; there is a limit.
struct TableSection {
  CGFloat headerHeight = 0;
  NSInteger rows = 0;
  CGFloat rowHeight = 0;                 // of each row, but for those of
  std::vector<CGFloat> ownRowHeights{};  // the first rows, where they differ
  CGFloat footerHeight = 0;
};

class TableGeometry {
 public:
  // More rows than this are never in sight at once, however low they are.
  static constexpr std::size_t maximalRowsInSight = 1000;

  TableGeometry() = default;
  // `top` is where the first section begins.
  TableGeometry(const std::vector<TableSection>& sections, CGFloat top);

  NSInteger sections() const { return static_cast<NSInteger>(_sections.size()); }
  NSInteger rows(NSInteger section) const;  // 0 where there is no such section
  bool contains(ItemPath path) const;
  CGFloat bottom() const { return _bottom; }

  // All are empty where there is no such row or section.
  Band row(ItemPath path) const;
  Band header(NSInteger section) const;
  Band footer(NSInteger section) const;
  Band section(NSInteger section) const;

  // The row at a height.
  std::optional<ItemPath> rowAt(CGFloat y) const;
  // The rows that a stretch touches, in order; rows without height are in sight of nobody.
  std::vector<ItemPath> rowsIn(Band sight) const;
  // The sections that a stretch touches: the first, and the one after the last.
  std::pair<NSInteger, NSInteger> sectionsIn(Band sight) const;

 private:
  struct Section {
    CGFloat top = 0;
    CGFloat rowsTop = 0;
    NSInteger rows = 0;
    CGFloat rowHeight = 0;
    std::vector<CGFloat> ownBottoms;  // of the first rows, from rowsTop
    CGFloat rowsBottom = 0;
    CGFloat bottom = 0;

    CGFloat rowTop(NSInteger row) const;  // one after the last too
    NSInteger firstRowBelow(CGFloat y) const;
  };

  const Section* at(NSInteger section) const;

  std::vector<Section> _sections;
  CGFloat _bottom = 0;
};

}  // namespace desktop::uikit
