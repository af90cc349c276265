// SPDX-License-Identifier: MIT
//
// A layout, a data source and a delegate for tests and measurements of collections: a grid of
// square items below section headers, which computes where an item lies and stores nothing.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/class_builder.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/lists/ui_collection_view_layout.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

// Sections of equally many items, in columns of `side` points with 1 point between.
class GridLayout : public Bound<GridLayout, UICollectionViewLayout> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<GridLayout>("GridLayout")
            .method<"prepareLayout", &GridLayout::prepare>()
            .method<"collectionViewContentSize", &GridLayout::contentSize>()
            .method<"layoutAttributesForElementsInRect:", &GridLayout::elementsIn>()
            .method<"layoutAttributesForItemAtIndexPath:", &GridLayout::item>()
            .method<"shouldInvalidateLayoutForBoundsChange:", &GridLayout::shouldInvalidate>()
            .build();
    return made;
  }

  NSInteger columns = 4;
  CGFloat side = 93;
  CGFloat headerHeight = 0;
  bool invalidatesAlways = false;
  enum class Answer { truth, nothing, text, absurd } answer = Answer::truth;

  int prepared = 0;
  long attributesMade = 0;

  CGRect frameOf(ItemPath path) const {
    const NSInteger row = path.item / columns;
    return {{static_cast<CGFloat>(path.item % columns) * (side + 1),
             static_cast<CGFloat>(path.section) * sectionHeight() + headerHeight +
                 static_cast<CGFloat>(row) * (side + 1)},
            {side, side}};
  }

 private:
  UICollectionView view() const { return send<UICollectionView, "collectionView">(self()); }
  void prepare() {
    ++prepared;
    _sections = send<NSInteger, "numberOfSections">(view());
    _items = _sections > 0 ? view().numberOfItemsInSection(0) : 0;
  }
  NSInteger rows() const { return (_items + columns - 1) / columns; }
  CGFloat sectionHeight() const { return headerHeight + static_cast<CGFloat>(rows()) * (side + 1); }
  CGSize contentSize() const {
    return {static_cast<CGFloat>(columns) * (side + 1) - 1,
            static_cast<CGFloat>(_sections) * sectionHeight()};
  }
  bool shouldInvalidate(CGRect) const { return invalidatesAlways; }

  Object elementsIn(CGRect rect) {
    if (answer == Answer::nothing) return {};
    if (answer == Answer::text) return NSString::make("no elements");
    const auto all = makeNew<NSMutableArray>();
    if (answer == Answer::absurd) addAbsurd(all);
    const auto [first, last] = indices(rect, sectionHeight(), _sections);
    for (NSInteger section = first; section < last; ++section) addSection(all, section, rect);
    return Owned<NSArray>::retain(all.get()).autorelease();
  }

  static std::pair<NSInteger, NSInteger> indices(CGRect rect, CGFloat step, NSInteger count) {
    if (!(step > 0)) return {};
    const auto index = [&](CGFloat y) {
      return static_cast<NSInteger>(std::clamp(y, 0.0, static_cast<CGFloat>(count)));
    };
    return {index(std::floor(rect.origin.y / step)), index(std::ceil(bottom(rect) / step))};
  }

  void addSection(NSMutableArray all, NSInteger section, CGRect rect) {
    const CGFloat top = static_cast<CGFloat>(section) * sectionHeight();
    const CGRect header = {{0, top}, {375, headerHeight}};
    if (headerHeight > 0 && intersects(header, rect)) {
      const auto made = UICollectionViewLayoutAttributesState::forSupplementary(
          NSString::make("UICollectionElementKindSectionHeader"), {section, 0}, header);
      made.setZIndex(1);
      all.add(made);
    }
    const CGRect inItems = offset(rect, {0, -top - headerHeight});
    const auto [first, last] = indices(inItems, side + 1, rows());
    for (NSInteger item = first * columns; item < std::min(last * columns, _items); ++item) {
      ++attributesMade;
      all.add(UICollectionViewLayoutAttributesState::forItem({section, item},
                                                             frameOf({section, item})));
    }
  }

  void addAbsurd(NSMutableArray all) const {
    all.add(NSString::make("no attributes"));
    for (const ItemPath path : {ItemPath{7, 0}, ItemPath{0, 5'000'000}, ItemPath{0, 1}})
      all.add(UICollectionViewLayoutAttributesState::forItem(path, {{NAN, 0}, {10, 10}}));
    all.add(UICollectionViewLayoutAttributesState::forItem({9, 9}, {{0, 0}, {10, 10}}));
  }

  Object item(NSIndexPath path) const {
    const ItemPath at = *itemPathOf(path);
    return UICollectionViewLayoutAttributesState::forItem(at, frameOf(at));
  }

  NSInteger _sections = 0;
  NSInteger _items = 0;
};

