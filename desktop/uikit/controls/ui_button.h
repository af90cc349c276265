// SPDX-License-Identifier: MIT
//
// UIButton: a control with a title and an image for each of its states.
#pragma once

#include <map>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/handles.h"

namespace desktop::uikit {

class Canvas;

class UIButton : public bridge::Bound<UIButton, bridge::UIControl> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Type : NSInteger { custom, system, detailDisclosure, infoLight, infoDark, contactAdd };

  static bridge::UIButton withType(NSInteger type);  // autoreleased

  Type type() const { return _type; }
  // What is shown in the present state; nil where there is none.
  bridge::NSString currentTitle() const;
  bridge::UIImage currentImage() const;
  Color currentTitleColor() const;
  // Made when first asked for.
  bridge::UILabel titleLabel();
  handles::UIImageView imageView();

  void drawContent(Canvas* canvas) const;

 private:
  // By state, as bits; a state without a value of its own shows that of the normal one.
  template <typename T>
  using ByState = std::map<NSUInteger, bridge::Owned<T>>;
  template <typename T>
  T valueFor(const ByState<T>& values, NSUInteger state) const;
  template <typename T>
  void setValue(ByState<T>& values, T value, NSUInteger state);

  NSInteger typeNumber() const { return _type; }
  void setTitle(bridge::NSString title, NSUInteger state);
  bridge::NSString titleForState(NSUInteger state) const;
  void setTitleColor(bridge::UIColor color, NSUInteger state);
  bridge::UIColor titleColorForState(NSUInteger state) const;
  bridge::UIColor currentTitleColorObject() const;
  void setImage(bridge::UIImage image, NSUInteger state);
  bridge::UIImage imageForState(NSUInteger state) const;
  void setBackgroundImage(bridge::UIImage image, NSUInteger state);
  bridge::UIImage backgroundImageForState(NSUInteger state) const;
  bool adjustsImageWhenHighlighted() const { return _adjustsImageWhenHighlighted; }
  void setAdjustsImageWhenHighlighted(bool adjusts);
  void setHighlighted(bool isHighlighted);
  void setSelected(bool isSelected);
  void setEnabled(bool isEnabled);
  void setTintColor(bridge::UIColor color);
  void didMoveToSuperview();
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;

  NSUInteger state() const;
  bool hasSymbol() const { return _type >= detailDisclosure; }
  CGSize imageSize() const;
  CGSize titleSize() const;
  // Shows what belongs to the present state.
  void update();

  Type _type = custom;
  ByState<bridge::NSString> _titles;
  ByState<bridge::UIColor> _titleColors;
  ByState<bridge::UIImage> _images;
  ByState<bridge::UIImage> _backgroundImages;
  bridge::Owned<bridge::UILabel> _titleLabel;
  bridge::Owned<handles::UIImageView> _imageView;
  bool _adjustsImageWhenHighlighted = true;
};

}  // namespace desktop::uikit
