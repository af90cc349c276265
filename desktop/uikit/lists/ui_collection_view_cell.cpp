// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_view_cell.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UICollectionViewCell::classObject() {
  using Self = UICollectionViewCell;
  static const Class made =
      bridge::ClassBuilder<Self>("UICollectionViewCell")
          .method<"initWithFrame:", &Self::initWithFrame>()
          .method<"contentView", &Self::contentView>()
          .method<"isSelected", &Self::isSelected>()
          .method<"setSelected:", &Self::setSelected>()
          .method<"isHighlighted", &Self::isHighlighted>()
          .method<"setHighlighted:", &Self::setHighlighted>()
          .method<"backgroundView", &Self::backgroundView>()
          .method<"setBackgroundView:", &Self::setBackgroundView>()
          .method<"selectedBackgroundView", &Self::selectedBackgroundView>()
          .method<"setSelectedBackgroundView:", &Self::setSelectedBackgroundView>()
          .method<"prepareForReuse", &Self::prepareForReuse>()
          .method<"layoutSubviews", &Self::layoutSubviews>()
          .build();
  return made;
}

bridge::UIView UICollectionViewCell::initWithFrame(CGRect frame) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  _contentView = bridge::makeView<bridge::UIView>(UIView::of(self()).bounds());
  _contentView->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  self().addSubview(_contentView);
  return self();
}

void UICollectionViewCell::setSelected(bool selected) {
  if (selected == _isSelected) return;
  _isSelected = selected;
  showSelection();
}

void UICollectionViewCell::setHighlighted(bool highlighted) {
  if (highlighted == _isHighlighted) return;
  _isHighlighted = highlighted;
  showSelection();
}

void UICollectionViewCell::setBackgroundView(bridge::UIView view) {
  replaceBackground(_backgroundView, view);
}

void UICollectionViewCell::setSelectedBackgroundView(bridge::UIView view) {
  replaceBackground(_selectedBackgroundView, view);
  showSelection();
}

void UICollectionViewCell::replaceBackground(bridge::Owned<bridge::UIView>& slot,
                                             bridge::UIView view) {
  if (slot.get() == view) return;
  slot->removeFromSuperview();
  slot = bridge::Owned<bridge::UIView>::retain(view);
  for (const auto& background : {_selectedBackgroundView.get(), _backgroundView.get()})
    if (background) UIView::of(self()).insertSubview(background, 0);
}

void UICollectionViewCell::showSelection() const {
  if (_selectedBackgroundView)
    UIView::of(_selectedBackgroundView.get()).setHidden(!_isSelected && !_isHighlighted);
}

void UICollectionViewCell::prepareForReuse() {
  super<void, "prepareForReuse">();
  bridge::send<void, "setSelected:">(self(), false);
  bridge::send<void, "setHighlighted:">(self(), false);
}

void UICollectionViewCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  for (const auto& view : {_backgroundView.get(), _selectedBackgroundView.get()})
    view.setFrame(UIView::of(self()).bounds());
}

}  // namespace desktop::uikit
