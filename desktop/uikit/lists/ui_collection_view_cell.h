// SPDX-License-Identifier: MIT
//
// UICollectionViewCell: what a collection view shows of an item. Its content view fills it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"

namespace desktop::uikit {

class UICollectionViewCellState
    : public Bound<UICollectionViewCellState, UICollectionReusableViewState, UICollectionViewCell> {
 public:
  using Bound::Bound;
  static Class classObject();

  UIView contentView() const { return _contentView; }
  bool isSelected() const { return _isSelected; }
  bool isHighlighted() const { return _isHighlighted; }

 private:
  UIView initWithFrame(CGRect frame);
  void setSelected(bool selected);
  void setHighlighted(bool highlighted);
  UIView backgroundView() const { return _backgroundView; }
  void setBackgroundView(UIView view);
  UIView selectedBackgroundView() const { return _selectedBackgroundView; }
  void setSelectedBackgroundView(UIView view);
  void replaceBackground(Owned<UIView>& slot, UIView view);
  void showSelection() const;
  void prepareForReuse();
  void layoutSubviews();

  Owned<UIView> _contentView;
  Owned<UIView> _backgroundView;
  Owned<UIView> _selectedBackgroundView;
  bool _isSelected = false;
  bool _isHighlighted = false;
};

}  // namespace desktop::uikit
