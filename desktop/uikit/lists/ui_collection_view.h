// SPDX-License-Identifier: MIT
//
// UICollectionView: items in sections, placed by a layout; only those in sight have a cell. Counts
// come from the data source when they are first needed or after a change, cells when an item comes
// into sight, both by message.
#pragma once

#include "bridge/block.h"
#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/collection/collection_cells.h"
#include "desktop/uikit/lists/collection/collection_data_source.h"
#include "desktop/uikit/lists/collection/collection_delegate.h"
#include "desktop/uikit/lists/collection/collection_layout.h"
#include "desktop/uikit/lists/item_press.h"
#include "desktop/uikit/lists/item_selection.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UICollectionViewState
    : public Bound<UICollectionViewState, UIScrollViewState, UICollectionView> {
 public:
  enum ScrollPosition : NSUInteger {
    none = 0,
    top = 1,
    centeredVertically = 2,
    bottom = 4,
    left = 8,
    centeredHorizontally = 16,
    right = 32
  };

  using Bound::Bound;
  static Class classObject();

  NSInteger numberOfSections() { return counts().sections(); }
  NSInteger numberOfItems(NSInteger section) { return counts().items(section); }
  // Counts and layout are asked for anew and all cells go back before the next layout; nothing is
  // selected.
  void reloadData();

  // Nil where there is none.
  UICollectionViewCell cellForItem(NSIndexPath path) const;
  NSIndexPath indexPathForItemAt(CGPoint point);
  NSIndexPath indexPathForCell(UIView cell) const;
  const std::set<ItemPath>& selectedItems() const { return _selection.paths(); }
  // In sight, items before supplementary views.
  const CollectionCells::Shown::Views& views() const { return _cells.shown().all(); }

 private:
  using Attributes = UICollectionViewLayoutAttributes;

  // What is bound of making it, and of what is set.
  UIView initWithFrame(CGRect frame);
  UIView initWithFrameAndLayout(CGRect frame, UICollectionViewLayout layout);
  NSObject dataSource() const { return _dataSource.object(); }
  void setDataSource(NSObject source);
  UICollectionViewLayout collectionViewLayout() const { return _layout.object(); }
  void setCollectionViewLayout(UICollectionViewLayout layout);
  void setCollectionViewLayoutAnimated(UICollectionViewLayout layout, bool animated);
  bool allowsSelection() const { return _selection.isAllowed(); }
  void setAllowsSelection(bool allows) { _selection.allow(allows); }
  bool allowsMultipleSelection() const { return _selection.isMultipleAllowed(); }
  void setAllowsMultipleSelection(bool allows) { _selection.allowMultiple(allows); }
  UIView backgroundView() const { return _backgroundView; }
  void setBackgroundView(UIView view);

  // Of what there is, and where.
  Attributes attributesForItem(NSIndexPath path);
  Attributes attributesForSupplementary(NSString kind, NSIndexPath path);
  void scrollToItem(NSIndexPath path, NSUInteger position, bool animated);
  void layoutSubviews();
  NSArray visibleCells() const { return _cells.ofKind({}); }
  NSArray visibleItems() const { return _cells.indexPaths(); }
  UIView supplementaryView(NSString kind, NSIndexPath path) const;
  NSArray visibleSupplementaryViews(NSString kind) const;
  void registerCellClass(Class aClass, NSString identifier);
  void registerSupplementaryClass(Class aClass, NSString kind, NSString identifier);
  UIView dequeueCell(NSString identifier, NSIndexPath path);
  UIView dequeueSupplementary(NSString kind, NSString identifier, NSIndexPath path);

  // Of changes. They are shown at once, without animation.
  void insertItems(NSArray paths);
  void deleteItems(NSArray paths);
  void reloadItems(NSArray paths);
  void sectionsChange(Object sections);
  void performBatchUpdates(const BlockHeader* updates, const BlockHeader* completion);

  // Of touch and selection.
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  NSArray indexPathsForSelectedItems() const;
  void selectItem(NSIndexPath path, bool animated, NSUInteger position);
  void deselectItem(NSIndexPath path, bool animated);

  // How the parts work together.
  const ItemCounts& counts();
  CollectionLayout::Has has();
  void prepare();
  std::optional<ItemPath> itemAt(CGPoint point);
  void show(const CollectionElement& element, Attributes attributes);
  void recycle(const CollectionElement& element, UIView view);
  void contentsChange();
  void layoutBecameInvalid();
  void release();
  void showSelected(ItemPath path, bool isSelected) const;

  CollectionDataSource _dataSource{self()};
  CollectionDelegate _delegate{self()};
  Owned<UIView> _backgroundView;
  ItemCounts _counts;
  Inquiry _counting;
  CollectionLayout _layout;
  CollectionCells _cells;
  ItemPress _press;
  ItemSelection _selection{
      [this](ItemPath path, bool isSelected) { showSelected(path, isSelected); }};
};

}  // namespace desktop::uikit
