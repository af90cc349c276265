// SPDX-License-Identifier: MIT
//
// The views of a collection: those that show an element in sight, and those that wait for one.
#pragma once

#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/collection/collection_element.h"
#include "desktop/uikit/lists/reuse_pool.h"
#include "desktop/uikit/lists/views_in_sight.h"

namespace desktop::uikit {

class CollectionCells {
 public:
  using View = bridge::Owned<bridge::UIView>;
  using Shown = ViewsInSight<CollectionElement, View>;

  // The element shows from now on with this view, and no other does.
  void show(const CollectionElement& element, const View& view);
  // The view shows nothing any longer, and waits.
  void putAway(bridge::UIView view);
  Shown& shown() { return _shown; }
  const Shown& shown() const { return _shown; }
  // Takes what shows nothing out of the collection.
  void settle(bridge::UIView collection) { _pool.settle(collection); }

  // Nil, or none, for what is out of sight.
  handles::UICollectionViewCell cellAt(ItemPath path) const;
  bridge::UIView viewOf(const CollectionElement& element) const { return _shown.find(element); }
  std::optional<ItemPath> pathOf(bridge::UIView cell) const;
  // In the order of their paths; autoreleased. An empty kind stands for the cells.
  bridge::NSArray ofKind(const std::string& kind) const;
  bridge::NSArray indexPaths() const;

  void registerCellClass(bridge::NSString identifier, Class aClass);
  void registerClass(bridge::NSString kind, bridge::NSString identifier, Class aClass);
  // One that waits, or a new one, made where it will stand: there are classes that arrange
  // themselves only once. Where no class is registered, it is of the class that all are below.
  bridge::UIView dequeueCell(bridge::NSString identifier, CGRect frame);
  bridge::UIView dequeue(bridge::NSString kind, bridge::NSString identifier, CGRect frame);

 private:
  Shown _shown;
  ReusePool _pool;
};

}  // namespace desktop::uikit
