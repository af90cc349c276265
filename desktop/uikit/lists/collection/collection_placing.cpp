// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_placing.h"

#include <algorithm>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

namespace desktop::uikit {
namespace {

void apply(const UICollectionViewLayoutAttributesState& attributes, UIView view) {
  UIViewState& state = UIViewState::of(view);
  const CGRect frame = attributes.frame();
  if (attributes.transform() == CGAffineTransform{} && state.transform() == CGAffineTransform{}) {
    if (state.frame() != frame) view.setFrame(frame);
  } else {
    state.setTransform(attributes.transform());
    state.setBounds({state.bounds().origin, frame.size});
    state.setCenter(middle(frame));
  }
  state.setAlpha(attributes.alpha());
  state.setHidden(attributes.isHidden());
  UICollectionReusableViewState::of(view).setZIndex(attributes.zIndex());
}

}  // namespace

void placeElement(UIView view, UICollectionViewLayoutAttributes attributes) {
  apply(UICollectionViewLayoutAttributesState::of(attributes), view);
  UICollectionReusableView(view.get()).applyLayoutAttributes(attributes);
}

void insertElement(UIViewState& collection, UIView view, NSInteger zIndex, UIView background) {
  const auto& siblings = collection.subviews();
  const auto last =
      std::ranges::find_if(siblings.rbegin(), siblings.rend(), [&](const auto& other) {
        if (other.get() == background) return true;
        return isKindOf(other, UICollectionReusableViewState::classObject()) &&
               UICollectionReusableViewState::of(other.get()).zIndex() <= zIndex;
      });
  collection.insertSubview(view, static_cast<std::size_t>(siblings.rend() - last));
}

}  // namespace desktop::uikit
