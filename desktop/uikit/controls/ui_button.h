// SPDX-License-Identifier: MIT
//
// UIButton: a control with a title and an image for each of its states.
#pragma once

#include <map>
#include "desktop/uikit/controls/ui_control.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class Canvas;

class UIButtonState : public Bound<UIButtonState, UIControlState, UIButton> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Type : NSInteger { custom, system, detailDisclosure, infoLight, infoDark, contactAdd };

  static UIButton withType(NSInteger type);  // autoreleased

  Type type() const { return _type; }
  // What is shown in the present state; nil where there is none.
  NSString currentTitle() const;
  UIImage currentImage() const;
  Color currentTitleColor() const;
  // Made when first asked for.
  UILabel titleLabel();
  UIImageView imageView();

  void drawContent(Canvas* canvas) const;

 private:
  // By state, as bits; a state without a value of its own shows that of the normal one.
  template <typename T>
  using ByState = std::map<NSUInteger, Owned<T>>;
  template <typename T>
  T valueFor(const ByState<T>& values, NSUInteger state) const;
  template <typename T>
  void setValue(ByState<T>& values, T value, NSUInteger state);

  NSInteger typeNumber() const { return _type; }
  void setTitle(NSString title, NSUInteger state);
  NSString titleForState(NSUInteger state) const;
  void setTitleColor(UIColor color, NSUInteger state);
  UIColor titleColorForState(NSUInteger state) const;
  UIColor currentTitleColorObject() const;
  void setImage(UIImage image, NSUInteger state);
  UIImage imageForState(NSUInteger state) const;
  void setBackgroundImage(UIImage image, NSUInteger state);
  UIImage backgroundImageForState(NSUInteger state) const;
  bool adjustsImageWhenHighlighted() const { return _adjustsImageWhenHighlighted; }
  void setAdjustsImageWhenHighlighted(bool adjusts);
  void setHighlighted(bool isHighlighted);
  void setSelected(bool isSelected);
  void setEnabled(bool isEnabled);
  void setTintColor(UIColor color);
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
  ByState<NSString> _titles;
  ByState<UIColor> _titleColors;
  ByState<UIImage> _images;
  ByState<UIImage> _backgroundImages;
  Owned<UILabel> _titleLabel;
  Owned<UIImageView> _imageView;
  bool _adjustsImageWhenHighlighted = true;
};

}  // namespace desktop::uikit
