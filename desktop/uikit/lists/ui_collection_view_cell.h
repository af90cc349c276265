// SPDX-License-Identifier: MIT
//
// UICollectionViewCell: what a collection view shows of an item. Its content view fills it.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/handles.h"

namespace desktop::uikit {

class UICollectionViewCell
    : public bridge::Bound<UICollectionViewCell, handles::UICollectionReusableView> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::UIView contentView() const { return _contentView; }
  bool isSelected() const { return _isSelected; }
  bool isHighlighted() const { return _isHighlighted; }

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void setSelected(bool selected);
  void setHighlighted(bool highlighted);
  bridge::UIView backgroundView() const { return _backgroundView; }
  void setBackgroundView(bridge::UIView view);
  bridge::UIView selectedBackgroundView() const { return _selectedBackgroundView; }
  void setSelectedBackgroundView(bridge::UIView view);
  void replaceBackground(bridge::Owned<bridge::UIView>& slot, bridge::UIView view);
  void showSelection() const;
  void prepareForReuse();
  void layoutSubviews();

  bridge::Owned<bridge::UIView> _contentView;
  bridge::Owned<bridge::UIView> _backgroundView;
  bridge::Owned<bridge::UIView> _selectedBackgroundView;
  bool _isSelected = false;
  bool _isHighlighted = false;
};

}  // namespace desktop::uikit
