// SPDX-License-Identifier: MIT
//
// What a collection asks its data source, which need not answer.
#pragma once

#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/collection/collection_element.h"
#include "desktop/uikit/lists/collection/item_counts.h"

namespace desktop::uikit {

class CollectionDataSource {
 public:
  // Borrowed, as the source is.
  explicit CollectionDataSource(UIView collection) : _collection(collection) {}

  NSObject object() const { return _source; }
  void setObject(NSObject source) { _source = source; }

  ItemCounts counts() const;
  // An empty cell for an item for which the source has none; of another element it may be nil.
  Owned<UIView> view(const CollectionElement& element) const;

 private:
  Owned<UIView> cell(ItemPath path) const;

  UIView _collection;
  NSObject _source;
};

}  // namespace desktop::uikit
