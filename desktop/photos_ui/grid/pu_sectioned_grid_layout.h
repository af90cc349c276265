// SPDX-License-Identifier: MIT
//
// PUSectionedGridLayout: items in rows of equal cells, section below section, each with room for a
// header, and a footer below all. All lengths are in points. Where an item lies is computed, so
// that it takes no memory and no time for those out of sight.
#pragma once

#include <vector>
#include "desktop/uikit/lists/ui_collection_view_layout.h"

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::photos_ui {

class PUSectionedGridLayoutState
    : public Bound<PUSectionedGridLayoutState, uikit::UICollectionViewLayoutState,
                   PUSectionedGridLayout> {
 public:
  // The kinds of supplementary views.
  static constexpr const char* headerKind = "UICollectionElementKindSectionHeader";
  static constexpr const char* footerKind = "PUGlobalFooter";

  using Bound::Bound;
  static Class classObject();
  static Owned<PUSectionedGridLayout> make();

  NSInteger columnsPerRow() const { return _columnsPerRow; }
  void setColumnsPerRow(NSInteger columns);
  CGFloat interItemSpacing() const { return _interItemSpacing; }
  void setInterItemSpacing(CGFloat spacing);
  CGSize itemSize() const { return _itemSize; }
  void setHeaderHeight(CGFloat height);
  void setFooterHeight(CGFloat height);
  void setDelegate(NSObject delegate) { _delegate = delegate; }

  // As the last pass of layout placed them.
  CGRect frameOfItem(uikit::ItemPath path) const;
  CGSize cellSize() const { return {_columns.empty() ? 0 : _columns[0].width, _rowHeight}; }

 private:
  struct Column {
    CGFloat x;
    CGFloat width;
  };
  struct Section {
    CGFloat top;       // of the header
    CGFloat itemsTop;  // of the first row
    CGFloat bottom;
    NSInteger count;
  };

  NSObject delegate() const { return _delegate; }
  void setItemSize(CGSize size);
  CGSize layoutItemSizeForColumn(NSInteger column) const;
  void prepareLayout();
  void measureColumns(CGFloat width);
  CGSize contentSize() const { return _contentSize; }
  NSArray attributesInRect(CGRect rect) const;
  void addItems(NSMutableArray all, NSInteger section, CGRect rect) const;
  Object attributesForItem(NSIndexPath path) const;
  Object attributesForSupplementary(NSString kind, NSIndexPath path) const;
  CGRect headerFrame(const Section& section) const;
  CGRect footerFrame() const;
  bool shouldInvalidateForBoundsChange(CGRect bounds) const;
  void invalidate();

  NSObject _delegate;  // borrowed
  NSInteger _columnsPerRow = 4;
  CGFloat _interItemSpacing = 1;
  CGSize _itemSize{93, 93};
  CGFloat _headerHeight = 0;
  CGFloat _footerHeight = 0;

  std::vector<Column> _columns;
  CGFloat _rowHeight = 0;
  std::vector<Section> _sections;
  CGSize _contentSize;
};

}  // namespace desktop::photos_ui
