// SPDX-License-Identifier: MIT
//
// The views of a collection: those that show an element in sight, and those that wait for one.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/collection/collection_element.h"
#include "desktop/uikit/lists/reuse_pool.h"
#include "desktop/uikit/lists/views_in_sight.h"

namespace desktop::uikit {

class CollectionCells {
 public:
  using View = Owned<UIView>;
  using Shown = ViewsInSight<CollectionElement, View>;

  // The element shows from now on with this view, and no other does.
  void show(const CollectionElement& element, const View& view);
  // The view shows nothing any longer, and waits.
  void putAway(UIView view);
  Shown& shown() { return _shown; }
  const Shown& shown() const { return _shown; }
  // Takes what shows nothing out of the collection.
  void settle(UIView collection) { _pool.settle(collection); }

  // Nil, or none, for what is out of sight.
  UICollectionViewCell cellAt(ItemPath path) const;
  UIView viewOf(const CollectionElement& element) const { return _shown.find(element); }
  std::optional<ItemPath> pathOf(UIView cell) const;
  // In the order of their paths; autoreleased. An empty kind stands for the cells.
  NSArray ofKind(const std::string& kind) const;
  NSArray indexPaths() const;

  void registerCellClass(NSString identifier, Class aClass);
  void registerClass(NSString kind, NSString identifier, Class aClass);
  // One that waits, or a new one, made where it will stand: there are classes that arrange
  // themselves only once. Where no class is registered, it is of the class that all are below.
  UIView dequeueCell(NSString identifier, CGRect frame);
  UIView dequeue(NSString kind, NSString identifier, CGRect frame);

 private:
  Shown _shown;
  ReusePool _pool;
};

}  // namespace desktop::uikit
