// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_delegate.h"

#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

NSObject CollectionDelegate::delegate() const {
  return UIScrollViewState::of(_collection).delegate();
}

void CollectionDelegate::willDisplay(UIView cell, ItemPath path) const {
  told<"collectionView:willDisplayCell:forItemAtIndexPath:">(delegate(), _collection, cell,
                                                             indexPathOf(path));
}

void CollectionDelegate::didEndDisplaying(UIView cell, ItemPath path) const {
  told<"collectionView:didEndDisplayingCell:forItemAtIndexPath:">(delegate(), _collection, cell,
                                                                  indexPathOf(path));
}

bool CollectionDelegate::shouldHighlight(ItemPath path) const {
  return asked<bool, "collectionView:shouldHighlightItemAtIndexPath:">(delegate(), _collection,
                                                                       indexPathOf(path))
      .value_or(true);
}

bool CollectionDelegate::shouldSelect(ItemPath path) const {
  return asked<bool, "collectionView:shouldSelectItemAtIndexPath:">(delegate(), _collection,
                                                                    indexPathOf(path))
      .value_or(true);
}

bool CollectionDelegate::shouldDeselect(ItemPath path) const {
  return asked<bool, "collectionView:shouldDeselectItemAtIndexPath:">(delegate(), _collection,
                                                                      indexPathOf(path))
      .value_or(true);
}

void CollectionDelegate::didHighlight(ItemPath path) const {
  told<"collectionView:didHighlightItemAtIndexPath:">(delegate(), _collection, indexPathOf(path));
}

void CollectionDelegate::didUnhighlight(ItemPath path) const {
  told<"collectionView:didUnhighlightItemAtIndexPath:">(delegate(), _collection, indexPathOf(path));
}

void CollectionDelegate::didSelect(ItemPath path) const {
  told<"collectionView:didSelectItemAtIndexPath:">(delegate(), _collection, indexPathOf(path));
}

void CollectionDelegate::didDeselect(ItemPath path) const {
  told<"collectionView:didDeselectItemAtIndexPath:">(delegate(), _collection, indexPathOf(path));
}

}  // namespace desktop::uikit
