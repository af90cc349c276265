// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_view_layout.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UICollectionViewLayoutState::classObject() {
  using Self = UICollectionViewLayoutState;
  static const Class made =
      ClassBuilder<Self>("UICollectionViewLayout")
          .method<"collectionView", &Self::collectionView>()
          .method<"prepareLayout", &Self::prepareLayout>()
          .method<"collectionViewContentSize", &Self::contentSize>()
          .method<"layoutAttributesForElementsInRect:", &Self::attributesInRect>()
          .method<"layoutAttributesForItemAtIndexPath:", &Self::attributesForItem>()
          .method<"layoutAttributesForSupplementaryViewOfKind:atIndexPath:",
                  &Self::attributesForSupplementary>()
          .method<"shouldInvalidateLayoutForBoundsChange:",
                  &Self::shouldInvalidateForBoundsChange>()
          .method<"invalidateLayout", &Self::invalidateLayout>()
          .build();
  return made;
}

void UICollectionViewLayoutState::belongTo(UICollectionView view,
                                           std::function<void()> becameInvalid) {
  _collectionView = view;
  _becameInvalid = std::move(becameInvalid);
}

void UICollectionViewLayoutState::invalidateLayout() {
  if (_becameInvalid) _becameInvalid();
}

}  // namespace desktop::uikit
