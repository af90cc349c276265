// SPDX-License-Identifier: MIT
//
// Handles of the platform's classes that only the platform itself talks to by message.
#pragma once

#include "bridge/uikit.h"

namespace desktop::uikit::handles {

struct UIWindow : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIWindow">(); }

  bridge::UIViewController rootViewController() const {
    return bridge::send<bridge::UIViewController, "rootViewController">(*this);
  }
  void setRootViewController(bridge::UIViewController controller) const {
    bridge::send<void, "setRootViewController:">(*this, controller);
  }
  void makeKeyAndVisible() const { bridge::send<void, "makeKeyAndVisible">(*this); }
};

struct UIScrollView : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIScrollView">(); }

  CGPoint contentOffset() const { return bridge::send<CGPoint, "contentOffset">(*this); }
  void setContentOffset(CGPoint offset) const {
    bridge::send<void, "setContentOffset:">(*this, offset);
  }
  CGSize contentSize() const { return bridge::send<CGSize, "contentSize">(*this); }
  void setContentSize(CGSize size) const { bridge::send<void, "setContentSize:">(*this, size); }
};

struct UIImageView : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIImageView">(); }

  bridge::UIImage image() const { return bridge::send<bridge::UIImage, "image">(*this); }
  void setImage(bridge::UIImage image) const { bridge::send<void, "setImage:">(*this, image); }
};

// A new recogniser of a handle's class with a target, which it does not keep; +1.
template <bridge::Handle T>
bridge::Owned<T> makeRecognizer(bridge::NSObject target, SEL action) {
  return bridge::Owned<T>::adopt(bridge::send<T, "initWithTarget:action:">(
      bridge::send<id, "alloc">(T::classObject()), target, action));
}

struct UITapGestureRecognizer : bridge::UIGestureRecognizer {
  using bridge::UIGestureRecognizer::UIGestureRecognizer;
  static Class classObject() { return bridge::classNamed<"UITapGestureRecognizer">(); }

  void setNumberOfTapsRequired(NSUInteger taps) const {
    bridge::send<void, "setNumberOfTapsRequired:">(*this, taps);
  }
};

struct UIPanGestureRecognizer : bridge::UIGestureRecognizer {
  using bridge::UIGestureRecognizer::UIGestureRecognizer;
  static Class classObject() { return bridge::classNamed<"UIPanGestureRecognizer">(); }

  CGPoint translationIn(bridge::UIView view) const {
    return bridge::send<CGPoint, "translationInView:">(*this, view);
  }
  CGPoint velocityIn(bridge::UIView view) const {
    return bridge::send<CGPoint, "velocityInView:">(*this, view);
  }
};

// An element of a collection; `frame` in the collection view's coordinates.
struct UICollectionViewLayoutAttributes : bridge::NSObject {
  using bridge::NSObject::NSObject;
  static Class classObject() { return bridge::classNamed<"UICollectionViewLayoutAttributes">(); }

  CGRect frame() const { return bridge::send<CGRect, "frame">(*this); }
  void setFrame(CGRect frame) const { bridge::send<void, "setFrame:">(*this, frame); }
  void setZIndex(NSInteger index) const { bridge::send<void, "setZIndex:">(*this, index); }
};

struct UICollectionReusableView : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UICollectionReusableView">(); }

  void prepareForReuse() const { bridge::send<void, "prepareForReuse">(*this); }
  void applyLayoutAttributes(UICollectionViewLayoutAttributes attributes) const {
    bridge::send<void, "applyLayoutAttributes:">(*this, attributes);
  }
};

struct UICollectionViewCell : UICollectionReusableView {
  using UICollectionReusableView::UICollectionReusableView;
  static Class classObject() { return bridge::classNamed<"UICollectionViewCell">(); }

  bridge::UIView contentView() const { return bridge::send<bridge::UIView, "contentView">(*this); }
  bool isSelected() const { return bridge::send<bool, "isSelected">(*this); }
  void setSelected(bool selected) const { bridge::send<void, "setSelected:">(*this, selected); }
  void setHighlighted(bool highlighted) const {
    bridge::send<void, "setHighlighted:">(*this, highlighted);
  }
};

struct NSParagraphStyle : bridge::NSObject {
  using bridge::NSObject::NSObject;
  static Class classObject() { return bridge::classNamed<"NSParagraphStyle">(); }
};

struct UIToolbar : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIToolbar">(); }

  void setItems(bridge::NSArray items) const { bridge::send<void, "setItems:">(*this, items); }
};

struct UITabBarController : bridge::UIViewController {
  using bridge::UIViewController::UIViewController;
  static Class classObject() { return bridge::classNamed<"UITabBarController">(); }

  void setViewControllers(bridge::NSArray controllers) const {
    bridge::send<void, "setViewControllers:">(*this, controllers);
  }
  bridge::UIViewController selectedViewController() const {
    return bridge::send<bridge::UIViewController, "selectedViewController">(*this);
  }
  void setSelectedIndex(NSUInteger index) const {
    bridge::send<void, "setSelectedIndex:">(*this, index);
  }
};

}  // namespace desktop::uikit::handles