// The cell of these tests: knows what it shows.
class TestCell : public Bound<TestCell, UICollectionViewCell> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<TestCell>("TestCell")
                                  .method<"prepareForReuse", &TestCell::prepareForReuse>()
                                  .build();
    return made;
  }
  static inline int reused = 0;

 private:
  void prepareForReuse() {
    super<void, "prepareForReuse">();
    ++reused;
  }
};

class CollectionSource : public Bound<CollectionSource, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<CollectionSource>("CollectionSource")
            .method<"numberOfSectionsInCollectionView:", &CollectionSource::sections>()
            .method<"collectionView:numberOfItemsInSection:", &CollectionSource::items>()
            .method<"collectionView:cellForItemAtIndexPath:", &CollectionSource::cell>()
            .method<"collectionView:viewForSupplementaryElementOfKind:atIndexPath:",
                    &CollectionSource::header>()
            .method<"collectionView:shouldSelectItemAtIndexPath:", &CollectionSource::mayChange>()
            .method<"collectionView:shouldDeselectItemAtIndexPath:", &CollectionSource::mayChange>()
            .method<"collectionView:didSelectItemAtIndexPath:", &CollectionSource::didSelect>()
            .method<"collectionView:didDeselectItemAtIndexPath:", &CollectionSource::didDeselect>()
            .method<"collectionView:willDisplayCell:forItemAtIndexPath:",
                    &CollectionSource::willDisplay>()
            .method<"collectionView:didEndDisplayingCell:forItemAtIndexPath:",
                    &CollectionSource::didEndDisplaying>()
            .build();
    return made;
  }

  NSInteger sectionCount = 1;
  NSInteger itemCount = 0;  // of every section
  enum class Answer { cells, nothing, text } answer = Answer::cells;
  bool reloadsMeanwhile = false;
  bool allowsChanges = true;

  std::vector<std::string> events;
  long displayed = 0;
  long ended = 0;

 private:
  NSInteger sections(UICollectionView) const { return sectionCount; }
  NSInteger items(UICollectionView, NSInteger) const { return itemCount; }
  Object cell(UICollectionView view, NSIndexPath path) const {
    if (reloadsMeanwhile) send<void, "reloadData">(view);
    if (answer == Answer::nothing) return {};
    if (answer == Answer::text) return NSString::make("no cell");
    const auto made = send<UIView, "dequeueReusableCellWithReuseIdentifier:forIndexPath:">(
        view, NSString::make("cell"), path);
    made.setTag(path.row());
    return made;
  }
  Object header(UICollectionView view, NSString kind, NSIndexPath path) const {
    return send<Object, "dequeueReusableSupplementaryViewOfKind:withReuseIdentifier:forIndexPath:">(
        view, kind, NSString::make("header"), path);
  }
  static std::string text(NSIndexPath path) {
    return std::to_string(path.section()) + "." + std::to_string(path.row());
  }
  bool mayChange(UICollectionView, NSIndexPath) const { return allowsChanges; }
  void didSelect(UICollectionView, NSIndexPath path) { events.push_back("select " + text(path)); }
  void didDeselect(UICollectionView, NSIndexPath path) {
    events.push_back("deselect " + text(path));
  }
  void willDisplay(UICollectionView, UIView, NSIndexPath) { ++displayed; }
  void didEndDisplaying(UICollectionView, UIView, NSIndexPath) { ++ended; }
};

}  // namespace desktop::uikit
