// SPDX-License-Identifier: MIT
//
// UICollectionReusableView: what a collection view shows of an item, or above and below a section.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/handles.h"

namespace desktop::uikit {

class UICollectionReusableView : public bridge::Bound<UICollectionReusableView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new one of a class below this; nil where it makes something else.
  static bridge::Owned<bridge::UIView> make(Class aClass, bridge::NSString reuseIdentifier,
                                            std::string poolKey, CGRect frame);

  // What it waits under to be used again: for supplementary views with their kind.
  const std::string& poolKey() const { return _poolKey; }
  // The order of what overlaps: the layout's for what it shows.
  NSInteger zIndex() const { return _zIndex; }
  void setZIndex(NSInteger index) { _zIndex = index; }

 private:
  bridge::NSString reuseIdentifier() const { return _reuseIdentifier; }
  void prepareForReuse() {}
  void applyLayoutAttributes(handles::UICollectionViewLayoutAttributes) {}

  bridge::Owned<bridge::NSString> _reuseIdentifier;
  std::string _poolKey;
  NSInteger _zIndex = 0;
};

}  // namespace desktop::uikit
