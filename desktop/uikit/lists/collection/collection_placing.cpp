// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_placing.h"

#include <algorithm>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

namespace desktop::uikit {
namespace {

void apply(const UICollectionViewLayoutAttributes& attributes, bridge::UIView view) {
  UIView& state = UIView::of(view);
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
  UICollectionReusableView::of(view).setZIndex(attributes.zIndex());
}

}  // namespace

void placeElement(bridge::UIView view, handles::UICollectionViewLayoutAttributes attributes) {
  apply(UICollectionViewLayoutAttributes::of(attributes), view);
  handles::UICollectionReusableView(view.get()).applyLayoutAttributes(attributes);
}

void insertElement(UIView& collection, bridge::UIView view, NSInteger zIndex,
                   bridge::UIView background) {
  const auto& siblings = collection.subviews();
  const auto last =
      std::ranges::find_if(siblings.rbegin(), siblings.rend(), [&](const auto& other) {
        if (other.get() == background) return true;
        return bridge::isKindOf(other, UICollectionReusableView::classObject()) &&
               UICollectionReusableView::of(other.get()).zIndex() <= zIndex;
      });
  collection.insertSubview(view, static_cast<std::size_t>(siblings.rend() - last));
}

}  // namespace desktop::uikit
