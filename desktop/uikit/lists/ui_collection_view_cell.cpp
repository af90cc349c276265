// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_view_cell.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UICollectionViewCellState::classObject() {
  using Self = UICollectionViewCellState;
  static const Class made =
      ClassBuilder<Self>("UICollectionViewCell")
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

UIView UICollectionViewCellState::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  _contentView = bridge::makeView<UIView>(bounds());
  _contentView->setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().addSubview(_contentView);
  return self();
}

void UICollectionViewCellState::setSelected(bool selected) {
  if (selected == _isSelected) return;
  _isSelected = selected;
  showSelection();
}

void UICollectionViewCellState::setHighlighted(bool highlighted) {
  if (highlighted == _isHighlighted) return;
  _isHighlighted = highlighted;
  showSelection();
}

void UICollectionViewCellState::setBackgroundView(UIView view) {
  replaceBackground(_backgroundView, view);
}

void UICollectionViewCellState::setSelectedBackgroundView(UIView view) {
  replaceBackground(_selectedBackgroundView, view);
  showSelection();
}

void UICollectionViewCellState::replaceBackground(Owned<UIView>& slot, UIView view) {
  if (slot.get() == view) return;
  slot->removeFromSuperview();
  slot = Owned<UIView>::retain(view);
  for (const auto& background : {_selectedBackgroundView.get(), _backgroundView.get()})
    if (background) insertSubview(background, 0);
}

void UICollectionViewCellState::showSelection() const {
  if (_selectedBackgroundView)
    UIViewState::of(_selectedBackgroundView.get()).setHidden(!_isSelected && !_isHighlighted);
}

void UICollectionViewCellState::prepareForReuse() {
  super<void, "prepareForReuse">();
  self().setSelected(false);
  self().setHighlighted(false);
}

void UICollectionViewCellState::layoutSubviews() {
  super<void, "layoutSubviews">();
  for (const auto& view : {_backgroundView.get(), _selectedBackgroundView.get()})
    view.setFrame(bounds());
}

}  // namespace desktop::uikit
