// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/table_geometry.h"

#include <algorithm>
#include <cmath>

namespace desktop::uikit {
namespace {

constexpr CGFloat maximalHeight = 1e7;  // of a row, header or footer

CGFloat sane(CGFloat height) {
  return std::isfinite(height) ? std::clamp(height, 0.0, maximalHeight) : 0;
}

std::vector<CGFloat> bottomsOf(const std::vector<CGFloat>& heights) {
  std::vector<CGFloat> bottoms;
  bottoms.reserve(heights.size());
  CGFloat bottom = 0;
  for (const CGFloat height : heights) bottoms.push_back(bottom += sane(height));
  return bottoms;
}

}  // namespace

TableGeometry::TableGeometry(const std::vector<TableSection>& sections, CGFloat top)
    : _bottom(top) {
  _sections.reserve(sections.size());
  for (const TableSection& given : sections) {
    Section made;
    made.top = _bottom;
    made.rowsTop = made.top + sane(given.headerHeight);
    made.rows = std::max(given.rows, 0L);
    made.rowHeight = sane(given.rowHeight);
    made.ownBottoms = bottomsOf(given.ownRowHeights);
    made.ownBottoms.resize(std::min(made.ownBottoms.size(), static_cast<std::size_t>(made.rows)));
    made.rowsBottom = made.rowTop(made.rows);
    made.bottom = _bottom = made.rowsBottom + sane(given.footerHeight);
    _sections.push_back(std::move(made));
  }
}

CGFloat TableGeometry::Section::rowTop(NSInteger row) const {
  const auto own = static_cast<NSInteger>(ownBottoms.size());
  if (row <= 0) return rowsTop;
  if (row <= own) return rowsTop + ownBottoms[static_cast<std::size_t>(row - 1)];
  const CGFloat ownBottom = own > 0 ? ownBottoms.back() : 0;
  return rowsTop + ownBottom + static_cast<CGFloat>(row - own) * rowHeight;
}

// The first row whose bottom lies below a height; `rows` where none does.
NSInteger TableGeometry::Section::firstRowBelow(CGFloat y) const {
  NSInteger low = 0;
  NSInteger high = rows;
  while (low < high) {
    const NSInteger mid = low + (high - low) / 2;
    if (rowTop(mid + 1) > y) {
      high = mid;
    } else {
      low = mid + 1;
    }
  }
  return low;
}

const TableGeometry::Section* TableGeometry::at(NSInteger section) const {
  return section >= 0 && section < sections() ? &_sections[static_cast<std::size_t>(section)]
                                              : nullptr;
}

NSInteger TableGeometry::rows(NSInteger section) const {
  const Section* found = at(section);
  return found ? found->rows : 0;
}

bool TableGeometry::contains(ItemPath path) const {
  return path.item >= 0 && path.item < rows(path.section);
}

Band TableGeometry::row(ItemPath path) const {
  if (!contains(path)) return {};
  const Section& section = *at(path.section);
  const CGFloat top = section.rowTop(path.item);
  return {top, section.rowTop(path.item + 1) - top};
}

Band TableGeometry::header(NSInteger section) const {
  const Section* found = at(section);
  return found ? Band{found->top, found->rowsTop - found->top} : Band{};
}

Band TableGeometry::footer(NSInteger section) const {
  const Section* found = at(section);
  return found ? Band{found->rowsBottom, found->bottom - found->rowsBottom} : Band{};
}

Band TableGeometry::section(NSInteger section) const {
  const Section* found = at(section);
  return found ? Band{found->top, found->bottom - found->top} : Band{};
}

std::pair<NSInteger, NSInteger> TableGeometry::sectionsIn(Band sight) const {
  const auto first = std::ranges::upper_bound(_sections, sight.top, {}, &Section::bottom);
  const auto end =
      std::lower_bound(first, _sections.end(), sight.bottom(),
                       [](const Section& section, CGFloat y) { return section.top < y; });
  return {first - _sections.begin(), end - _sections.begin()};
}

std::optional<ItemPath> TableGeometry::rowAt(CGFloat y) const {
  const auto found = std::ranges::upper_bound(_sections, y, {}, &Section::rowsBottom);
  if (found == _sections.end() || !(y >= found->rowsTop)) return {};
  const NSInteger row = found->firstRowBelow(y);
  if (row >= found->rows) return {};
  return ItemPath{found - _sections.begin(), row};
}

std::vector<ItemPath> TableGeometry::rowsIn(Band sight) const {
  std::vector<ItemPath> paths;
  const auto [first, end] = sectionsIn(sight);
  for (NSInteger index = first; index < end; ++index) {
    const Section& section = *at(index);
    for (NSInteger row = section.firstRowBelow(sight.top); row < section.rows; ++row) {
      const CGFloat top = section.rowTop(row);
      if (!(top < sight.bottom()) || paths.size() == maximalRowsInSight) break;
      if (section.rowTop(row + 1) > top) paths.push_back({index, row});
    }
  }
  return paths;
}

}  // namespace desktop::uikit
