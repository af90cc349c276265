// SPDX-License-Identifier: MIT
//
// UICollectionReusableView: what a collection view shows of an item, or above and below a section.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UICollectionReusableViewState
    : public Bound<UICollectionReusableViewState, UIViewState, UICollectionReusableView> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new one of a class below this; nil where it makes something else.
  static Owned<UIView> make(Class aClass, NSString reuseIdentifier, std::string poolKey,
                            CGRect frame);

  // What it waits under to be used again: for supplementary views with their kind.
  const std::string& poolKey() const { return _poolKey; }
  // The order of what overlaps: the layout's for what it shows.
  NSInteger zIndex() const { return _zIndex; }
  void setZIndex(NSInteger index) { _zIndex = index; }

 private:
  NSString reuseIdentifier() const { return _reuseIdentifier; }
  void prepareForReuse() {}
  void applyLayoutAttributes(UICollectionViewLayoutAttributes) {}

  Owned<NSString> _reuseIdentifier;
  std::string _poolKey;
  NSInteger _zIndex = 0;
};

}  // namespace desktop::uikit
