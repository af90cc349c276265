// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_reusable_view.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UICollectionReusableView::classObject() {
  using Self = UICollectionReusableView;
  static const Class made = bridge::ClassBuilder<Self>("UICollectionReusableView")
                                .method<"reuseIdentifier", &Self::reuseIdentifier>()
                                .method<"prepareForReuse", &Self::prepareForReuse>()
                                .method<"applyLayoutAttributes:", &Self::applyLayoutAttributes>()
                                .build();
  return made;
}

void UICollectionReusableView::setIdentity(bridge::NSString reuseIdentifier, std::string poolKey) {
  _reuseIdentifier = bridge::Owned<bridge::NSString>::retain(reuseIdentifier);
  _poolKey = std::move(poolKey);
}

}  // namespace desktop::uikit
