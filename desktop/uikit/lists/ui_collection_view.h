// SPDX-License-Identifier: MIT
//
// UICollectionView: items in sections, placed by a layout; only those in sight have a cell. Counts
// come from the data source when they are first needed or after a change, cells when an item comes
// into sight, both by message.
#pragma once

#include "bridge/block.h"
#include "bridge/bound.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/collection/collection_cells.h"
#include "desktop/uikit/lists/collection/collection_data_source.h"
#include "desktop/uikit/lists/collection/collection_delegate.h"
#include "desktop/uikit/lists/collection/collection_layout.h"
#include "desktop/uikit/lists/item_press.h"
#include "desktop/uikit/lists/item_selection.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UICollectionView : public bridge::Bound<UICollectionView, handles::UIScrollView> {
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
  handles::UICollectionViewCell cellForItem(bridge::NSIndexPath path) const;
  bridge::NSIndexPath indexPathForItemAt(CGPoint point);
  bridge::NSIndexPath indexPathForCell(bridge::UIView cell) const;
  const std::set<ItemPath>& selectedItems() const { return _selection.paths(); }
  // In sight, items before supplementary views.
  const CollectionCells::Shown::Views& views() const { return _cells.shown().all(); }

 private:
  using Attributes = handles::UICollectionViewLayoutAttributes;
  bridge::UICollectionView me() const { return bridge::UICollectionView(self().get()); }

  // What is bound of making it, and of what is set.
  bridge::UIView initWithFrame(CGRect frame);
  bridge::UIView initWithFrameAndLayout(CGRect frame, bridge::UICollectionViewLayout layout);
  bridge::NSObject dataSource() const { return _dataSource.object(); }
  void setDataSource(bridge::NSObject source);
  bridge::UICollectionViewLayout collectionViewLayout() const { return _layout.object(); }
  void setCollectionViewLayout(bridge::UICollectionViewLayout layout);
  void setCollectionViewLayoutAnimated(bridge::UICollectionViewLayout layout, bool animated);
  bool allowsSelection() const { return _selection.isAllowed(); }
  void setAllowsSelection(bool allows) { _selection.allow(allows); }
  bool allowsMultipleSelection() const { return _selection.isMultipleAllowed(); }
  void setAllowsMultipleSelection(bool allows) { _selection.allowMultiple(allows); }
  bridge::UIView backgroundView() const { return _backgroundView; }
  void setBackgroundView(bridge::UIView view);

  // Of what there is, and where.
  Attributes attributesForItem(bridge::NSIndexPath path);
  Attributes attributesForSupplementary(bridge::NSString kind, bridge::NSIndexPath path);
  void scrollToItem(bridge::NSIndexPath path, NSUInteger position, bool animated);
  void layoutSubviews();
  bridge::NSArray visibleCells() const { return _cells.ofKind({}); }
  bridge::NSArray visibleItems() const { return _cells.indexPaths(); }
  bridge::UIView supplementaryView(bridge::NSString kind, bridge::NSIndexPath path) const;
  bridge::NSArray visibleSupplementaryViews(bridge::NSString kind) const;
  void registerCellClass(Class aClass, bridge::NSString identifier);
  void registerSupplementaryClass(Class aClass, bridge::NSString kind, bridge::NSString identifier);
  bridge::UIView dequeueCell(bridge::NSString identifier, bridge::NSIndexPath path);
  bridge::UIView dequeueSupplementary(bridge::NSString kind, bridge::NSString identifier,
                                      bridge::NSIndexPath path);

  // Of changes. They are shown at once, without animation.
  void insertItems(bridge::NSArray paths);
  void deleteItems(bridge::NSArray paths);
  void reloadItems(bridge::NSArray paths);
  void sectionsChange(bridge::Object sections);
  void performBatchUpdates(const bridge::BlockHeader* updates,
                           const bridge::BlockHeader* completion);

  // Of touch and selection.
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  bridge::NSArray indexPathsForSelectedItems() const;
  void selectItem(bridge::NSIndexPath path, bool animated, NSUInteger position);
  void deselectItem(bridge::NSIndexPath path, bool animated);

  // How the parts work together.
  const ItemCounts& counts();
  CollectionLayout::Has has();
  void prepare();
  std::optional<ItemPath> itemAt(CGPoint point);
  void show(const CollectionElement& element, Attributes attributes);
  void recycle(const CollectionElement& element, bridge::UIView view);
  void contentsChange();
  void layoutBecameInvalid();
  void release();
  void showSelected(ItemPath path, bool isSelected) const;

  CollectionDataSource _dataSource{self()};
  CollectionDelegate _delegate{self()};
  bridge::Owned<bridge::UIView> _backgroundView;
  ItemCounts _counts;
  Inquiry _counting;
  CollectionLayout _layout;
  CollectionCells _cells;
  ItemPress _press;
  ItemSelection _selection{
      [this](ItemPath path, bool isSelected) { showSelected(path, isSelected); }};
};

}  // namespace desktop::uikit
