// SPDX-License-Identifier: MIT
//
// A layout pass asks once how wide each column is, by message, as extensions change that, and then
// adds up where each section begins. Every other question is arithmetic on these: an item's row and
// column follow from its number, and the rows in a rectangle from the height of one.
#include "desktop/photos_ui/grid/pu_sectioned_grid_layout.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/ui_collection_view_layout.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

namespace desktop::photos_ui {
namespace {

using Attributes = uikit::UICollectionViewLayoutAttributesState;

constexpr NSInteger mostColumns = 100;
constexpr CGFloat leastSide = 1;           // points
constexpr CGFloat gapBetweenSections = 6;  // points, where sections have headers
constexpr NSInteger headerOrder = 1;       // headers lie above items

CGFloat saneSide(CGFloat side) {
  constexpr CGFloat most = 10'000;
  return std::isfinite(side) ? std::clamp(side, leastSide, most) : leastSide;
}

}  // namespace

Class PUSectionedGridLayoutState::classObject() {
  using Self = PUSectionedGridLayoutState;
  static const Class made =
      ClassBuilder<Self>("PUSectionedGridLayout")
          .method<"delegate", &Self::delegate>()
          .method<"setDelegate:", &Self::setDelegate>()
          .method<"columnsPerRow", &Self::columnsPerRow>()
          .method<"setColumnsPerRow:", &Self::setColumnsPerRow>()
          .method<"interItemSpacing", &Self::interItemSpacing>()
          .method<"setInterItemSpacing:", &Self::setInterItemSpacing>()
          .method<"itemSize", &Self::itemSize>()
          .method<"setItemSize:", &Self::setItemSize>()
          .method<"layoutItemSizeForColumn:", &Self::layoutItemSizeForColumn>()
          .method<"prepareLayout", &Self::prepareLayout>()
          .method<"collectionViewContentSize", &Self::contentSize>()
          .method<"layoutAttributesForElementsInRect:", &Self::attributesInRect>()
          .method<"layoutAttributesForItemAtIndexPath:", &Self::attributesForItem>()
          .method<"layoutAttributesForSupplementaryViewOfKind:atIndexPath:",
                  &Self::attributesForSupplementary>()
          .method<"shouldInvalidateLayoutForBoundsChange:",
                  &Self::shouldInvalidateForBoundsChange>()
          .build();
  return made;
}

Owned<PUSectionedGridLayout> PUSectionedGridLayoutState::make() {
  return makeNew<PUSectionedGridLayout>(classObject());
}

void PUSectionedGridLayoutState::invalidate() {
  self().invalidateLayout();
}

void PUSectionedGridLayoutState::setColumnsPerRow(NSInteger columns) {
  columns = std::clamp(columns, NSInteger{1}, mostColumns);
  if (columns == _columnsPerRow) return;
  _columnsPerRow = columns;
  invalidate();
}

void PUSectionedGridLayoutState::setInterItemSpacing(CGFloat spacing) {
  spacing = std::isfinite(spacing) ? std::clamp(spacing, 0.0, 100.0) : 0;
  if (spacing == _interItemSpacing) return;
  _interItemSpacing = spacing;
  invalidate();
}

void PUSectionedGridLayoutState::setItemSize(CGSize size) {
  size = {saneSide(size.width), saneSide(size.height)};
  if (size.width == _itemSize.width && size.height == _itemSize.height) return;
  _itemSize = size;
  invalidate();
}

void PUSectionedGridLayoutState::setHeaderHeight(CGFloat height) {
  if (height == _headerHeight) return;
  _headerHeight = height;
  invalidate();
}

void PUSectionedGridLayoutState::setFooterHeight(CGFloat height) {
  if (height == _footerHeight) return;
  _footerHeight = height;
  invalidate();
}

// Pixels that are left over in a full row go to its first columns.
CGSize PUSectionedGridLayoutState::layoutItemSizeForColumn(NSInteger column) const {
  const auto collection = collectionView();
  const CGFloat scale = uikit::screen().scale;
  const auto columns = static_cast<CGFloat>(_columnsPerRow);
  const CGFloat row = columns * (_itemSize.width + _interItemSpacing) - _interItemSpacing;
  const CGFloat leftOver = std::floor((collection.bounds().size.width - row) * scale);
  const bool getsOne = leftOver < columns && static_cast<CGFloat>(column) < leftOver;
  return {_itemSize.width + (getsOne ? 1 / scale : 0), _itemSize.height};
}

// As many columns as the width has room for, of those that there may be: at least one.
void PUSectionedGridLayoutState::measureColumns(CGFloat width) {
  _columns.clear();
  _rowHeight = leastSide;
  CGFloat x = 0;
  for (NSInteger column = 0; column < _columnsPerRow; ++column) {
    const CGSize size = self().itemSizeForColumn(column);
    const CGFloat itemWidth = saneSide(size.width);
    constexpr CGFloat rounding = 0.01;
    if (column > 0 && x + itemWidth > width + rounding) break;
    _columns.push_back({x, itemWidth});
    _rowHeight = std::max(_rowHeight, saneSide(size.height));
    x += itemWidth + _interItemSpacing;
  }
}

void PUSectionedGridLayoutState::prepareLayout() {
  const auto collection = collectionView();
  const CGFloat width = collection.bounds().size.width;
  measureColumns(width);
  const auto across = static_cast<NSInteger>(_columns.size());
  const NSInteger sections = collection.numberOfSections();
  _sections.clear();
  _sections.reserve(static_cast<std::size_t>(sections));
  CGFloat y = 0;
  for (NSInteger index = 0; index < sections; ++index) {
    const NSInteger count = collection.numberOfItemsInSection(index);
    const NSInteger rows = (count + across - 1) / across;
    Section section{.top = y, .itemsTop = y + _headerHeight, .bottom = 0, .count = count};
    section.bottom = section.itemsTop +
                     std::max(0.0, static_cast<CGFloat>(rows) * (_rowHeight + _interItemSpacing) -
                                       _interItemSpacing);
    y = section.bottom + (_headerHeight > 0 ? gapBetweenSections : _interItemSpacing);
    _sections.push_back(section);
  }
  const CGFloat end = _sections.empty() ? 0 : _sections.back().bottom;
  _contentSize = {width, end + (_sections.empty() ? 0 : _footerHeight)};
}

CGRect PUSectionedGridLayoutState::frameOfItem(uikit::ItemPath path) const {
  if (path.section < 0 || path.section >= static_cast<NSInteger>(_sections.size())) return {};
  const Section& section = _sections[static_cast<std::size_t>(path.section)];
  if (path.item < 0 || path.item >= section.count) return {};
  const auto across = static_cast<NSInteger>(_columns.size());
  const Column& column = _columns[static_cast<std::size_t>(path.item % across)];
  const NSInteger row = path.item / across;
  return {
      {column.x, section.itemsTop + static_cast<CGFloat>(row) * (_rowHeight + _interItemSpacing)},
      {column.width, _rowHeight}};
}

CGRect PUSectionedGridLayoutState::headerFrame(const Section& section) const {
  return {{0, section.top}, {_contentSize.width, _headerHeight}};
}

CGRect PUSectionedGridLayoutState::footerFrame() const {
  return {{0, _contentSize.height - _footerHeight}, {_contentSize.width, _footerHeight}};
}

NSArray PUSectionedGridLayoutState::attributesInRect(CGRect rect) const {
  const auto all = makeNew<NSMutableArray>();
  const auto first = std::ranges::lower_bound(_sections, rect.origin.y, {}, &Section::bottom);
  for (auto section = first; section != _sections.end() && section->top < uikit::bottom(rect);
       ++section) {
    const NSInteger index = section - _sections.begin();
    if (_headerHeight > 0 && uikit::intersects(headerFrame(*section), rect)) {
      const auto header = Attributes::forSupplementary(NSString::make(headerKind), {index, 0},
                                                       headerFrame(*section));
      header.setZIndex(headerOrder);
      all->add(header);
    }
    addItems(all, index, rect);
  }
  if (_footerHeight > 0 && !_sections.empty() && uikit::intersects(footerFrame(), rect))
    all->add(Attributes::forSupplementary(NSString::make(footerKind), {0, 0}, footerFrame()));
  return Owned<NSArray>::retain(all.get()).autorelease();
}

void PUSectionedGridLayoutState::addItems(NSMutableArray all, NSInteger index, CGRect rect) const {
  const Section& section = _sections[static_cast<std::size_t>(index)];
  const auto across = static_cast<NSInteger>(_columns.size());
  const CGFloat step = _rowHeight + _interItemSpacing;
  const CGFloat firstRow = std::floor((rect.origin.y - section.itemsTop) / step);
  const CGFloat lastRow = std::floor((uikit::bottom(rect) - section.itemsTop) / step);
  const NSInteger fullRows = section.count / across;
  const CGFloat rows = static_cast<CGFloat>(fullRows) + 1;
  const auto first = static_cast<NSInteger>(std::clamp(firstRow, 0.0, rows)) * across;
  const auto end = static_cast<NSInteger>(std::clamp(lastRow + 1, 0.0, rows)) * across;
  for (NSInteger item = first; item < std::min(end, section.count); ++item)
    all.add(Attributes::forItem({index, item}, frameOfItem({index, item})));
}

Object PUSectionedGridLayoutState::attributesForItem(NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  return at ? Object(Attributes::forItem(*at, frameOfItem(*at))) : Object();
}

Object PUSectionedGridLayoutState::attributesForSupplementary(NSString kind,
                                                              NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  if (!at || at->section < 0 || at->section >= static_cast<NSInteger>(_sections.size())) return {};
  const bool isHeader = kind.utf8() == headerKind;
  return Attributes::forSupplementary(
      kind, *at,
      isHeader ? headerFrame(_sections[static_cast<std::size_t>(at->section)]) : footerFrame());
}

bool PUSectionedGridLayoutState::shouldInvalidateForBoundsChange(CGRect bounds) const {
  return bounds.size.width != _contentSize.width;
}

}  // namespace desktop::photos_ui
