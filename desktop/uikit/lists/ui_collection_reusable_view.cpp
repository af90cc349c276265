// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_reusable_view.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UICollectionReusableViewState::classObject() {
  using Self = UICollectionReusableViewState;
  static const Class made = ClassBuilder<Self>("UICollectionReusableView")
                                .method<"reuseIdentifier", &Self::reuseIdentifier>()
                                .method<"prepareForReuse", &Self::prepareForReuse>()
                                .method<"applyLayoutAttributes:", &Self::applyLayoutAttributes>()
                                .build();
  return made;
}

Owned<UIView> UICollectionReusableViewState::make(Class aClass, NSString reuseIdentifier,
                                                  std::string poolKey, CGRect frame) {
  const auto made = makeWith<Object, "initWithFrame:">(aClass, frame);
  const auto view = as<UICollectionReusableView>(made.get());
  if (!view) return {};
  of(view)._reuseIdentifier = Owned<NSString>::retain(reuseIdentifier);
  of(view)._poolKey = std::move(poolKey);
  return Owned<UIView>::retain(view);
}

}  // namespace desktop::uikit
