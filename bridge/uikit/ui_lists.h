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

  // Any number of places: an item's are its section and itself.
  NSUInteger length() const { return send<NSUInteger, "length">(*this); }
  NSUInteger at(NSUInteger position) const {
    return send<NSUInteger, "indexAtPosition:">(*this, position);
  }
  static NSIndexPath of(const NSUInteger* indices, NSUInteger count) {
    return send<NSIndexPath, "indexPathWithIndexes:length:">(classObject(), indices, count);
  }
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
  NSInteger accessoryType() const { return send<NSInteger, "accessoryType">(*this); }
  NSInteger selectionStyle() const { return send<NSInteger, "selectionStyle">(*this); }
  void setSelected(bool selected, bool animated) const {
    send<void, "setSelected:animated:">(*this, selected, animated);
  }
  void setHighlighted(bool highlighted, bool animated) const {
    send<void, "setHighlighted:animated:">(*this, highlighted, animated);
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

  // Neither is retained.
  NSObject dataSource() const { return send<NSObject, "dataSource">(*this); }
  void setDataSource(NSObject source) const { send<void, "setDataSource:">(*this, source); }
  NSObject delegate() const { return send<NSObject, "delegate">(*this); }
  void setDelegate(NSObject delegate) const { send<void, "setDelegate:">(*this, delegate); }
  void reloadData() const { send<void, "reloadData">(*this); }
  void registerCell(Class cell, NSString identifier) const {
    send<void, "registerClass:forCellReuseIdentifier:">(*this, cell, identifier);
  }
  UITableViewCell dequeueCell(NSString identifier, NSIndexPath path) const {
    return send<UITableViewCell, "dequeueReusableCellWithIdentifier:forIndexPath:">(
        *this, identifier, path);
  }
  // Nil where none is selected.
  NSIndexPath indexPathForSelectedRow() const {
    return send<NSIndexPath, "indexPathForSelectedRow">(*this);
  }
};

struct UITableViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UITableViewController">(); }

  UITableView tableView() const { return send<UITableView, "tableView">(*this); }
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

struct UICollectionViewLayout : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UICollectionViewLayout">(); }

  void invalidateLayout() const { send<void, "invalidateLayout">(*this); }

  void prepareLayout() const { send<void, "prepareLayout">(*this); }
  CGSize contentSize() const { return send<CGSize, "collectionViewContentSize">(*this); }
  bool shouldInvalidateFor(CGRect bounds) const {
    return send<bool, "shouldInvalidateLayoutForBoundsChange:">(*this, bounds);
  }
  // Of whatever class the layout makes them.
  Object layoutAttributesInRect(CGRect rect) const {
    return send<Object, "layoutAttributesForElementsInRect:">(*this, rect);
  }
  Object layoutAttributesForItem(NSIndexPath path) const {
    return send<Object, "layoutAttributesForItemAtIndexPath:">(*this, path);
  }
  Object layoutAttributesForSupplementaryView(NSString kind, NSIndexPath path) const {
    return send<Object, "layoutAttributesForSupplementaryViewOfKind:atIndexPath:">(*this, kind,
                                                                                   path);
  }
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

  // Neither is retained.
  NSObject dataSource() const { return send<NSObject, "dataSource">(*this); }
  void setDataSource(NSObject source) const { send<void, "setDataSource:">(*this, source); }
  NSObject delegate() const { return send<NSObject, "delegate">(*this); }
  void setDelegate(NSObject delegate) const { send<void, "setDelegate:">(*this, delegate); }
  void reloadData() const { send<void, "reloadData">(*this); }
  void setCollectionViewLayout(UICollectionViewLayout layout) const {
    send<void, "setCollectionViewLayout:">(*this, layout);
  }
  void setAllowsMultipleSelection(bool allows) const {
    send<void, "setAllowsMultipleSelection:">(*this, allows);
  }
  void setBackgroundView(UIView view) const { send<void, "setBackgroundView:">(*this, view); }
  void registerCell(Class cell, NSString identifier) const {
    send<void, "registerClass:forCellWithReuseIdentifier:">(*this, cell, identifier);
  }
  void registerSupplementaryView(Class view, NSString kind, NSString identifier) const {
    send<void, "registerClass:forSupplementaryViewOfKind:withReuseIdentifier:">(*this, view, kind,
                                                                                identifier);
  }
  UICollectionViewCell dequeueCell(NSString identifier, NSIndexPath path) const {
    return send<UICollectionViewCell, "dequeueReusableCellWithReuseIdentifier:forIndexPath:">(
        *this, identifier, path);
  }
  UICollectionReusableView dequeueSupplementaryView(NSString kind, NSString identifier,
                                                    NSIndexPath path) const {
    return send<UICollectionReusableView,
                "dequeueReusableSupplementaryViewOfKind:withReuseIdentifier:forIndexPath:">(
        *this, kind, identifier, path);
  }
  NSInteger numberOfSections() const { return send<NSInteger, "numberOfSections">(*this); }
  // Nil where the layout has none, or no such view is in sight.
  Object layoutAttributesForItem(NSIndexPath path) const {
    return send<Object, "layoutAttributesForItemAtIndexPath:">(*this, path);
  }
  UICollectionReusableView supplementaryView(NSString kind, NSIndexPath path) const {
    return send<UICollectionReusableView, "supplementaryViewForElementKind:atIndexPath:">(
        *this, kind, path);
  }
  // Without a word to the delegate.
  void selectItem(NSIndexPath path, bool animated, NSUInteger position) const {
    send<void, "selectItemAtIndexPath:animated:scrollPosition:">(*this, path, animated, position);
  }
  void deselectItem(NSIndexPath path, bool animated) const {
    send<void, "deselectItemAtIndexPath:animated:">(*this, path, animated);
  }
};

}  // namespace bridge
