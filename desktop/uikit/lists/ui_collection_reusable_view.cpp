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

bridge::Owned<bridge::UIView> UICollectionReusableView::make(Class aClass,
                                                             bridge::NSString reuseIdentifier,
                                                             std::string poolKey, CGRect frame) {
  const auto made = bridge::Owned<bridge::Object>::adopt(
      bridge::send<bridge::Object, "initWithFrame:">(bridge::send<id, "alloc">(aClass), frame));
  const auto view = bridge::as<handles::UICollectionReusableView>(made.get());
  if (!view) return {};
  of(view)._reuseIdentifier = bridge::Owned<bridge::NSString>::retain(reuseIdentifier);
  of(view)._poolKey = std::move(poolKey);
  return bridge::Owned<bridge::UIView>::retain(view);
}

}  // namespace desktop::uikit
