// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_delegate.h"

#include "desktop/uikit/base/optional_message.h"

namespace desktop::uikit {

void CollectionDelegate::willDisplay(bridge::UIView cell, ItemPath path) const {
  told<"collectionView:willDisplayCell:forItemAtIndexPath:">(_delegate, _collection, cell,
                                                             indexPathOf(path));
}

void CollectionDelegate::didEndDisplaying(bridge::UIView cell, ItemPath path) const {
  told<"collectionView:didEndDisplayingCell:forItemAtIndexPath:">(_delegate, _collection, cell,
                                                                  indexPathOf(path));
}

bool CollectionDelegate::shouldHighlight(ItemPath path) const {
  return asked<bool, "collectionView:shouldHighlightItemAtIndexPath:">(_delegate, _collection,
                                                                       indexPathOf(path))
      .value_or(true);
}

bool CollectionDelegate::shouldSelect(ItemPath path) const {
  return asked<bool, "collectionView:shouldSelectItemAtIndexPath:">(_delegate, _collection,
                                                                    indexPathOf(path))
      .value_or(true);
}

bool CollectionDelegate::shouldDeselect(ItemPath path) const {
  return asked<bool, "collectionView:shouldDeselectItemAtIndexPath:">(_delegate, _collection,
                                                                      indexPathOf(path))
      .value_or(true);
}

void CollectionDelegate::didHighlight(ItemPath path) const {
  told<"collectionView:didHighlightItemAtIndexPath:">(_delegate, _collection, indexPathOf(path));
}

void CollectionDelegate::didUnhighlight(ItemPath path) const {
  told<"collectionView:didUnhighlightItemAtIndexPath:">(_delegate, _collection, indexPathOf(path));
}

void CollectionDelegate::didSelect(ItemPath path) const {
  told<"collectionView:didSelectItemAtIndexPath:">(_delegate, _collection, indexPathOf(path));
}

void CollectionDelegate::didDeselect(ItemPath path) const {
  told<"collectionView:didDeselectItemAtIndexPath:">(_delegate, _collection, indexPathOf(path));
}

}  // namespace desktop::uikit
