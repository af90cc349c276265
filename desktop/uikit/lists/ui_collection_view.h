// SPDX-License-Identifier: MIT
//
// UICollectionView: items in sections, placed by a layout; only those in sight have a cell. Counts
// come from the data source when they are first needed or after a change, cells when an item comes
// into sight, both by message.
#pragma once

#include <map>
#include <set>

#include "bridge/block.h"
#include "bridge/bound.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/lists/reuse_pool.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UICollectionView : public bridge::Bound<UICollectionView, handles::UIScrollView> {
 public:
  // What is shown: an item, or a supplementary view of a kind.
  struct Element {
    std::string kind;  // empty: an item
    ItemPath path;
    bool operator==(const Element&) const = default;
    std::strong_ordering operator<=>(const Element& other) const {
      const auto byKind = kind <=> other.kind;
      return std::is_neq(byKind) ? byKind : path <=> other.path;
    }
  };
  using Views = std::map<Element, bridge::Owned<bridge::UIView>>;

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
  ~UICollectionView();
  static Class classObject();

  NSInteger numberOfSections();
  NSInteger numberOfItems(NSInteger section);
  // Counts and layout are asked for anew and all cells go back before the next layout; nothing is
  // selected.
  void reloadData();
  // What the layout said no longer holds.
  void layoutBecameInvalid();

  // Nil where there is none.
  handles::UICollectionViewCell cellForItem(bridge::NSIndexPath path) const;
  bridge::NSIndexPath indexPathForItemAt(CGPoint point);
  bridge::NSIndexPath indexPathForCell(bridge::UIView cell) const;
  const std::set<ItemPath>& selectedItems() const { return _selected; }
  // In sight, items before supplementary views.
  const Views& views() const { return _views; }

 private:
  bridge::UICollectionView me() const { return bridge::UICollectionView(self().get()); }

  // Making, and what of it is asked and set.
  bridge::UIView initWithFrame(CGRect frame);
  bridge::UIView initWithFrameAndLayout(CGRect frame, bridge::UICollectionViewLayout layout);
  bridge::NSObject dataSource() const { return _dataSource; }
  void setDataSource(bridge::NSObject source);
  bridge::NSObject delegate() const { return UIScrollView::of(self()).delegate(); }
  bridge::UICollectionViewLayout collectionViewLayout() const { return _layout; }
  void setCollectionViewLayout(bridge::UICollectionViewLayout layout);
  void setCollectionViewLayoutAnimated(bridge::UICollectionViewLayout layout, bool animated);
  bool allowsSelection() const { return _allowsSelection; }
  void setAllowsSelection(bool allows);
  bool allowsMultipleSelection() const { return _allowsMultipleSelection; }
  void setAllowsMultipleSelection(bool allows);
  bridge::UIView backgroundView() const { return _backgroundView; }
  void setBackgroundView(bridge::UIView view);

  // Counts and layout.
  bool has(ItemPath path);
  void count();
  void prepare();
  void askAboutNewBounds();
  handles::UICollectionViewLayoutAttributes attributesForItem(bridge::NSIndexPath path);
  handles::UICollectionViewLayoutAttributes attributesForSupplementary(bridge::NSString kind,
                                                                       bridge::NSIndexPath path);
  std::map<Element, handles::UICollectionViewLayoutAttributes> attributesIn(CGRect rect);
  std::optional<ItemPath> itemAt(CGPoint point);
  void scrollToItem(bridge::NSIndexPath path, NSUInteger position, bool animated);

  // Views come and go.
  void layoutSubviews();
  void placeViews();
  static void place(bridge::UIView view, handles::UICollectionViewLayoutAttributes attributes);
  void show(const Element& element, handles::UICollectionViewLayoutAttributes attributes);
  void showState(ItemPath path, bridge::UIView cell) const;
  bridge::Owned<bridge::UIView> viewFromSource(const Element& element);
  void recycle(const Element& element, bridge::UIView view);
  void recycleAll();
  void insert(bridge::UIView view, NSInteger zIndex);
  void registerCellClass(Class aClass, bridge::NSString identifier);
  void registerSupplementaryClass(Class aClass, bridge::NSString kind, bridge::NSString identifier);
  bridge::UIView dequeueCell(bridge::NSString identifier, bridge::NSIndexPath path);
  bridge::UIView dequeueSupplementary(bridge::NSString kind, bridge::NSString identifier,
                                      bridge::NSIndexPath path);
  bridge::UIView dequeue(const std::string& key, bridge::NSString identifier, Class fallback,
                         CGRect frame);
  bridge::NSArray visibleCells() const;
  bridge::NSArray visibleItems() const;
  bridge::NSArray visibleViews(const std::string& kind) const;
  bridge::UIView supplementaryView(bridge::NSString kind, bridge::NSIndexPath path) const;
  bridge::NSArray visibleSupplementaryViews(bridge::NSString kind) const;

  // Changes.
  void insertItems(bridge::NSArray paths);
  void deleteItems(bridge::NSArray paths);
  void reloadItems(bridge::NSArray paths);
  void sectionsChange(bridge::Object sections);
  void performBatchUpdates(const bridge::BlockHeader* updates,
                           const bridge::BlockHeader* completion);
  void contentsChange();

  // Touch and selection.
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  void release();
  void tap(ItemPath path);
  void select(ItemPath path);
  void deselect(ItemPath path);
  void deselectAll();
  handles::UICollectionViewCell cellAt(ItemPath path) const;
  bridge::NSArray indexPathsForSelectedItems() const;
  void selectItem(bridge::NSIndexPath path, bool animated, NSUInteger position);
  void deselectItem(bridge::NSIndexPath path, bool animated);
  void setSelected(ItemPath path, bool isSelected);

  bridge::NSObject _dataSource;  // borrowed
  bridge::Owned<bridge::UICollectionViewLayout> _layout;
  bridge::Owned<bridge::UIView> _backgroundView;
  bool _allowsSelection = true;
  bool _allowsMultipleSelection = false;

  std::vector<NSInteger> _counts;  // of items, a section each
  bool _isUncounted = true;
  bool _isCounting = false;
  bool _isUnprepared = true;
  unsigned long _generation = 0;  // of counts and layout: what is asked meanwhile may change both
  CGRect _preparedBounds;
  Views _views;
  ReusePool _pool;

  std::set<ItemPath> _selected;
  std::optional<ItemPath> _pressed;
};

}  // namespace desktop::uikit
