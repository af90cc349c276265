// SPDX-License-Identifier: MIT
//
// Tables and collections of cells.
#pragma once

#include "bridge/uikit/ui_controllers.h"

namespace bridge {

// A row or item of a section, both counted from 0.
struct NSIndexPath : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSIndexPath">(); }

  NSInteger section() const { return send<NSInteger, "section">(*this); }
  NSInteger row() const { return send<NSInteger, "row">(*this); }
};

struct UITableViewCell : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UITableViewCell">(); }

  enum Style : NSInteger { value1 = 1 };
  enum Accessory : NSInteger { noAccessory = 0, disclosureIndicator = 1 };
  enum Selection : NSInteger { noSelection = 0, blueSelection = 1 };

  static Owned<UITableViewCell> make(Style style, NSString identifier) {
    return makeWith<UITableViewCell, "initWithStyle:reuseIdentifier:">(
        classObject(), NSInteger{style}, identifier);
  }

  UILabel textLabel() const { return send<UILabel, "textLabel">(*this); }
  UILabel detailTextLabel() const { return send<UILabel, "detailTextLabel">(*this); }
  void setAccessoryType(Accessory accessory) const {
    send<void, "setAccessoryType:">(*this, NSInteger{accessory});
  }
  void setSelectionStyle(Selection selection) const {
    send<void, "setSelectionStyle:">(*this, NSInteger{selection});
  }
};

struct UITableView : UIScrollView {
  using UIScrollView::UIScrollView;
  static Class classObject() { return classNamed<"UITableView">(); }

  enum Style : NSInteger { grouped = 1 };

  void setTableHeaderView(UIView view) const { send<void, "setTableHeaderView:">(*this, view); }
  // Nil where no cell waits to be used again.
  UITableViewCell dequeueCell(NSString identifier) const {
    return send<UITableViewCell, "dequeueReusableCellWithIdentifier:">(*this, identifier);
  }
  void deselectRow(NSIndexPath path, UIViewController::Animated how) const {
    send<void, "deselectRowAtIndexPath:animated:">(*this, path, bool{how});
  }
};

struct UITableViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UITableViewController">(); }

  UITableView tableView() const { return send<UITableView, "tableView">(*this); }
};

struct UICollectionView : UIScrollView {
  using UIScrollView::UIScrollView;
  static Class classObject() { return classNamed<"UICollectionView">(); }

  // Nil where there is no item.
  NSIndexPath indexPathForItemAt(CGPoint point) const {
    return send<NSIndexPath, "indexPathForItemAtPoint:">(*this, point);
  }
  NSInteger numberOfItemsInSection(NSInteger section) const {
    return send<NSInteger, "numberOfItemsInSection:">(*this, section);
  }
};

struct UICollectionViewLayout : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UICollectionViewLayout">(); }

  void invalidateLayout() const { send<void, "invalidateLayout">(*this); }
};

// An element of a collection; `frame` in the collection view's coordinates.
struct UICollectionViewLayoutAttributes : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UICollectionViewLayoutAttributes">(); }

  CGRect frame() const { return send<CGRect, "frame">(*this); }
  void setFrame(CGRect frame) const { send<void, "setFrame:">(*this, frame); }
  void setZIndex(NSInteger index) const { send<void, "setZIndex:">(*this, index); }
};

struct UICollectionReusableView : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UICollectionReusableView">(); }

  void prepareForReuse() const { send<void, "prepareForReuse">(*this); }
  void applyLayoutAttributes(UICollectionViewLayoutAttributes attributes) const {
    send<void, "applyLayoutAttributes:">(*this, attributes);
  }
};

struct UICollectionViewCell : UICollectionReusableView {
  using UICollectionReusableView::UICollectionReusableView;
  static Class classObject() { return classNamed<"UICollectionViewCell">(); }

  UIView contentView() const { return send<UIView, "contentView">(*this); }
  bool isSelected() const { return send<bool, "isSelected">(*this); }
  void setSelected(bool selected) const { send<void, "setSelected:">(*this, selected); }
  void setHighlighted(bool highlighted) const { send<void, "setHighlighted:">(*this, highlighted); }
};

}  // namespace bridge
